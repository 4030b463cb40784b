#include "ui/flux_modification.h"

#include "core/commandes.h"
#include "core/fiches.h"
#include "core/modification.h"
#include "ui/effets.h"
#include "ui/flux_navigation.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"

namespace orvalis {
namespace {

void Supprimer(Plateau& p) {
    Session& s = p.session;
    const std::int32_t page = CalculerPages(s.ficheCourante);
    SupprimerFiche(s, s.ficheCourante);
    Cacher(p.contacts); // its numbers no longer hold
    RelireCahier(p, page);
    p.rech.setVisible(s.nbFiches != 0);
}

void EnregistrerModification(Plateau& p) {
    Session& s = p.session;
    const std::int32_t k = s.ficheCourante;
    EcrireFiche(s, k);
    s.journal.Support().Synchroniser();
    if (const int ligne = LigneDeFiche(p, k); ligne >= 0) {
        MontrerPage(p, s.pageAffichee);
        p.liste.Selectionner(ligne);
    }
    AppliquerReponse(p, RepondreOui(s));
    AfficherFiche(p);
}

} // namespace

void AbandonnerModification(Plateau& p) {
    OublierModifications(p.session.saisie);
    p.msgFiche.hide();
    p.menu.setEnabled(true);
    for (std::size_t i = 1; i <= kNbBoites; ++i)
        ColorerZone(p.fiche, i, CouleurAuRepos(i));
    ReactiverBoutons(p);
}

void DemanderSuppression(Plateau& p) {
    const Session& s = p.session;
    if (!CommandePermise(Commande::BtKillFiche, s) || s.ficheCourante < 1 ||
        s.ficheCourante > s.nbFiches)
        return;
    if (s.saisie.EnModification || s.saisie.NbModifs != 0)
        ChoisirFiche(p, s.ficheCourante);
    const TextesCadre cadre = CadreEffacer(s);
    p.msgFiche.Demander(cadre.legende, cadre.numero, cadre.indicatif);
    p.menu.setEnabled(false);
    p.msgFiche.DonnerFoyerNon();
}

void RepondreOuiAuCadre(Plateau& p) {
    LacherFoyer();
    p.msgFiche.hide();
    p.menu.setEnabled(true);
    if (p.session.saisie.NbModifs == 0)
        Supprimer(p);
    else
        EnregistrerModification(p);
    ReactiverBoutons(p);
    p.liste.DonnerFoyer();
}

void RepondreNonAuCadre(Plateau& p) {
    LacherFoyer();
    p.msgFiche.hide();
    const bool modifiee = p.session.saisie.NbModifs != 0;
    AppliquerReponse(p, RepondreNon(p.session));
    if (modifiee)
        AfficherFiche(p);
    else
        RendreListe(p);
    p.menu.setEnabled(true);
    ReactiverBoutons(p);
    p.liste.DonnerFoyer();
    // The callsign field of the buffer always holds fifteen characters: the button always comes.
    p.fiche.MontrerActiveRech(true);
}

} // namespace orvalis
