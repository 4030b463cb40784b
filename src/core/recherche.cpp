#include "core/recherche.h"

#include "core/dates.h"
#include "core/pages.h"
#include "core/texte.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <unordered_set>
#include <utility>

namespace orvalis {
namespace {

constexpr std::size_t kLargeurDate = Description(Champ::DQSO).largeur;
// Callsign, date, times and frequency lie together at the head of a record.
constexpr std::size_t kOctetsDoublon = Description(Champ::MODE).decalage;

// Up to so many found records are read each by itself, more of them block by block.
constexpr std::size_t kFichesUneAUne = 16;

constexpr std::string_view kSeparateurs = "/.: ";

std::array<char, 256> TableMajuscules() {
    std::array<char, 256> table = {};
    for (std::size_t octet = 0; octet < table.size(); ++octet)
        table[octet] = static_cast<char>(MajusculeCp1252(static_cast<unsigned char>(octet)));
    return table;
}

// Bytes in upper case, so that texts compare without regard to case and without decoding.
class Pliage {
  public:
    [[nodiscard]] char Plier(char c) const { return table_[static_cast<unsigned char>(c)]; }
    [[nodiscard]] std::string Plier(std::string_view octets) const {
        std::string sortie{octets};
        for (char& c : sortie)
            c = Plier(c);
        return sortie;
    }
    // Whether `cherche`, already folded, occurs in `octets`.
    [[nodiscard]] bool Contient(std::string_view octets, std::string_view cherche) const {
        const auto memeLettre = [this](char a, char b) { return Plier(a) == b; };
        return std::search(octets.begin(), octets.end(), cherche.begin(), cherche.end(),
                           memeLettre) != octets.end();
    }

  private:
    std::array<char, 256> table_ = TableMajuscules();
};

std::string Ligne(NumeroFiche k, std::string_view texte) {
    return Cadrer(std::to_string(k.Valeur()), kLargeurNumero) + Cadrer(texte, kLargeurTexteContact);
}

std::string LigneContact(NumeroFiche k, const QsoRecord& fiche) {
    return Ligne(k, "Le " + Cadrer(TexteRogne(fiche, Champ::DQSO), kLargeurDate) + " à " +
                        Cadrer(TexteRogne(fiche, Champ::HDEB), Description(Champ::HDEB).largeur) +
                        " sur " + TexteRogne(fiche, Champ::FREQ) + " Mhz");
}

std::string LigneDoublon(NumeroFiche k, const QsoRecord& seconde) {
    std::string texte = DepuisCp1252(OctetsChamp(seconde, Champ::CSGN).substr(0, kIndicatifListe));
    texte.insert(0, 1, ' ');
    texte += "Le " + TexteChamp(seconde, Champ::DQSO) + " à " + TexteChamp(seconde, Champ::HDEB);
    return Ligne(k, texte);
}

template<typename Retenir>
std::vector<std::string> Parcourir(const Cahier& cahier, Retenir retenir) {
    std::vector<std::string> lignes;
    LecteurFiches lecteur(cahier.fichier);
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere(); ++k)
        if (const QsoRecord& fiche = lecteur.Lire(k); retenir(fiche))
            lignes.push_back(LigneContact(k, fiche));
    return lignes;
}

// Whether a record is a contact with a station.
class EstContactAvec {
  public:
    explicit EstContactAvec(std::string_view indicatif)
        : cherche_(pliage_.Plier(VersCp1252(Rogner(indicatif)))) {}
    bool operator()(std::string_view champ) const {
        if (Ecarte(champ))
            return false;
        const std::string_view indicatif = Rogner(champ);
        const std::size_t n = cherche_.size();
        return indicatif.size() >= n && (indicatif.size() == n || indicatif[n] == '/') &&
               pliage_.Contient(indicatif, cherche_);
    }
    bool operator()(const QsoRecord& fiche) const {
        return (*this)(OctetsChamp(fiche, Champ::CSGN));
    }
    [[nodiscard]] bool Vide() const { return cherche_.empty(); }

  private:
    // Three letters settle nearly every record of a large logbook: where a callsign of this length
    // ends, its first and its last.
    [[nodiscard]] bool Ecarte(std::string_view champ) const {
        const std::size_t n = cherche_.size();
        if (n == 0 || n >= champ.size() || champ.front() == ' ' || champ[n] == '/')
            return false;
        return champ[n] != ' ' || pliage_.Plier(champ.front()) != cherche_.front() ||
               pliage_.Plier(champ[n - 1]) != cherche_.back();
    }

    Pliage pliage_;
    std::string cherche_;
};

ResultatRecherche ParIndicatif(const Cahier& cahier, std::string_view texte) {
    const EstContactAvec estContact(texte);
    ResultatRecherche resultat;
    if (!estContact.Vide())
        resultat.lignes = Parcourir(cahier, estContact);
    const std::size_t nb = resultat.lignes.size();
    resultat.nbreContacts =
        std::to_string(nb) + (nb < 2 ? " Contact réalisé" : " Contacts réalisés");
    resultat.contactsLab.emplace();
    return resultat;
}

ResultatRecherche ParDate(const Cahier& cahier, std::string_view texte) {
    const Pliage pliage;
    const std::string cherche = VersCp1252(Rogner(texte));
    const auto estListee = [&](const QsoRecord& fiche) {
        std::string date = pliage.Plier(Rogner(OctetsChamp(fiche, Champ::DQSO)));
        date.resize(kLargeurDate, ' ');
        return pliage.Contient(cherche, date);
    };
    ResultatRecherche resultat;
    if (cherche.size() >= kLargeurDate)
        resultat.lignes = Parcourir(cahier, estListee);
    const std::size_t nb = resultat.lignes.size();
    resultat.nbreContacts = std::to_string(nb);
    // Kept on purpose, for the operators: with exactly two the label keeps what it showed before.
    if (nb != 2)
        resultat.contactsLab = nb > 2 ? "Contacts" : "Contact";
    return resultat;
}

// Date and start time as one number that grows with time; texts are read by position.
std::int64_t Moment(const QsoRecord& fiche) {
    const auto nombre = [&fiche](Champ champ, std::size_t position) {
        return ValeurNumerique(OctetsChamp(fiche, champ).substr(position, 2));
    };
    const std::int64_t jour =
        (AnneeComplete(nombre(Champ::DQSO, 6)) * 100LL + nombre(Champ::DQSO, 3)) * 100 +
        nombre(Champ::DQSO, 0);
    return (jour * 100 + nombre(Champ::HDEB, 0)) * 100 + nombre(Champ::HDEB, 3);
}

} // namespace

bool EstDateOuHeure(std::string_view texte) {
    const auto separateurEn = [texte](std::size_t position) {
        const std::string_view c = Milieu(texte, position, 1);
        return !c.empty() && kSeparateurs.find(c) != std::string_view::npos;
    };
    return separateurEn(3) && separateurEn(6);
}

ResultatRecherche ChercherContacts(const Cahier& cahier, std::string_view texte) {
    return EstDateOuHeure(texte) ? ParDate(cahier, texte) : ParIndicatif(cahier, texte);
}

ResultatRecherche ChercherDoublons(const Cahier& cahier) {
    ResultatRecherche resultat;
    LecteurFiches lecteur(cahier.fichier);
    std::array<char, kOctetsDoublon> precedente = {};
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere() && cahier.nbFiches > 1; ++k) {
        const QsoRecord& fiche = lecteur.Lire(k);
        if (k > kPremiereFiche &&
            std::memcmp(precedente.data(), fiche.octets.data(), kOctetsDoublon) == 0)
            resultat.lignes.push_back(LigneDoublon(k - 1, fiche));
        std::memcpy(precedente.data(), fiche.octets.data(), kOctetsDoublon);
    }
    const std::size_t nb = resultat.lignes.size();
    resultat.nbreContacts = std::to_string(nb);
    resultat.contactsLab = nb < 2 ? "Doublon trouvé" : "Doublons trouvés";
    return resultat;
}

StationContactee ChercherStation(const Cahier& cahier, std::string_view indicatif) {
    const EstContactAvec estContact(indicatif);
    std::vector<NumeroFiche> trouvees;
    NumeroFiche ici = kAucuneFiche;
    for (const OctetsIndicatif& octets : cahier.indicatifs) {
        ++ici;
        if (!estContact.Vide() && estContact(std::string_view{octets.data(), octets.size()}))
            trouvees.push_back(ici);
    }
    StationContactee station;
    std::int64_t dernier = 0;
    LecteurFiches lecteur(cahier.fichier); // worth its block where many are found
    for (const NumeroFiche k : trouvees) {
        const QsoRecord fiche =
            trouvees.size() > kFichesUneAUne ? lecteur.Lire(k) : FicheDuCahier(cahier, k);
        if (!estContact(fiche)) // another program has written there since it was counted
            continue;
        const std::int64_t moment = Moment(fiche);
        if (station.fois++ == 0 || moment >= dernier) {
            dernier = moment;
            station.derniere = fiche;
        }
    }
    return station;
}

std::int32_t CompterDejaLa(const Cahier& cahier, NumeroFiche premiere) {
    std::unordered_set<std::string> presentes;
    std::int32_t nombre = 0;
    LecteurFiches lecteur(cahier.fichier);
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere(); ++k) {
        const QsoRecord& fiche = lecteur.Lire(k);
        std::string cle{fiche.octets.data(), kOctetsDoublon};
        if (k < premiere)
            presentes.insert(std::move(cle));
        else if (presentes.contains(cle))
            ++nombre;
    }
    return nombre;
}

} // namespace orvalis
