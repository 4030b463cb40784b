#include "ui/flux/flux_saisie.h"

#include "ui/bureau/systeme.h"
#include "ui/carte/conditions.h"
#include "ui/carte/conseil.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/carte/foyer.h"
#include "ui/carte/saisie.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

#include <exception>
#include <utility>

namespace orvalis {
namespace {

// `PreparerSaisie`: the blank card of record N + 1.
void OuvrirFicheVierge(Plateau& p) {
    LacherFoyer(p);
    Ecran& e = p.ecran;
    e.recherche.montre = false;
    e.contacts.montree = false;
    e.locator.montre = false;
    e.jumelage.montre = false;
    e.annulerActif = false;
    e.suivantArme = false;
    RelireCahier(p);
    e.liste.active = false;
    e.liste.marquee = kAucuneFiche;
    e.activeRech = false;
    e.dejaContacte.clear();
    AppliquerReponse(
        p, PreparerSaisie(p.session.carte, p.session.station, p.session.cahier.Prochaine()));
}

// Returns false when the card must stay as it is: a contact without a callsign.
bool Enregistrer(Plateau& p, FinDeSaisie fin) {
    LacherFoyer(p); // text without Enter is not stored, that of the box in hand neither
    Session& s = p.session;
    const ContactFini contact =
        FinirContact(s.carte, s.station, fin, p.ecran.suivantArme, p.systeme.Maintenant());
    if (contact.verdict == Verdict::IndicatifManquant) {
        p.ecran.annulerActif = true; // the way out for who has no callsign to give
        DonnerFoyer(p, SurBoite(Boite::Indicatif));
        return false;
    }
    if (contact.verdict == Verdict::Enregistrer) {
        // What ends the program names the contact as it would have been stored.
        const Zones surLaCarte = std::exchange(s.carte.zones, contact.zones);
        try {
            AjouterFiche(s.cahier, FicheDesZones(contact.zones), contact.fin);
        } catch (const CahierPerdu&) {
            s.carte.zones = surLaCarte; // nothing ends: entry goes on
            throw;
        }
        s.carte.tampon = contact.fin;
        s.carte.saisie.QsoCommence = false; // what fails from here on does not lose it
        Annoncer(p.ecran, "Contact " + std::to_string(s.cahier.nbFiches) + " enregistré" +
                              std::string{kDeuxPoints} + contact.zones[Boite::Indicatif]);
        RegarderSauvegardes(p);
    }
    return true;
}

} // namespace

void NouveauQso(Plateau& p) {
    VerifierCahier(p.session.cahier); // before a contact is typed that could not be stored
    AbandonnerModification(p);
    LacherFoyer(p);
    p.session.carte.saisie.EnSaisie = true;
    OuvrirFicheVierge(p);
}

void EnregistrerEtSuivre(Plateau& p) {
    if (Enregistrer(p, FinDeSaisie::Suivant))
        OuvrirFicheVierge(p);
}

void EnregistrerEtTerminer(Plateau& p) {
    if (!Enregistrer(p, FinDeSaisie::Terminer))
        return;
    p.session.carte.saisie.EnSaisie = false;
    p.ecran.contacts.montree = false;
    p.ecran.locator.montre = false;
    p.ecran.liste.active = true;
    RelireCahier(p);
    p.ecran.recherche.montre = p.session.cahier.nbFiches != 0;
    DonnerFoyer(p, {Cible::Liste});
}

void AnnulerSaisie(Plateau& p) {
    OuvrirFicheVierge(p);
}

void ChoisirOption(Plateau& p, bool tempsReel) {
    ChoisirTempsReel(p.session.carte, p.ecran, p.session.station, tempsReel);
}

void SurEntree(Plateau& p, Boite boite) {
    const Session& s = p.session;
    AppliquerReponse(p, ValiderBoite(s.carte, s.station, boite, p.systeme.Maintenant()));
    const std::string& indicatif = s.carte.zones[Boite::Indicatif];
    if (boite != Boite::Indicatif || !s.carte.saisie.EnSaisie || indicatif.empty())
        return;
    p.ecran.dejaContacte.clear();
    try {
        p.ecran.dejaContacte = DireDejaContacte(ChercherStation(s.cahier, indicatif));
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch)
        // A mere advice: who stores the contact says that the logbook is gone, entry goes on.
    }
}

void SurPression(Plateau& p, Boite boite) {
    const unsigned remplies = ConditionsRemplies(p.session, p.ecran, p.feuille);
    AppliquerReponse(p, PresserBoite(p.session.carte, boite, Permis(kPourModifier, remplies)));
}

void SurChangement(Plateau& p, Boite boite, std::string_view texte) {
    p.ecran.annonce.texte.clear(); // typing is no move of the focus
    SaisirTexte(p.session.carte, boite, texte);
}

void SurFoyer(Plateau& p, const Foyer& ici) {
    SuivreFoyer(p.session.carte, p.ecran, p.session.station, ici);
}

} // namespace orvalis
