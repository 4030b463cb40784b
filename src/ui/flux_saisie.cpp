#include "ui/flux_saisie.h"

#include "core/carte.h"
#include "core/commandes.h"
#include "core/fiches.h"
#include "core/saisie.h"
#include "ui/chang_locator.h"
#include "ui/effets.h"
#include "ui/feuille_log.h"
#include "ui/flux_modification.h"
#include "ui/flux_navigation.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"
#include "ui/systeme.h"

namespace orvalis {
namespace {

// `PreparerSaisie`: the blank card of record N + 1.
void OuvrirFicheVierge(Plateau& p) {
    LacherFoyer();
    p.rech.hide();
    Cacher(p.contacts);
    p.changLocator.hide();
    p.jumelage.hide();
    p.enrs.ActiverAnnuler(false);
    p.enrs.ArmerSuivant(false);
    p.liste.setEnabled(true);
    RelireCahier(p);
    p.liste.setEnabled(false);
    p.enrs.show();
    p.fiche.MontrerNumero(NumeroNouvelleFiche(p.session.prochaineFiche));
    p.fiche.MontrerNonEnregistre(true);
    p.fiche.MontrerActiveRech(false);
    p.page.Marquer(0);
    AppliquerReponse(p, PreparerSaisie(p.session));
}

// Returns false when the card must stay as it is: a contact without a callsign.
bool Enregistrer(Plateau& p, FinDeSaisie fin) {
    LacherFoyer(); // text without Enter is not stored, that of the box in hand neither
    const ContactFini contact =
        FinirContact(p.session, fin, p.enrs.SuivantArme(),
                     p.fiche.TexteBoite(NumeroZone(Champ::MLOC)), p.systeme.Maintenant());
    if (contact.verdict == Verdict::IndicatifManquant) {
        p.enrs.ActiverAnnuler(true); // the way out for who has no callsign to give
        DonnerFoyer(p, 1);
        return false;
    }
    if (contact.verdict == Verdict::Enregistrer) {
        p.session.zones = contact.zones;
        AjouterFiche(p.session, contact.fin);
    }
    return true;
}

} // namespace

void NouveauQso(Plateau& p) {
    if (!CommandePermise(Commande::BtNewQSO, p.session))
        return;
    AbandonnerModification(p);
    LacherFoyer();
    p.menu.hide();
    p.session.saisie.EnSaisie = true;
    OuvrirFicheVierge(p);
}

void EnregistrerEtSuivre(Plateau& p) {
    if (Enregistrer(p, FinDeSaisie::Suivant))
        OuvrirFicheVierge(p);
}

void EnregistrerEtTerminer(Plateau& p) {
    if (!Enregistrer(p, FinDeSaisie::Terminer))
        return;
    p.session.saisie.EnSaisie = false;
    p.enrs.hide();
    Cacher(p.contacts);
    p.changLocator.hide();
    p.fiche.MontrerNonEnregistre(false);
    p.menu.show();
    p.liste.setEnabled(true);
    RelireCahier(p);
    p.rech.setVisible(p.session.nbFiches != 0);
    p.liste.DonnerFoyer();
}

void AnnulerSaisie(Plateau& p) {
    OuvrirFicheVierge(p);
}

void ChoisirOption(Plateau& p, bool tempsReel) {
    p.session.saisie.tempsReel = tempsReel;
    DonnerFoyer(p, 1);
}

void SurEntree(Plateau& p, std::size_t boite) {
    AppliquerReponse(p, ValiderBoite(p.session, boite, p.systeme.Maintenant()));
}

void SurFocusPris(Plateau& p, std::size_t boite) {
    AppliquerReponse(p, PrendreFoyer(p.session, boite));
    // On a stored card the box left behind has just shown its slot again, and that text must not
    // be taken for this box's.
    if (!p.session.saisie.EnSaisie)
        p.session.saisie.TexteSaisi = p.fiche.TexteBoite(boite);
}

void SurFocusPerdu(Plateau& p, std::size_t boite) {
    AppliquerReponse(p, QuitterFoyer(p.session, boite));
}

void SurPression(Plateau& p, std::size_t boite) {
    AppliquerReponse(p, PresserBoite(p.session, boite, p.fiche.TexteBoite(boite)));
    p.session.saisie.TexteSaisi.clear();
}

void SurChangement(Plateau& p, std::string texte) {
    p.session.saisie.TexteSaisi = std::move(texte);
}

} // namespace orvalis
