// What the panels and menus report, and the flow that answers it.
#include "core/commandes.h"
#include "geo/dlg2.h"
#include "ui/a_propos.h"
#include "ui/chang_locator.h"
#include "ui/feuille_log.h"
#include "ui/flux_demarrage.h"
#include "ui/flux_impression.h"
#include "ui/flux_locator.h"
#include "ui/flux_maintenance.h"
#include "ui/flux_modification.h"
#include "ui/flux_navigation.h"
#include "ui/flux_qsl.h"
#include "ui/flux_recherche.h"
#include "ui/flux_saisie.h"
#include "ui/menus.h"
#include "ui/msg_fiche.h"
#include "ui/orvalis.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_horloge.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_liste.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"
#include "ui/texte_qt.h"

#include <QAction>
#include <QMenuBar>
#include <QShortcut>
#include <QTimer>

#include <map>

namespace orvalis {

void Orvalis::BrancherMenus() {
    const std::map<std::string_view, Action> commandes = {
        {"MnuDoublons", [this] { MontrerDoublons(p_); }},
        {"MnuChangerLocator", [this] { ChangerDeLocator(p_); }},
        {"MnuCourantF", [this] { OuvrirJournalCourant(p_); }},
        {"MnuAutreF", [this] { OuvrirAutre(p_); }},
        {"MnuJumeler", [this] { OuvrirJumelage(p_); }},
        {"MnuCopieSurDisque", [this] { CopierSurDisque(p_); }},
        {"MnuClasser", [this] { Classer(p_); }},
        {"MnuSauver", [this] { Sauvegarder(p_); }},
        {"MnuCreateMDB", [this] { CreerBaseDeDonnees(p_); }},
        {"MnuConfigImp", [this] { ConfigurerImprimante(p_); }},
        {"MnuImpPage", [this] { ImprimerPageAffichee(p_); }},
        {"MnuImpPageVierge", [this] { ImprimerPageVierge(p_); }},
        {"MnuVirginTags", [this] { ImprimerEtiquettesVierges(p_); }},
        {"MnuGestionFeuilleQSL", [this] { GererFeuille(p_); }},
        {"MnuEditLocator", [this] { Dlg2(this).exec(); }},
        {"MnuVoir", [this] { APropos(p_.systeme, this).exec(); }},
    };
    FaireMenus(*menuBar(), [&](QAction& action) {
        if (action.objectName() == QLatin1String("MnuQuitter")) {
            connect(&action, &QAction::triggered, this, &QWidget::close);
            return;
        }
        Brancher(&action, &QAction::triggered,
                 [flux = commandes.at(S(action.objectName()))](bool) { flux(); });
    });
    // The captions have no mnemonics: this key leads into the menus from anywhere.
    auto* versLesMenus = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(versLesMenus, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().front()); });
}

void Orvalis::ActualiserMenus() {
    // Looked for in the menu bar alone: through all controls of the window, this after each flow
    // took half of what Enter in a box costs.
    for (const RegleCommande& regle : kReglesCommandes)
        if (auto* action = regle.nom.empty() ? nullptr // an empty name would find any action
                                             : menuBar()->findChild<QAction*>(Q(regle.nom)))
            action->setEnabled(!Attend(regle.commande) &&
                               CommandePermise(regle.commande, session_));
    for (const char* nom : {"MnuEditLocator", "MnuVoir"})
        if (auto* action = menuBar()->findChild<QAction*>(QString::fromLatin1(nom)))
            action->setEnabled(!p_.gel && !feuille_.vue.controle);
}

// While the label sheet is on show every command waits for it, but the printer can be chosen from
// there; before the logbook is on show none has anything to work on.
bool Orvalis::Attend(Commande commande) const {
    const VueFeuille& vue = feuille_.vue;
    const bool feuille = vue.panneau && (vue.controle || commande != Commande::MnuConfigImp);
    return p_.gel || temoinDemarrage_ != 0 || feuille;
}

void Orvalis::BrancherMaintenance() {
    Brancher(&p_.jumelage, &PJumelage::jumeler, [this] { Jumeler(p_); });
    Brancher(&p_.jumelage, &PJumelage::sauvegarder, [this] { SauvegarderAvantJumelage(p_); });
    Brancher(&p_.jumelage, &PJumelage::annuler, [this] { FermerJumelage(p_); });
}

void Orvalis::BrancherPanneaux() {
    // The clock runs on while the window is frozen.
    connect(timer1_, &QTimer::timeout, this, [this] { AfficherHeure(p_); });
    Brancher(&p_.horloge, &PanneauHorloge::miseALHeureDemandee, [this] {
        if (!feuille_.vue.controle)
            LancerCompagnon(p_, "Chronel.exe");
    });
    connect(&p_.menu, &PictMenu::fermetureDemandee, this, &QWidget::close);
    Brancher(&p_.menu, &PictMenu::nouveauDemande, [this] { NouveauQso(p_); });
    Brancher(&p_.menu, &PictMenu::suppressionDemandee, [this] { DemanderSuppression(p_); });
    connect(&p_.msgFiche, &FraMsgFiche::visibleChange, &p_.menu, &PictMenu::CederAltN);
    Brancher(&p_.msgFiche, &FraMsgFiche::oui, [this] { RepondreOuiAuCadre(p_); });
    Brancher(&p_.msgFiche, &FraMsgFiche::non, [this] { RepondreNonAuCadre(p_); });
    Brancher(&p_.rech, &PictRech::rechercheDemandee, [this] { Rechercher(p_); });
    Brancher(&p_.rech, &PictRech::cliquee, [this] { CliquerRecherche(p_); });
    Brancher(&p_.contacts, &PictContacts::fermetureDemandee, [this] { FermerContacts(p_); });
    Brancher(&p_.contacts, &PictContacts::ligneChoisie,
             [this](std::int32_t k) { ChoisirFiche(p_, k); });
}

void Orvalis::BrancherNavigation() {
    Brancher(&p_.liste, &PictListe::ligneChoisie, [this](std::int32_t k) { ChoisirFiche(p_, k); });
    Brancher(&p_.liste, &PictListe::boutonPage, [this](BoutonPage b) { SurBoutonPage(p_, b); });
    Brancher(&p_.liste, &PictListe::defilement, [this](int valeur) { SurDefilement(p_, valeur); });
    Brancher(&p_.liste, &PictListe::touche,
             [this](ToucheListe touche, bool* prise) { *prise = SurToucheListe(p_, touche); });
    Brancher(&p_.page, &FeuilleLog::rangeeChoisie, [this](std::int32_t k) {
        if (session_.saisie.EnSaisie)
            return;
        p_.liste.Selectionner(LigneDeFiche(p_, k));
        ChoisirFiche(p_, k);
    });
}

void Orvalis::BrancherFiche() {
    for (const DescriptionBoite& boite : kBoites) {
        const std::size_t n = boite.index;
        ZoneSaisie* zone = &p_.fiche.Boite(n);
        Brancher(zone, &ZoneSaisie::entree, [this, n] { SurEntree(p_, n); });
        Brancher(zone, &ZoneSaisie::focusPris, [this, n] { SurFocusPris(p_, n); });
        Brancher(zone, &ZoneSaisie::focusPerdu, [this, n] { SurFocusPerdu(p_, n); });
        Brancher(zone, &ZoneSaisie::pressee, [this, n] { SurPression(p_, n); });
        Brancher(zone, &ZoneSaisie::textChanged,
                 [this](const QString& texte) { SurChangement(p_, S(texte)); });
    }
    Brancher(&p_.fiche, &PictFiche::activeRechDemande, [this] { VoirContacts(p_); });
}

void Orvalis::BrancherSaisie() {
    Brancher(&p_.enrs, &PictEnrs::suivantDemande, [this] { EnregistrerEtSuivre(p_); });
    Brancher(&p_.enrs, &PictEnrs::terminerDemande, [this] { EnregistrerEtTerminer(p_); });
    Brancher(&p_.enrs, &PictEnrs::annulerDemande, [this] { AnnulerSaisie(p_); });
    Brancher(&p_.enrs, &PictEnrs::optionChoisie, [this](bool reel) { ChoisirOption(p_, reel); });
    Brancher(&p_.changLocator, &PictChangLocator::foyerTexte, [this] { SurFoyerLocator(p_); });
    Brancher(&p_.changLocator, &PictChangLocator::texteChange, [this] { SurTexteLocator(p_); });
    Brancher(&p_.changLocator, &PictChangLocator::entree, [this] { SurEntreeLocator(p_); });
    Brancher(&p_.changLocator, &PictChangLocator::valider, [this] { ValiderLocator(p_); });
    Brancher(&p_.changLocator, &PictChangLocator::annuler, [this] { AnnulerLocator(p_); });
}

} // namespace orvalis
