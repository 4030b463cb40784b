#include "echange/importer.h"

#include "core/chemins.h"
#include "core/fichier_fiches.h"
#include "echange/adif_fichiers.h"
#include "echange/entree.h"
#include "echange/exporter.h"
#include "echange/rapport.h"
#include "echange/refus.h"
#include "geo/locator.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace orvalis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kInconnusMax = 2000;

// Which records came before, by a number of 64 bits for each. Beyond what fits, equal records are
// no longer counted, which no logbook reaches.
class DejaVues {
  public:
    /// Whether the record came before.
    bool Ajouter(const QsoRecord& fiche) {
        const std::string_view octets{fiche.octets.data(), fiche.octets.size()};
        const std::uint64_t cle = std::max<std::uint64_t>(std::hash<std::string_view>{}(octets), 1);
        if (nombre_ >= places_.size() / 2)
            Agrandir();
        if (nombre_ >= places_.size() / 2)
            return Place(cle) == cle;
        std::uint64_t& place = Place(cle);
        const bool vue = place == cle;
        nombre_ += vue ? 0 : 1;
        place = cle;
        return vue;
    }

  private:
    static constexpr std::size_t kMax = std::size_t{1} << 21U;

    std::uint64_t& Place(std::uint64_t cle) {
        std::size_t i = cle % places_.size();
        while (places_[i] != 0 && places_[i] != cle)
            i = (i + 1) % places_.size();
        return places_[i];
    }
    void Agrandir() {
        if (2 * places_.size() > kMax)
            return;
        std::vector<std::uint64_t> anciennes(2 * places_.size());
        anciennes.swap(places_);
        for (const std::uint64_t cle : anciennes)
            if (cle != 0)
                Place(cle) = cle;
    }

    std::vector<std::uint64_t> places_ = std::vector<std::uint64_t>(4096);
    std::size_t nombre_ = 0;
};

class Importateur : public Receveur {
  public:
    using VoirFiche = std::function<void(const QsoRecord&)>;

    Importateur(const Fuseau& fuseau, std::string locator, VoirFiche voirFiche, VoirLigne voirLigne)
        : conventions_{fuseau, std::move(locator), false}, fixe_(!conventions_.monLocator.empty()),
          voirFiche_(std::move(voirFiche)), voirLigne_(std::move(voirLigne)) {}

    /// The locator to begin with where none is given.
    void PartirDe(const std::string& locator) {
        if (!fixe_)
            conventions_.monLocator = locator;
    }
    [[nodiscard]] const std::string& Locator() const { return conventions_.monLocator; }
    [[nodiscard]] const BilanImport& Bilan() const { return bilan_; }
    /// A sentence behind another; empty when there was none.
    [[nodiscard]] const std::string& PremierIncident() const { return premierIncident_; }

    void Entete(std::string_view nom, std::string_view valeur) override {
        const std::string programme = MajusculesAscii(valeur);
        if (MajusculesAscii(nom) == "PROGRAMID")
            conventions_.electronique =
                programme.starts_with("LOTW") || programme.starts_with("EQSL");
    }
    void Inconnu(std::string_view nom) override {
        const auto place = bilan_.inconnus.find(nom);
        if (place != bilan_.inconnus.end())
            ++place->second;
        else
            ++bilan_.inconnus[bilan_.inconnus.size() < kInconnusMax
                                  ? MajusculesAscii(nom.substr(0, 80))
                                  : "(et d'autres)"];
    }
    void Incident(std::int64_t ligne, const Remarque& remarque) override {
        if (bilan_.incidents++ == 0)
            premierIncident_ = " La ligne " + std::to_string(ligne) + " : " + remarque.avant +
                               (remarque.avant.empty() ? "" : ", ") + remarque.devenu + ".";
        Dire(ligne, "", remarque);
    }
    [[nodiscard]] bool Contact(const ContactAdif& contact) override;

  private:
    void Dire(std::int64_t ligne, std::string_view indicatif, const Remarque& remarque) const {
        if (voirLigne_)
            voirLigne_({ligne, indicatif, remarque.champ, remarque.avant, remarque.devenu});
    }

    Conventions conventions_;
    bool fixe_; ///< the locator was given
    VoirFiche voirFiche_;
    VoirLigne voirLigne_;
    BilanImport bilan_;
    std::string premierIncident_;
    DejaVues deja_;
};

bool Importateur::Contact(const ContactAdif& contact) {
    ++bilan_.lus;
    const ContactImporte importe = ImporterContact(contact, conventions_);
    const std::string indicatif = contact[Balise::CALL];
    if (importe.repris) {
        ++bilan_.repris;
        bilan_.changes += importe.remarques.empty() ? 0 : 1;
        bilan_.locatorsSupposes += importe.locatorSuppose ? 1 : 0;
        bilan_.egaux += deja_.Ajouter(importe.fiche) ? 1 : 0;
        if (voirFiche_)
            voirFiche_(importe.fiche);
    } else {
        ++bilan_.laisses;
        Remarque raison = importe.raison;
        raison.devenu = "contact laissé de côté : " + raison.devenu;
        Dire(contact.ligne, indicatif, raison);
    }
    for (const Remarque& remarque : importe.remarques)
        Dire(contact.ligne, indicatif, remarque);
    const std::string_view mien = OctetsChamp(importe.fiche, Champ::MLOC);
    if (!importe.locatorSuppose && LocatorValide(mien))
        PartirDe(std::string{mien});
    return true;
}

// Only looks for the first locator of the station that a contact tells.
class ChercheurLocator : public Receveur {
  public:
    std::string locator;

    void Entete(std::string_view /*nom*/, std::string_view /*valeur*/) override {}
    void Inconnu(std::string_view /*nom*/) override {}
    void Incident(std::int64_t /*ligne*/, const Remarque& /*remarque*/) override {}
    [[nodiscard]] bool Contact(const ContactAdif& contact) override {
        const auto lu = MajusculesAscii(Rogner(contact[Balise::MY_GRIDSQUARE]));
        if (const std::string debut = lu.substr(0, kLargeurLocator); LocatorValide(debut))
            locator = debut;
        return locator.empty();
    }
};

void Lire(const Fichier& fichier, LectureAdi lecture, Receveur& receveur) {
    if (ReconnaitreGenre(fichier) == GenreAdif::Adx)
        LireAdx(fichier, receveur);
    else
        LireAdi(fichier, lecture, receveur);
}

// Reads the file for `importateur`; nothing of it counts when this throws.
void Lire(const DemandeImport& demande, Importateur& importateur) {
    const Fichier fichier(demande.source, ModeFichier::Lecture);
    const LectureAdi lecture =
        ReconnaitreGenre(fichier) == GenreAdif::Adi ? ExaminerAdi(fichier) : LectureAdi{};
    if (demande.locator.empty()) {
        ChercheurLocator chercheur;
        Lire(fichier, lecture, chercheur);
        importateur.PartirDe(chercheur.locator);
    }
    Lire(fichier, lecture, importateur);
    const BilanImport& bilan = importateur.Bilan();
    if (bilan.lus == 0)
        throw RefusEchange("Il n'y a pas de contact dans « " + TexteChemin(demande.source) + " »." +
                           importateur.PremierIncident());
    if (bilan.locatorsSupposes > 0 && importateur.Locator().empty())
        throw RefusEchange("Les contacts ne disent pas le locator de la station : il faut le "
                           "donner (en ligne de commande par --locator).");
}

void RefuserLaCible(const DemandeImport& demande) {
    const std::string nom = "« " + TexteChemin(demande.cible) + " »";
    const fs::path rapport = CheminRapport(demande.cible);
    for (const fs::path& place : {demande.cible, rapport}) {
        const std::string sonNom = "« " + TexteChemin(place) + " »";
        if (PrendUnePlace(place, demande.proteges))
            throw RefusEchange(sonNom + " est un fichier de la station : l'importation fait un "
                                        "second cahier, à jumeler ensuite.");
        if (MemeFichier(place, demande.source))
            throw RefusEchange(sonNom + " est le fichier à lire.");
    }
    if (MemeFichier(rapport, demande.cible))
        throw RefusEchange("« " + TexteChemin(rapport) +
                           " », la place du rapport, est le cahier à faire.");
    std::error_code erreur;
    if (fs::exists(fs::symlink_status(demande.cible, erreur)) && demande.ancien == Ancien::Protege)
        throw RefusEchange("Le fichier " + nom + " existe déjà.");
}

// The former file, kept locked while it is replaced: no program has it open.
Fichier TenirAncien(const DemandeImport& demande) {
    std::error_code erreur;
    if (!fs::is_regular_file(demande.cible, erreur))
        return {};
    Fichier ancien(demande.cible, ModeFichier::Lecture);
    if (!ancien.Verrouiller())
        throw Erreur(NatureErreur::DejaOuvert, demande.cible);
    return ancien;
}

std::string_view Octets(const QsoRecord& fiche) {
    return {fiche.octets.data(), fiche.octets.size()};
}

} // namespace

fs::path CheminRapport(const fs::path& cahier) {
    return fs::path(cahier).replace_extension("rapport.txt");
}

BilanImport EtudierImport(const DemandeImport& demande, const Fuseau& fuseau,
                          const VoirLigne& voir) {
    Importateur importateur(fuseau, demande.locator, {}, voir);
    Lire(demande, importateur);
    return importateur.Bilan();
}

BilanImport ImporterAdif(const DemandeImport& demande, const Fuseau& fuseau) {
    RefuserLaCible(demande);
    const Fichier tenu = TenirAncien(demande);
    const fs::path chemin = CheminRapport(demande.cible);
    Rapport rapport(demande, chemin);
    FichierNeuf cahier(demande.cible, demande.ancien);
    Importateur importateur(
        fuseau, demande.locator, [&](const QsoRecord& fiche) { cahier.Ecrire(Octets(fiche)); },
        [&](const LigneRapport& ligne) { rapport.Ajouter(ligne); });
    Lire(demande, importateur);
    cahier.Ecrire(Octets(FicheFinDeLog(importateur.Locator())));
    BilanImport bilan = importateur.Bilan();
    bilan.rapport = chemin;
    cahier.Achever(); // a full disk is met before either has its name
    rapport.Terminer(bilan);
    try {
        cahier.Terminer();
    } catch (...) {
        // A report of what did not come to pass would only stand in the way where nothing may.
        std::error_code erreur;
        if (!cahier.EstEnPlace() && demande.ancien == Ancien::Protege)
            fs::remove(chemin, erreur);
        throw;
    }
    return bilan;
}

} // namespace orvalis
