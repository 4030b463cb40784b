#include "ui/flux/conduite.h"

#include "ui/bureau/systeme.h"
#include "ui/carte/foyer.h"

#include <utility>

namespace orvalis {

void AppliquerReponse(Plateau& p, Reponse reponse) {
    const std::optional<Boite> enErreur = reponse.effets.enErreur;
    Session& s = p.session;
    Appliquer(s.carte, p.ecran, s.station, std::move(reponse));
    if (!enErreur)
        return;
    MontrerTexte(s.carte, *enErreur, kErreur);
    if (!AttendreErreur(p, SurBoite(*enErreur)))
        return;
    MontrerTexte(s.carte, *enErreur, {});
    DonnerFoyer(p, SurBoite(*enErreur));
}

void DonnerFoyer(Plateau& p, const Foyer& cible) {
    DeplacerFoyer(p.session.carte, p.ecran, p.session.station, cible);
}

void LacherFoyer(Plateau& p) {
    LacherFoyer(p.session.carte, p.ecran);
}

void RetrouverFoyer(Plateau& p) {
    const EtatSaisie& saisie = p.session.carte.saisie;
    if (p.ecran.foyer.ici != Foyer{})
        return;
    if (saisie.EnSaisie)
        DonnerFoyer(p, p.ecran.suivantArme ? Foyer{Cible::Suivant} : SurBoite(saisie.DerniereZone));
    else
        DonnerFoyer(p, {p.ecran.question ? Cible::Non : Cible::Liste});
}

Gel::Gel(Ecran& ecran) : ecran_(ecran), avant_(std::exchange(ecran.gel, true)) {}

Gel::~Gel() {
    ecran_.gel = avant_;
}

bool AttendreErreur(Plateau& p, const Foyer& ou) {
    const Gel gel(p.ecran);
    p.ecran.enErreur = ou;
    p.systeme.Pause(1);
    p.ecran.enErreur.reset();
    return !p.ecran.arret;
}

} // namespace orvalis
