#include "ui/flux/flux_locator.h"

#include "core/erreurs.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/carte/foyer.h"
#include "ui/flux/conduite.h"

namespace orvalis {
void ChangerDeLocator(Plateau& p) {
    p.ecran.activeRech = false;
    p.ecran.contacts.montree = false;
    OuvrirChangLocator(p.session.carte, p.ecran, p.session.station);
}

void SurTexteLocator(Plateau& p, std::string_view texte) {
    SaisirTexteLocator(p.session.carte, p.ecran, texte);
}

void SurEntreeLocator(Plateau& p) {
    Session& s = p.session;
    if (EntrerLocator(s.carte, p.ecran, s.station) != VerdictLocator::Refuse ||
        !AttendreErreur(p, {Cible::TexteLocator}))
        return;
    DonnerFoyer(p, {Cible::TexteLocator});
    MontrerTexteLocator(s.carte, p.ecran, {});
}

void GarderLocator(Plateau& p, bool garder) {
    GarderLocator(p.ecran, garder);
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
    FermerChangLocator(p.session.carte, p.ecran, p.session.station);
}

void AnnulerLocator(Plateau& p) {
    p.ecran.locator.texte.clear();
    FermerChangLocator(p.session.carte, p.ecran, p.session.station);
}

} // namespace orvalis
