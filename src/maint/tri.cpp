#include "maint/tri.h"

#include "core/dates.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orvalis {
namespace {

constexpr auto kTaille = static_cast<std::int64_t>(kTailleFiche);
// Records that one write of the file moves at most.
constexpr auto kFichesParEcriture = static_cast<std::int32_t>(kFichesParPiece);

// Kept on purpose, for the operators: each word is shown one pass late ("Dates" while the years are
// compared).
constexpr std::array<std::string_view, kNbPasses> kMots = {"Dates", "Années", "Mois", "Jours",
                                                           "Heures"};

// A field trimmed and padded again to its width.
template<Champ champ> auto Cle(const char* fiche) {
    constexpr DescriptionChamp kDescription = Description(champ);
    std::array<char, kDescription.largeur> cle;
    const char* debut = fiche + kDescription.decalage;
    std::memcpy(cle.data(), debut, cle.size());
    if (*debut == ' ') {
        const auto texte = std::find_if(cle.begin(), cle.end(), [](char c) { return c != ' '; });
        std::fill(std::copy(texte, cle.end(), cle.begin()), cle.end(), ' ');
    }
    return cle;
}

// Number formed by the leading digits of two characters.
int Nombre(const char* deux) {
    const int dizaines = deux[0] - '0';
    const int unites = deux[1] - '0';
    if (dizaines < 0 || dizaines > 9)
        return 0;
    return unites < 0 || unites > 9 ? dizaines : dizaines * 10 + unites;
}

using CleDate = std::array<char, Description(Champ::DQSO).largeur>;
using CleHeure = std::array<char, Description(Champ::HDEB).largeur>;

int Jour(const CleDate& date) {
    return Nombre(date.data());
}
int Mois(const CleDate& date) {
    return Nombre(date.data() + 3);
}
int Annee(const CleDate& date) {
    return AnneeComplete(Nombre(date.data() + 6));
}
int Heures(const CleHeure& heure) {
    return Nombre(heure.data());
}
int Minutes(const CleHeure& heure) {
    return Nombre(heure.data() + 3);
}

// Whether pass `passe` exchanges neighbours `a` and `b`.
template<int passe> bool Echanger(const char* a, const char* b) {
    const CleDate dateA = Cle<Champ::DQSO>(a);
    const CleDate dateB = Cle<Champ::DQSO>(b);
    if constexpr (passe == 1)
        return Annee(dateA) > Annee(dateB);
    if constexpr (passe == 2)
        return Mois(dateA) > Mois(dateB) && Annee(dateA) == Annee(dateB);
    if constexpr (passe == 3) // Kept on purpose, for the logbooks: the years may differ.
        return Jour(dateA) > Jour(dateB) && Mois(dateA) == Mois(dateB);
    if constexpr (passe >= 4) {
        if (dateA != dateB)
            return false;
        const CleHeure heureA = Cle<Champ::HDEB>(a);
        const CleHeure heureB = Cle<Champ::HDEB>(b);
        if constexpr (passe == 4)
            return Heures(heureA) > Heures(heureB);
        return Heures(heureA) == Heures(heureB) && Minutes(heureA) > Minutes(heureB);
    }
}

} // namespace

std::string_view MotDePasse(int passe) {
    return kMots[static_cast<std::size_t>(passe) - 1];
}

Tri::Tri(Cahier& cahier) : cahier_(cahier), nbFiches_(cahier.nbFiches) {
    etat_.termine = nbFiches_ < 2;
    if (etat_.termine)
        return;
    FichierFiches& fichier = cahier.fichier;
    const std::int64_t taille = nbFiches_ * kTaille;
    if (fichier.Support().Taille() < taille)
        fichier.Ecrire(cahier.Derniere(), fichier.Lire(cahier.Derniere()));
    projection_.emplace(fichier.Support(), taille);
}

void Tri::Avancer(std::int64_t pasMax) {
    if (etat_.termine)
        return;
    etat_.interrompu = !EstIntact();
    etat_.termine = etat_.interrompu;
    if (etat_.interrompu)
        return SynchroniserCahier(cahier_);
    MarcherPasse(etat_.pas + pasMax);
    if (etat_.position == nbFiches_)
        FinirPasse();
    PoserEchanges();
}

// A cut in the last contact still counts as that contact, but not in the mapping.
bool Tri::EstIntact() const {
    return EstTelQueCompte(cahier_) && cahier_.fichier.Support().Taille() >= nbFiches_ * kTaille;
}

void Tri::MarcherPasse(std::int64_t dernierPas) {
    switch (etat_.passe) {
    case 1:
        return Marcher<1>(dernierPas);
    case 2:
        return Marcher<2>(dernierPas);
    case 3:
        return Marcher<3>(dernierPas);
    case 4:
        return Marcher<4>(dernierPas);
    default:
        return Marcher<5>(dernierPas);
    }
}

template<int passe> void Tri::Marcher(std::int64_t dernierPas) {
    std::int32_t p = etat_.position;
    std::int64_t pas = etat_.pas;
    for (; pas < dernierPas && p != nbFiches_; ++pas) {
        if (p >= debut_)
            PoserEchanges();
        const bool suite = p + 1 == debut_;
        if (!Echanger<passe>(Fiche(p), Fiche(suite ? fin_ : p + 1))) {
            ++p;
            continue;
        }
        if (!suite) {
            PoserEchanges();
            fin_ = p + 1;
        }
        debut_ = p;
        if (fin_ - debut_ + 1 == kFichesParEcriture)
            PoserEchanges();
        ++etat_.echanges;
        p = std::max(p - 2, 1);
    }
    etat_.position = p;
    etat_.pas = pas;
}

void Tri::FinirPasse() {
    PoserEchanges();
    etat_.position = 1;
    etat_.termine = etat_.passe == kNbPasses;
    if (etat_.termine)
        SynchroniserCahier(cahier_);
    else
        ++etat_.passe;
}

void Tri::PoserEchanges() {
    if (debut_ == kAucune)
        return;
    char* atelier = projection_->Atelier().data();
    const auto deplaces = static_cast<std::size_t>(fin_ - debut_) * kTailleFiche;
    std::memcpy(atelier, Fiche(fin_), kTailleFiche);
    std::memcpy(atelier + kTailleFiche, Fiche(debut_), deplaces);
    // The same records in the order they have in the file.
    std::memcpy(anciens_.data(), atelier + kTailleFiche, deplaces);
    std::memcpy(anciens_.data() + deplaces, atelier, kTailleFiche);
    projection_->Remplacer((debut_ - 1) * kTaille,
                           std::span(anciens_).first(kTailleFiche + deplaces));
    debut_ = kAucune;
}

const char* Tri::Fiche(std::int32_t k) const {
    return projection_->Octets() + (k - 1) * kTaille;
}

} // namespace orvalis
