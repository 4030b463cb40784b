#include "ui/flux/flux_modification.h"

#include "ui/carte/conseil.h"
#include "ui/carte/foyer.h"
#include "ui/carte/liste_contacts.h"
#include "ui/carte/modification.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_navigation.h"
#include "ui/flux/flux_recherche.h"

#include <utility>

namespace orvalis {
namespace {

// The page that held the contact stays on show, as far as it still exists.
void EffacerFiche(Plateau& p) {
    Session& s = p.session;
    const std::int32_t page = PageDeFiche(s.carte.ficheCourante);
    const NumeroFiche k = s.carte.ficheCourante;
    if (!SupprimerFiche(s.cahier, k, s.carte.tampon, s.station.monLocator))
        return DireFicheChangee(p);
    // The numbers of a list no longer hold. One of duplicates is searched again, so that the
    // operator goes on where he was.
    bool& listeMontree = p.ecran.contacts.montree;
    listeMontree &= p.ecran.contacts.doublons;
    RelireCahier(p, page);
    listeMontree &= s.cahier.nbFiches != 0;
    if (listeMontree)
        ReprendreDoublons(p);
    p.ecran.recherche.montre = s.cahier.nbFiches != 0;
    Annoncer(p.ecran, "Fiche " + std::to_string(k.Valeur()) + " supprimée");
}

void EnregistrerModification(Plateau& p) {
    Session& s = p.session;
    const NumeroFiche k = s.carte.ficheCourante;
    if (!EcrireFiche(s.carte, s.cahier, k))
        return DireFicheChangee(p);
    SynchroniserCahier(s.cahier);
    if (const int ligne = LigneDeFiche(p, k); ligne >= 0) {
        MontrerPage(p, s.page.numero);
        p.ecran.liste.choisie = ligne;
    }
    s.carte = RepondreOui(s.carte);
    Annoncer(p.ecran, "Fiche " + std::to_string(k.Valeur()) + " corrigée");
    AfficherFiche(p);
}

void FermerQuestion(Plateau& p) {
    p.ecran.question.reset();
    p.ecran.menuActif = true;
}

} // namespace

void AbandonnerModification(Plateau& p) {
    OublierModifications(p.session.carte.saisie);
    FermerQuestion(p);
    MettreAuRepos(p.session.carte);
    RendreBoutons(p.ecran);
}

void DemanderSuppression(Plateau& p) {
    const Carte& carte = p.session.carte;
    if (carte.saisie.EnModification || carte.saisie.NbModifs != 0)
        ChoisirFiche(p, carte.ficheCourante);
    p.ecran.question = QuestionEffacer(carte);
    p.ecran.menuActif = false;
    DonnerFoyer(p, {Cible::Non});
}

void RepondreOuiAuCadre(Plateau& p) {
    LacherFoyer(p);
    // The question stays until it is answered: what cannot be written now is not dropped.
    if (DemandeEffacement(p.session.carte))
        EffacerFiche(p);
    else
        EnregistrerModification(p);
    FermerQuestion(p);
    RendreBoutons(p.ecran);
    DonnerFoyer(p, {Cible::Liste});
}

void RepondreNonAuCadre(Plateau& p) {
    LacherFoyer(p);
    FermerQuestion(p);
    const bool effacement = DemandeEffacement(p.session.carte);
    p.session.carte = RepondreNon(p.session.carte);
    if (effacement)
        RendreListe(p);
    else
        AfficherFiche(p);
    RendreBoutons(p.ecran);
    // The callsign field of the buffer always holds fifteen characters: the button always comes.
    p.ecran.activeRech = true;
    DonnerFoyer(p, {Cible::Liste});
}

} // namespace orvalis
