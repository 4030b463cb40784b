#include "ui/flux/flux_locator.h"

#include "core/erreurs.h"
#include "core/texte.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/foyer.h"
#include "ui/carte/locator_station.h"
#include "ui/flux/conduite.h"

namespace orvalis {
namespace {

// By key, a box that has the focus keeps it with its text.
void FermerChangLocator(Plateau& p) {
    Session& s = p.session;
    const bool dansUneBoite = BoiteDuFoyer(p.ecran.foyer.ici).has_value();
    const std::string saisi = s.carte.saisie.TexteSaisi;
    if (!dansUneBoite)
        LacherFoyer(p);
    p.ecran.locator.montre = false;
    p.ecran.activeRech |= !s.carte.Texte(Boite::Indicatif).empty();
    MontrerTexte(s.carte, Boite::MonLocator, Rogner(s.station.monLocator));
    if (dansUneBoite)
        s.carte.saisie.TexteSaisi = saisi;
    else
        DonnerFoyer(p, SurBoite(s.carte.saisie.DerniereZone));
}

} // namespace

void ChangerDeLocator(Plateau& p) {
    p.ecran.activeRech = false;
    p.ecran.contacts.montree = false;
    OuvrirChangLocator(p.session.carte, p.ecran, p.session.station);
}

void SurTexteLocator(Plateau& p, std::string_view texte) {
    SaisirTexteLocator(p.session.carte, p.ecran, texte);
}

void SurEntreeLocator(Plateau& p) {
    switch (JugerLocatorStation(p.ecran.locator.texte)) {
    case VerdictLocator::Rien:
        break;
    case VerdictLocator::Accepte:
        p.ecran.locator.valider = true;
        DonnerFoyer(p, {Cible::ValiderLocator});
        break;
    case VerdictLocator::Refuse:
        MontrerTexteLocator(p.session.carte, p.ecran, kErreur);
        p.ecran.foyer.selection = Foyer{Cible::TexteLocator};
        if (!AttendreErreur(p, {Cible::TexteLocator}))
            break;
        DonnerFoyer(p, {Cible::TexteLocator});
        MontrerTexteLocator(p.session.carte, p.ecran, {});
        break;
    }
}

void GarderLocator(Plateau& p, bool garder) {
    p.ecran.locator.garder = garder;
}

void ValiderLocator(Plateau& p) {
    const PanneauLocator& locator = p.ecran.locator;
    try {
        ChangerLocatorStation(p.session.station, p.session.carte, locator.texte, locator.garder);
    } catch (const std::exception& echec) {
        // The contact under entry is worth more than the Settings file: told, and nothing changed.
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
        return;
    }
    FermerChangLocator(p);
}

void AnnulerLocator(Plateau& p) {
    p.ecran.locator.texte.clear();
    FermerChangLocator(p);
}

} // namespace orvalis
