// What Enter does now, found out by running its rule on a copy of the state.
#include "core/texte.h"
#include "qsl/vie_etiquette.h"
#include "ui/carte/conseil.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/carte/foyer.h"
#include "ui/carte/modification.h"
#include "ui/carte/saisie.h"

#include <utility>

namespace orvalis {
namespace {

// As the boxes of the label editor are called on the screen.
constexpr std::array<std::string_view, kNbBoitesEtiquette + 1> kBoitesEtiquette = {
    "",          "Indicatif", "Date",     "UTC",         "Fréquence", "Mode",
    "RST donné", "En-tête",   "Remarque", "QSL manager", "Contact",   "Fiche N°"};

std::string_view Nom(const Foyer& foyer) {
    switch (foyer.cible) {
    case Cible::Boite:
        return Decrire(static_cast<Boite>(foyer.numero)).nom;
    case Cible::BoiteEtiquette:
        return kBoitesEtiquette.at(static_cast<std::size_t>(foyer.numero));
    case Cible::Liste:
        return "la liste";
    case Cible::Suivant:
        return "Suivant";
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

// The present state, and a copy of it to run a rule on.
struct Essai {
    const Session& session;
    const Ecran& avant;
    const Carte& carteAvant = session.carte;
    const Station& station = session.station;
    Ecran ecran = avant;
    Carte carte = carteAvant;
    std::optional<Boite> enErreur = std::nullopt;
    bool question = false;

    void Suivre(Reponse reponse) {
        enErreur = reponse.effets.enErreur;
        question = reponse.effets.poserQuestion;
        Appliquer(carte, ecran, station, std::move(reponse));
    }
    [[nodiscard]] Instant Maintenant() const { return avant.heure.value_or(Instant{}); }
    [[nodiscard]] bool Reste() const { return ecran.foyer.ici == avant.foyer.ici; }
};

void DirePuis(Phrase& p, const Essai& e) {
    if (e.Reste())
        p.Dire(" et reste ici");
    else
        p.Dire(", puis ").Dire(Nom(e.ecran.foyer.ici));
}

// What Enter would do with a text of the form that the box wants; with it the rule itself tells
// whether the form is what it lacks.
Reponse AvecModele(const Essai& e, Boite boite, bool tempsReel) {
    Carte carte = e.carteAvant;
    carte.zones[boite].clear();
    carte.saisie.tempsReel = tempsReel;
    carte.saisie.TexteSaisi = Decrire(boite).modele;
    return ValiderBoite(carte, e.station, boite, e.Maintenant());
}

// Why Enter stays, and what it needs to go on.
void DireBesoin(Phrase& p, const Essai& e, Boite boite) {
    const DescriptionBoite& d = Decrire(boite);
    const bool reel = e.carteAvant.saisie.tempsReel;
    const auto prend = [&](bool tempsReel) {
        return AvecModele(e, boite, tempsReel).carte.zones[boite] == d.modele;
    };
    if (!d.modele.empty() && !prend(reel)) {
        if (prend(!reel))
            p.Dire(kPointVirgule).Dire("en temps réel l'horloge la remplit");
        else if (PresserBoite(e.carteAvant, boite, false).effets.ouvrirLocator)
            p.Dire(kPointVirgule).Dire("F2 ou un clic change de locator");
        return;
    }
    if (d.faut.empty())
        return;
    const bool oublie =
        !e.carte.Texte(boite).empty() && Rogner(e.carteAvant.saisie.TexteSaisi).empty();
    p.Dire(kPointVirgule).Dire(oublie ? "il faut retaper " : "il faut ").Dire(d.faut);
}

void DirePrend(Phrase& p, Boite boite) {
    if (const std::string_view prend = Decrire(boite).prend; !prend.empty())
        p.Dire(" (").Dire(prend).Dire(")");
}

void DireSaisie(Phrase& p, const Essai& e, Boite boite) {
    const std::string& ancienne = e.carteAvant.zones[boite];
    const std::string& zone = e.carte.zones[boite];
    const std::string_view montre = Rogner(e.carteAvant.Texte(boite));
    if (e.Reste() && zone == ancienne && e.carte.Texte(boite) == e.carteAvant.Texte(boite)) {
        p.Dire("reste ici");
        DireBesoin(p, e, boite);
        return DirePrend(p, boite);
    }
    if (zone.empty())
        p.Dire(montre.empty() && ancienne.empty() ? "laisse cette case vide" : "vide cette case");
    else
        p.Dire(zone == montre ? "garde " : "prend ").Citer(zone);
    DirePrend(p, boite); // here, lest it seem to be said of the next box
    DirePuis(p, e);
    // A text that the rule takes as it is and stays: there is more of it to come.
    if (e.Reste() && (zone.empty() || zone == montre))
        DireBesoin(p, e, boite);
}

void DireDifference(Phrase& p, std::string_view ancien, std::string_view nouveau) {
    if (nouveau.empty())
        p.Citer(ancien).Dire(" est effacé");
    else if (ancien.empty())
        p.Citer(nouveau).Dire(" est ajouté");
    else
        p.Citer(ancien).Dire(" devient ").Citer(nouveau);
}

// What the record would hold that it does not hold now, box by box.
void DireChangements(Phrase& p, const Carte& carte) {
    const Zones ancienne = ZonesDeFiche(carte.tampon);
    const Zones nouvelle = ZonesDeFiche(FicheDesZones(carte.zones));
    bool premier = true;
    for (const DescriptionBoite& d : kBoites) {
        if (ancienne[d.boite] == nouvelle[d.boite])
            continue;
        p.Dire(premier ? kDeuxPoints : std::string_view{", "}).Dire(d.nom).Dire(" ");
        DireDifference(p, ancienne[d.boite], nouvelle[d.boite]);
        premier = false;
    }
    if (premier)
        p.Dire(" la fiche, inchangée");
}

void DireCorrection(Phrase& p, const Essai& e, Boite boite) {
    const std::string& montre = e.carte.Texte(boite);
    if (e.question) {
        p.Dire("demande s'il faut enregistrer");
        return DireChangements(p, e.carte);
    }
    if (!e.carteAvant.saisie.EnModification) {
        p.Dire("ne fait rien").Dire(kPointVirgule);
        p.Dire("la question attend Oui (Alt+O) ou Non (Alt+N)");
        return;
    }
    const bool reste = e.carte.saisie.EnModification;
    if (montre == e.carteAvant.Texte(boite))
        p.Dire(reste ? "reste ici" : "ne change rien");
    else if (montre.empty())
        p.Dire("efface ").Citer(e.carteAvant.Texte(boite)).Dire(reste ? " et reste ici" : "");
    else
        p.Dire("remet ").Citer(montre).Dire(reste ? " et reste ici" : "");
    if (!reste)
        p.Dire(" et termine la correction");
    DireBesoin(p, e, boite);
}

void DireBoite(Phrase& p, Essai e, Boite boite) {
    if (!e.carteAvant.EnEdition())
        return;
    e.Suivre(ValiderBoite(e.carteAvant, e.station, boite, e.Maintenant()));
    const bool saisie = e.carteAvant.saisie.EnSaisie;
    if (e.enErreur) {
        p.Dire("affiche ERREUR ").Dire(saisie ? "et vide cette case" : "et ne change rien");
        DireBesoin(p, e, boite);
    } else if (saisie) {
        DireSaisie(p, e, boite);
    } else {
        DireCorrection(p, e, boite);
        DirePrend(p, boite);
    }
}

// Whether the card under entry holds more than a callsign and what the clock and the station give.
bool PlusQueLIndicatif(const Carte& carte) {
    for (const DescriptionBoite& d : kBoites) {
        const bool donnee =
            carte.saisie.tempsReel && (d.boite == Boite::Date || d.boite == Boite::Debut);
        if (d.boite != Boite::Indicatif && d.boite != Boite::MonLocator && !donnee &&
            !carte.zones[d.boite].empty())
            return true;
    }
    return false;
}

void DireAbandon(Phrase& p, const Carte& carte) {
    const bool plus = PlusQueLIndicatif(carte);
    if (!carte.saisie.QsoCommence && !plus) {
        p.Dire("n'enregistre rien").Dire(kPointVirgule).Dire("la fiche est vierge");
        return;
    }
    p.Dire("abandonne ce contact").Dire(kDeuxPoints);
    p.Dire(!carte.saisie.QsoCommence ? "indicatif pas encore validé"
           : plus                    ? "RST reçu pas encore validé"
                                     : "indicatif seul");
}

void DireFin(Phrase& p, const Essai& e, FinDeSaisie fin) {
    const ContactFini contact =
        FinirContact(e.carteAvant, e.station, fin, e.avant.suivantArme, e.Maintenant());
    switch (contact.verdict) {
    case Verdict::Enregistrer:
        p.Dire("enregistre le contact " + std::to_string(e.session.cahier.Prochaine().Valeur()));
        if (const auto jointe = ChercherInfoJointe(e.carteAvant)) {
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
        DireAbandon(p, e.carteAvant);
        break;
    }
}

void DireReponse(Phrase& p, const Essai& e, bool oui) {
    const std::string fiche = "la fiche " + std::to_string(e.carteAvant.ficheCourante.Valeur());
    if (DemandeEffacement(e.carteAvant)) {
        p.Dire(oui ? "supprime " : "garde ").Dire(fiche);
    } else if (oui) {
        p.Dire("enregistre");
        DireChangements(p, e.carteAvant);
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

void DireFinLocator(Phrase& p, Essai e, bool valider) {
    Station station = e.station;
    if (valider) // not into the Settings file: this is a trial
        ChangerLocatorStation(station, e.carte, e.avant.locator.texte, false);
    FermerChangLocator(e.carte, e.ecran, station);
    const bool change = station.monLocator != e.station.monLocator;
    p.Dire(change ? "prend " : "garde ").Citer(station.monLocator).Dire(" pour locator");
    if (valider && e.avant.locator.garder)
        p.Dire(", au prochain lancement aussi");
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
    else if (p.texte.empty())
        p.Dire(e.Reste() ? "ne fait rien" : "passe à la suite");
    DirePuis(p, e);
}

void DireValider(Phrase& p, const Essai& e, EtatFeuille feuille) {
    const std::string indicatif{Rogner(feuille.boites[kBoiteIndicatif])};
    const auto [place, refus] = ProjeterEtiquette(e.session.cahier, feuille);
    if (place == kAucunePlace)
        p.Dire("ne place rien").Dire(kDeuxPoints).Dire(Rogner(refus));
    else
        p.Dire("place l'étiquette de ")
            .Citer(indicatif)
            .Dire(" en " + std::to_string(place.Valeur()));
}

} // namespace

Phrase DireEntree(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    Phrase p;
    const Essai e{session, ecran};
    switch (ecran.foyer.ici.cible) {
    case Cible::Boite:
        DireBoite(p, e, static_cast<Boite>(ecran.foyer.ici.numero));
        break;
    case Cible::Suivant:
        DireFin(p, e, FinDeSaisie::Suivant);
        break;
    case Cible::Terminer:
        DireFin(p, e, FinDeSaisie::Terminer);
        break;
    case Cible::Oui:
        DireReponse(p, e, true);
        break;
    case Cible::Non:
        DireReponse(p, e, false);
        break;
    case Cible::Recherche:
        DireRecherche(p, e);
        break;
    case Cible::TexteLocator:
        DireLocator(p, e);
        break;
    case Cible::ValiderLocator:
        DireFinLocator(p, e, true);
        break;
    case Cible::AnnulerLocator:
        DireFinLocator(p, e, false);
        break;
    case Cible::BoiteEtiquette:
    case Cible::VoieBureau:
    case Cible::VoieDirecte:
        DireEtiquette(p, e, feuille);
        break;
    case Cible::ValiderEtiquette:
        DireValider(p, e, feuille);
        break;
    default:
        break;
    }
    return p;
}

Phrase DireTerminer(const Session& session, const Ecran& ecran) {
    Phrase p;
    DireFin(p, Essai{session, ecran}, FinDeSaisie::Terminer);
    return p;
}

} // namespace orvalis
