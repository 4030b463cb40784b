// What Enter does now, found out by running its rule on a copy of the state.
#include "core/texte.h"
#include "qsl/vie_etiquette.h"
#include "ui/carte/conseil.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/carte/essai.h"
#include "ui/carte/modification.h"
#include "ui/carte/saisie.h"
#include "ui/carte/vue.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orvalis {
namespace {

std::string_view Nom(const Foyer& foyer) {
    switch (foyer.cible) {
    case Cible::Boite:
        return Decrire(static_cast<Boite>(foyer.numero)).nom;
    case Cible::BoiteEtiquette:
        return kNomsBoitesEtiquette.at(static_cast<std::size_t>(foyer.numero));
    case Cible::Liste:
        return "la liste";
    case Cible::Suivant:
        return "Suivant";
    case Cible::Sauvegarder:
        return "Sauvegarder";
    case Cible::Jumeler:
        return "Jumeler";
    case Cible::VoieBureau:
        return "Via bureau";
    case Cible::VoieDirecte:
        return "Direct";
    case Cible::ValiderLocator:
    case Cible::ValiderEtiquette:
        return "Valider";
    default:
        return "un autre contrôle";
    }
}

} // namespace

void DireAttente(Phrase& p, const Essai& e) {
    if (e.Reste() && e.voeu == Foyer{Cible::Suivant})
        p.Dire(kPointVirgule).Dire("Suivant attend le RST reçu");
}

void DirePuis(Phrase& p, const Essai& e) {
    if (e.Reste()) {
        p.Dire(" et reste ici");
        DireAttente(p, e);
    } else {
        p.Dire(", puis ").Dire(Nom(e.ecran.foyer.ici));
    }
}

namespace {

// Whether the clock fills the box.
bool Donnee(const Carte& carte, Boite boite) {
    return carte.saisie.tempsReel && (boite == Boite::Date || boite == Boite::Debut);
}

// Whether the card under entry holds more than a callsign and what the clock and the station give.
bool PlusQueLIndicatif(const Carte& carte) {
    return std::any_of(kBoites.begin(), kBoites.end(), [&carte](const DescriptionBoite& d) {
        return d.boite != Boite::Indicatif && d.boite != Boite::MonLocator &&
               !Donnee(carte, d.boite) && !carte.zones[d.boite].empty();
    });
}

void DireAbandon(Phrase& p, const Carte& carte) {
    const bool plus = PlusQueLIndicatif(carte);
    if (!carte.saisie.QsoCommence && !plus) {
        p.Dire("n'enregistre rien").Dire(kPointVirgule).Dire("aucun indicatif validé");
        return;
    }
    p.Dire("abandonne ce contact").Dire(kDeuxPoints);
    p.Dire(!carte.saisie.QsoCommence ? "indicatif pas encore validé"
           : plus                    ? "RST reçu pas encore validé"
                                     : "indicatif seul");
}

// The text of the box in hand, which a press on Terminer does not take.
void DireNonValide(Phrase& p, const Carte& carte, const Foyer& ici, bool enregistre) {
    const std::optional<Boite> boite = BoiteDuFoyer(ici);
    if (!boite)
        return;
    const std::string_view texte = Rogner(carte.Texte(*boite));
    if (texte.empty() || texte == carte.zones[*boite])
        return;
    p.Dire(enregistre ? ", sans " : ", ").Citer(texte);
    p.Dire(enregistre ? " (pas validé)" : " n'est pas validé");
}

void DireFin(Phrase& p, const Session& session, const Ecran& ecran, FinDeSaisie fin) {
    const Carte& carte = session.carte;
    const Verdict verdict = FinirContact(carte, session.station, fin, ecran.suivantArme,
                                         ecran.heure.value_or(Instant{}))
                                .verdict;
    switch (verdict) {
    case Verdict::Enregistrer:
        p.Dire("enregistre le contact " + std::to_string(session.cahier.Prochaine().Valeur()));
        if (const auto jointe = ChercherInfoJointe(carte)) {
            const Phrase avec = DireInfoJointe(*jointe);
            p.texte += " avec " + avec.texte;
            p.cle += " avec " + avec.cle;
        }
        break;
    case Verdict::IndicatifManquant:
        p.Dire("n'enregistre rien et garde la fiche")
            .Dire(kPointVirgule)
            .Dire("il faut un indicatif");
        break;
    case Verdict::RienAEcrire:
        DireAbandon(p, carte);
        break;
    }
    DireNonValide(p, carte, ecran.foyer.ici, verdict == Verdict::Enregistrer);
}

void DireReponse(Phrase& p, const Carte& carte, bool oui) {
    const std::string fiche = "la fiche " + std::to_string(carte.ficheCourante.Valeur());
    if (DemandeEffacement(carte)) {
        p.Dire(oui ? "supprime " : "garde ").Dire(fiche);
    } else if (oui) {
        p.Dire("enregistre");
        DireChangements(p, carte);
    } else {
        p.Dire("rend " + fiche + " telle qu'elle était");
    }
}

void DireRecherche(Phrase& p, Essai e) {
    const std::string& texte = e.avant.recherche.texte;
    if (texte.empty()) {
        p.Dire("ne fait rien")
            .Dire(kPointVirgule)
            .Dire("il faut un indicatif ou une date jj/mm/aa");
        return;
    }
    CederAuxContacts(e.carte, e.ecran, e.station);
    // Where a panel waits in place of the list, as at the end of the flow. The label sheet, which
    // hides the box that has the focus, is not on show.
    static_cast<void>(AccorderFoyer(e.carte, e.ecran, e.station, VueFenetre{}));
    p.Dire(EstDateOuHeure(texte) ? "cherche les contacts du " : "cherche l'indicatif ")
        .Citer(texte);
    DirePuis(p, e);
}

void DireLocator(Phrase& p, Essai e) {
    switch (EntrerLocator(e.carte, e.ecran, e.station)) {
    case VerdictLocator::Rien:
        p.Dire("reste ici").Dire(kPointVirgule).Dire("il faut six caractères, comme JN18DU");
        break;
    case VerdictLocator::Accepte:
        p.Dire("accepte ").Citer(e.avant.locator.texte);
        DirePuis(p, e);
        break;
    case VerdictLocator::Refuse:
        p.Dire("affiche ERREUR et vide cette case").Dire(kPointVirgule);
        p.Dire("il faut un locator comme JN18DU");
        break;
    }
}

// What BtChangValid or BtChangAnnul does.
void DireLocatorPris(Phrase& p, Essai& e, bool valider) {
    Station station = e.station;
    const bool garder = e.ecran.locator.garder;
    if (valider) // not into the Settings file: this is a trial
        ChangerLocatorStation(station, e.carte, e.ecran.locator.texte, false);
    FermerChangLocator(e.carte, e.ecran, station);
    const bool change = station.monLocator != e.station.monLocator;
    p.Dire(change ? "prend " : "garde ").Citer(station.monLocator).Dire(" pour locator");
    if (valider && garder)
        p.Dire(", au prochain lancement aussi");
}

void DireFinLocator(Phrase& p, Essai e, bool valider) {
    DireLocatorPris(p, e, valider);
    DirePuis(p, e);
}

// Of the tick counts what BtChangValid makes of it, once that is there.
void DireGarder(Phrase& p, Essai e) {
    GarderLocator(e.ecran, !e.avant.locator.garder);
    p.Dire(e.ecran.locator.garder ? "coche cette case" : "décoche cette case");
    if (!e.ecran.locator.valider)
        return;
    p.Dire(kPointVirgule).Dire("Valider ");
    DireLocatorPris(p, e, true);
}

void DireOption(Phrase& p, Essai e, bool tempsReel) {
    ChoisirTempsReel(e.carte, e.ecran, e.station, tempsReel);
    const bool change = tempsReel != e.carteAvant.saisie.tempsReel;
    p.Dire(change ? "passe en " : "reste en ").Dire(tempsReel ? "Réel" : "Différé");
    DirePuis(p, e);
}

// What of the contact goes when its card is begun anew; what the clock gave it gives again.
void DireAnnuler(Phrase& p, Essai e, NumeroFiche fiche) {
    constexpr std::size_t kCites = 4;
    e.Suivre(PreparerSaisie(e.carteAvant, e.station, fiche));
    std::vector<std::string_view> perdus;
    for (const DescriptionBoite& d : kBoites) {
        const std::string& avant = e.carteAvant.zones[d.boite];
        if (!avant.empty() && avant != e.carte.zones[d.boite] && !Donnee(e.carteAvant, d.boite))
            perdus.push_back(avant);
    }
    // More than that are counted, two of them at least.
    const std::size_t cites = perdus.size() > kCites ? kCites - 1 : perdus.size();
    for (std::size_t i = 0; i < cites; ++i)
        p.Dire(i == 0 ? "oublie " : ", ").Citer(perdus[i]);
    if (perdus.size() > cites)
        p.Dire(" et " + std::to_string(perdus.size() - cites) + " autres cases");
    p.Dire(perdus.empty() ? std::string_view{} : kPointVirgule)
        .Dire("recommence la fiche " + std::to_string(fiche.Valeur()));
    DirePuis(p, e);
}

void DireEtiquette(Phrase& p, Essai e, EtatFeuille feuille) {
    const bool visible = feuille.vue.valider;
    const Foyer& ici = e.avant.foyer.ici;
    if (ici.cible == Cible::BoiteEtiquette) {
        EntrerEtiquette(feuille, e.carte, e.ecran, e.station, static_cast<std::size_t>(ici.numero));
    } else {
        const bool direct = ici.cible == Cible::VoieDirecte;
        EntrerVoie(feuille, e.carte, e.ecran, e.station,
                   direct ? VoieQSL::Direct : VoieQSL::Bureau);
        p.Dire(direct ? "choisit Direct" : "choisit Via bureau");
    }
    if (!visible && feuille.vue.valider)
        p.Dire(p.texte.empty() ? "montre Valider" : ", montre Valider");
    else if (p.texte.empty() && e.Reste()) {
        p.Dire("ne fait rien");
        return;
    } else if (p.texte.empty())
        p.Dire("passe à la suite");
    DirePuis(p, e);
}

void DireValider(Phrase& p, const Cahier& cahier, EtatFeuille feuille) {
    const std::string indicatif{Rogner(feuille.boites[kBoiteIndicatif])};
    const auto [place, refus] = ProjeterEtiquette(cahier, feuille);
    if (place == kAucunePlace)
        p.Dire("ne place rien").Dire(kDeuxPoints).Dire(Rogner(refus));
    else
        p.Dire("place l'étiquette de ")
            .Citer(indicatif)
            .Dire(" en place " + std::to_string(place.Valeur()));
}

} // namespace

Phrase DireEntree(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    Phrase p;
    // Only where a rule runs is the state copied: this is asked at every paint.
    const auto essai = [&] { return Essai{session, ecran}; };
    switch (ecran.foyer.ici.cible) {
    case Cible::Boite:
        DireBoite(p, essai(), static_cast<Boite>(ecran.foyer.ici.numero));
        break;
    case Cible::Suivant:
        DireFin(p, session, ecran, FinDeSaisie::Suivant);
        break;
    case Cible::Terminer:
        DireFin(p, session, ecran, FinDeSaisie::Terminer);
        break;
    case Cible::Annuler:
        DireAnnuler(p, essai(), session.cahier.Prochaine());
        break;
    case Cible::OptionReel:
    case Cible::OptionDiffere:
        DireOption(p, essai(), ecran.foyer.ici.cible == Cible::OptionReel);
        break;
    case Cible::Oui:
        DireReponse(p, session.carte, true);
        break;
    case Cible::Non:
        DireReponse(p, session.carte, false);
        break;
    case Cible::Recherche:
        DireRecherche(p, essai());
        break;
    case Cible::TexteLocator:
        DireLocator(p, essai());
        break;
    case Cible::ValiderLocator:
        DireFinLocator(p, essai(), true);
        break;
    case Cible::AnnulerLocator:
        DireFinLocator(p, essai(), false);
        break;
    case Cible::GarderLocator:
        DireGarder(p, essai());
        break;
    case Cible::BoiteEtiquette:
    case Cible::VoieBureau:
    case Cible::VoieDirecte:
        DireEtiquette(p, essai(), feuille);
        break;
    case Cible::ValiderEtiquette:
        DireValider(p, session.cahier, feuille);
        break;
    default:
        break;
    }
    return p;
}

Phrase DireTerminer(const Session& session, const Ecran& ecran) {
    Phrase p;
    DireFin(p, session, ecran, FinDeSaisie::Terminer);
    return p;
}

} // namespace orvalis
