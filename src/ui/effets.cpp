#include "ui/effets.h"

#include "core/commandes.h"
#include "core/modification.h"
#include "qsl/feuille_qsl.h"
#include "ui/chang_locator.h"
#include "ui/flux_locator.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_liste.h"
#include "ui/panneau_menu.h"
#include "ui/systeme.h"

#include <QApplication>

namespace orvalis {
namespace {

void MontrerLabels(Plateau& p, const Reponse& reponse) {
    if (reponse.labDist)
        p.fiche.MontrerDistance(*reponse.labDist);
    if (reponse.labAzim)
        p.fiche.MontrerAzimut(*reponse.labAzim);
    if (reponse.labDept)
        p.fiche.MontrerDepartement(*reponse.labDept);
}

void SignalerErreur(Plateau& p, std::size_t boite) {
    p.fiche.MontrerBoite(boite, "ERREUR");
    {
        const Gel gel(p);
        p.systeme.Pause(1);
    }
    if (p.arret)
        return;
    p.fiche.MontrerBoite(boite, "");
    DonnerFoyer(p, boite);
}

} // namespace

void AppliquerReponse(Plateau& p, const Reponse& reponse) {
    Appliquer(p.session, reponse);
    for (const TexteDeBoite& t : reponse.textes)
        p.fiche.MontrerBoite(t.boite, t.texte);
    for (const CouleurDeBoite& c : reponse.couleurs)
        ColorerZone(p.fiche, c.boite, c.couleur);
    MontrerLabels(p, reponse);
    if (reponse.montrerActiveRech)
        p.fiche.MontrerActiveRech(true);
    if (reponse.activerAnnuler)
        p.enrs.ActiverAnnuler(true);
    if (reponse.activerSuivant)
        p.enrs.ArmerSuivant(true);
    if (reponse.montrerCadre) {
        const TextesCadre cadre = CadreModifier(p.session);
        p.msgFiche.Demander(cadre.legende, cadre.numero, cadre.indicatif);
    }
    if (reponse.ouvrirLocator)
        OuvrirChangLocator(p);
    if (reponse.selection != 0)
        p.fiche.Boite(reponse.selection).selectAll();
    if (reponse.foyer == kFoyerSuivant)
        p.enrs.DonnerFoyerSuivant();
    else if (reponse.foyer != kFoyerInchange)
        DonnerFoyer(p, reponse.foyer);
    if (reponse.boiteEnErreur != 0)
        SignalerErreur(p, reponse.boiteEnErreur);
}

void DonnerFoyer(Plateau& p, std::size_t index) {
    p.fiche.Boite(index).setFocus();
}

void LacherFoyer() {
    if (QWidget* foyer = QApplication::focusWidget())
        foyer->clearFocus();
}

void Cacher(QWidget& panneau) {
    QWidget* foyer = QApplication::focusWidget();
    if (foyer != nullptr && panneau.isAncestorOf(foyer))
        foyer->clearFocus();
    panneau.hide();
}

void RendreListe(Plateau& p) {
    p.liste.setEnabled(!p.jumelage.isVisible() && !p.feuille.vue.panneau);
}

void ReactiverBoutons(Plateau& p) {
    if (!p.contacts.isHidden())
        return;
    p.menu.ActiverNouveau(CommandePermise(Commande::BtNewQSO, p.session));
    p.menu.ActiverFermer(true);
    p.menu.ActiverSupprimer(CommandePermise(Commande::BtKillFiche, p.session));
}

Gel::Gel(Plateau& p) : p_(p), avant_(p.gel) {
    p_.gel = true;
    p_.actualiserMenus();
}

Gel::~Gel() {
    p_.gel = avant_;
}

Sablier::Sablier() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}
Sablier::~Sablier() {
    QGuiApplication::restoreOverrideCursor();
}

} // namespace orvalis
