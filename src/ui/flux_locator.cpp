#include "ui/flux_locator.h"

#include "core/commandes.h"
#include "core/locator_station.h"
#include "core/messages.h"
#include "core/texte.h"
#include "ui/chang_locator.h"
#include "ui/effets.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_fiche.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QMainWindow>

namespace orvalis {
namespace {

void FermerChangLocator(Plateau& p) {
    LacherFoyer();
    p.changLocator.hide();
    if (!p.fiche.TexteBoite(1).empty())
        p.fiche.MontrerActiveRech(true);
    p.fiche.MontrerBoite(NumeroZone(Champ::MLOC), Rogner(p.session.monLocator));
    DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
}

} // namespace

void ChangerDeLocator(Plateau& p) {
    if (!CommandePermise(Commande::MnuChangerLocator, p.session))
        return;
    p.fiche.MontrerActiveRech(false);
    Cacher(p.contacts);
    OuvrirChangLocator(p);
}

void OuvrirChangLocator(Plateau& p) {
    p.changLocator.Ouvrir();
}

void SurFoyerLocator(Plateau& p) {
    p.changLocator.Montrer(p.session.monLocator);
}

void SurTexteLocator(Plateau& p) {
    p.session.saisie.TexteSaisi = p.changLocator.Texte();
    p.changLocator.MontrerValider(false);
}

void SurEntreeLocator(Plateau& p) {
    switch (ControlerLocatorStation(p.changLocator.Texte())) {
    case VerdictLocator::Rien:
        break;
    case VerdictLocator::Accepte:
        p.changLocator.MontrerValider(true);
        p.changLocator.DonnerFoyerValider();
        break;
    case VerdictLocator::Refuse:
        p.changLocator.Montrer("ERREUR");
        {
            const Gel gel(p);
            p.systeme.Pause(1);
        }
        if (p.arret)
            break;
        p.changLocator.DonnerFoyerTexte();
        p.changLocator.Montrer("");
        break;
    }
}

void ValiderLocator(Plateau& p) {
    try {
        ChangerLocatorStation(p.session, p.changLocator.Texte(), p.changLocator.Garder());
    } catch (const std::exception& echec) {
        // The contact under entry is worth more than the Settings file: told, and nothing changed.
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
        return;
    }
    FermerChangLocator(p);
}

void AnnulerLocator(Plateau& p) {
    p.changLocator.Montrer("");
    FermerChangLocator(p);
}

} // namespace orvalis
