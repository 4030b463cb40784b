#include "ui/flux_qsl.h"

#include "core/commandes.h"
#include "core/dates.h"
#include "core/dossier.h"
#include "core/messages.h"
#include "core/texte.h"
#include "print/etiquette.h"
#include "qsl/flux_etiquettes.h"
#include "ui/chang_locator.h"
#include "ui/effets.h"
#include "ui/flux_impression.h"
#include "ui/flux_modification.h"
#include "ui/flux_navigation.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_classer.h"
#include "ui/panneau_ctrl_impression.h"
#include "ui/panneau_feuille_qsl.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_liste.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QMainWindow>
#include <QStackedWidget>

namespace orvalis {
namespace {

constexpr int kColonneFiche = 0;
constexpr std::size_t kMaQsl = NumeroZone(Champ::MQSL);

// The page on show and the card, read again; the line that was selected stays selected.
void Rafraichir(Plateau& p) {
    const int ligne = p.liste.LigneChoisie();
    MontrerPage(p, p.session.pageAffichee);
    p.liste.Selectionner(ligne);
    AfficherFiche(p);
}

void MontrerLaFeuille(Plateau& p) {
    p.liste.setEnabled(false);
    p.droite.setCurrentWidget(&p.feuilleQSL);
}

void RemettreLaFiche(Plateau& p) {
    p.droite.setCurrentIndex(kColonneFiche);
    p.liste.setEnabled(true);
    Rafraichir(p);
    p.liste.DonnerFoyer();
}

// Shows the state of the sheet, whatever changed it.
void Peindre(Plateau& p) {
    const VueFeuille& vue = p.feuille.vue;
    p.feuilleQSL.Montrer(p.feuille);
    p.ctrlImpression.setVisible(vue.controle);
    const bool montree = p.droite.currentWidget() == &p.feuilleQSL;
    if (vue.panneau == montree)
        return;
    LacherFoyer();
    if (vue.panneau)
        MontrerLaFeuille(p);
    else
        RemettreLaFiche(p);
}

// Another panel waits for the operator, so that the QSL service must wait too.
bool UnPanneauAttend(const Plateau& p) {
    const EtatSaisie& saisie = p.session.saisie;
    return saisie.EnSaisie || saisie.NbModifs != 0 || p.msgFiche.isVisible() ||
           p.changLocator.isVisible() || p.classer.isVisible() || p.jumelage.isVisible() ||
           p.feuille.vue.panneau || p.feuille.vue.controle;
}

// Shows what an action on the sheet did, to contacts too.
void Repondre(Plateau& p, const ReponseQSL& reponse) {
    if (reponse.marque)
        AfficherFiche(p);
    Peindre(p);
    if (!reponse.message.empty())
        p.systeme.Avertir(&p.fenetre, Q(reponse.message));
}

// A logbook without contacts was opened without its sheet. Returns whether there is one.
bool ChargerAuBesoin(Plateau& p) {
    if (!p.feuille.fichier.EstOuvert())
        ChargerFeuille(p);
    return p.feuille.fichier.EstOuvert();
}

DonneesEtiquette DonneesDe(const QslSlotRecord& etiquette) {
    const auto texte = [&etiquette](ChampEtiquette champ) { return TexteRogne(etiquette, champ); };
    return {texte(ChampEtiquette::Indicatif), texte(ChampEtiquette::Ligne1),
            texte(ChampEtiquette::Ligne2),    texte(ChampEtiquette::Voie),
            texte(ChampEtiquette::Date),      texte(ChampEtiquette::Heure),
            texte(ChampEtiquette::Frequence), texte(ChampEtiquette::Report),
            texte(ChampEtiquette::Mode)};
}

int PremierePreparee(const FeuilleQSL& feuille) {
    const std::vector<int> places = EtiquettesAImprimer(feuille);
    return places.empty() ? 1 : places.front();
}

} // namespace

void ChargerFeuille(Plateau& p) {
    try {
        ChargerFeuilleQSL(p.feuille, DossierProgramme(p.session.lecteur));
    } catch (const ErreurFichier& echec) {
        // No reason to keep the operator from the logbook.
        p.feuille.fichier.Fermer();
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
    }
}

void GererFeuille(Plateau& p) {
    if (UnPanneauAttend(p) || !CommandePermise(Commande::MnuGestionFeuilleQSL, p.session) ||
        !ChargerAuBesoin(p))
        return;
    OuvrirPanneau(p.feuille);
    Peindre(p);
    p.feuilleQSL.DonnerFoyerChoix(PremierePreparee(p.feuille));
}

void ImprimerEtiquettesVierges(Plateau& p) {
    if (UnPanneauAttend(p) || !CommandePermise(Commande::MnuVirginTags, p.session))
        return;
    static_cast<void>(Imprimer(p, [&p](Imprimante& imprimante) {
        ImprimerPlancheVierge(imprimante, p.session.indicatif, p.enTete);
    }));
}

void CliquerMaQsl(Plateau& p) {
    const Session& s = p.session;
    if (UnPanneauAttend(p) || !s.JournalPropre() || s.ficheCourante < 1 ||
        !Rogner(p.fiche.TexteBoite(kMaQsl)).empty() || !ChargerAuBesoin(p))
        return;
    const ReponseClic clic = PreparerEtiquette(p.session, p.feuille, p.session.ficheCourante);
    if (clic.suite == SuiteClic::Ordinaire)
        return;
    // The press has begun a modification by hand, which is not what it turned out to be.
    LacherFoyer();
    AbandonnerModification(p);
    Repondre(p, clic.reponse);
    if (clic.suite == SuiteClic::Retabli) {
        Rafraichir(p);
        p.liste.DonnerFoyer();
    } else if (p.feuille.boites[kBoiteLigne1].empty()) {
        p.feuilleQSL.DonnerFoyerBoite(kBoiteLigne1);
    } else {
        p.feuilleQSL.DonnerFoyerVoie();
    }
}

void SurChoix(Plateau& p, int k) {
    CliquerChoix(p.feuille, k);
    Peindre(p);
    if (p.feuille.vue.laisser && p.feuille.etiquetteEnCours == k)
        p.feuilleQSL.DonnerFoyerLaisser();
}

void SurTag(Plateau& p, int k) {
    CliquerTag(p.feuille, k);
    Peindre(p);
    p.feuilleQSL.DonnerFoyerBoite(kBoiteIndicatif);
}

void SurSaisieEtiquette(Plateau& p, std::size_t boite, const std::string& texte) {
    SaisirBoite(p.feuille, boite, texte);
    if (boite == kBoiteIndicatif)
        SaisirBoite(p.feuille, kBoiteRappel, texte);
    Peindre(p);
}

// Enter goes on to the next box, by way of the route, and ends on the button that it shows.
void SurEntreeEtiquette(Plateau& p, std::size_t boite) {
    EntrerBoite(p.feuille);
    Peindre(p);
    if (p.feuille.fraiche && boite == kBoiteNumeroFiche)
        p.feuilleQSL.DonnerFoyerBoite(kBoiteIndicatif);
    else if (!p.feuille.fraiche || boite >= kBoiteManager)
        p.feuilleQSL.DonnerFoyerValider();
    else if (boite == kBoiteLigne2)
        p.feuilleQSL.DonnerFoyerVoie();
    else
        p.feuilleQSL.DonnerFoyerBoite(boite + 1);
}

void SurVoie(Plateau& p, VoieQSL voie) {
    const bool confirmee = p.feuille.voie == voie;
    ChoisirVoie(p.feuille, voie);
    Peindre(p);
    if (confirmee)
        p.feuilleQSL.DonnerFoyerValider();
}

void ValiderEtiquette(Plateau& p) {
    Repondre(p, Valider(p.session, p.feuille));
}

void SupprimerEtiquette(Plateau& p) {
    const int k = p.feuille.etiquetteEnCours;
    const ReponseQSL reponse = Supprimer(p.session, p.feuille);
    Repondre(p, reponse);
    if (reponse.fait)
        p.feuilleQSL.DonnerFoyerChoix(k);
}

void LaisserEtiquette(Plateau& p) {
    const int k = p.feuille.etiquetteEnCours;
    Laisser(p.feuille);
    Peindre(p);
    if (k != 0)
        p.feuilleQSL.DonnerFoyerChoix(k);
}

void QuitterFeuille(Plateau& p) {
    Quitter(p.feuille);
    Peindre(p);
}

void RestaurerFeuille(Plateau& p) {
    Restaurer(p.feuille);
    Peindre(p);
    p.feuilleQSL.DonnerFoyerChoix(1);
}

void ImprimerFeuille(Plateau& p) {
    std::vector<EtiquettePlacee> etiquettes;
    for (const int k : EtiquettesAImprimer(p.feuille))
        etiquettes.push_back(
            {static_cast<std::int16_t>(k), DonneesDe(LireEnregistrement(p.feuille, k))});
    if (!Imprimer(p, [&](Imprimante& imp) { ImprimerPlanche(imp, etiquettes, p.enTete); }))
        return;
    DemanderControle(p.feuille);
    Peindre(p);
    p.ctrlImpression.DonnerFoyerRevoir();
}

void ConfirmerImpression(Plateau& p) {
    Repondre(p, ToutEstParfait(p.session, p.feuille, DateCourte(p.systeme.Maintenant())));
}

void RevoirImpression(Plateau& p) {
    RevoirEtiquettes(p.feuille);
    Peindre(p);
    p.feuilleQSL.DonnerFoyerChoix(PremierePreparee(p.feuille));
}

} // namespace orvalis
