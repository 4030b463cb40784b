// What the controls report, and the flow that answers it. Menu entries and buttons stand in the
// table of the commands; here is what brings something along: a line, a box, a text.
#include "core/texte.h"
#include "ui/bureau/texte_qt.h"
#include "ui/fenetre/designateur.h"
#include "ui/fenetre/menus.h"
#include "ui/fenetre/orvalis.h"
#include "ui/flux/commandes.h"
#include "ui/flux/flux_compagnons.h"
#include "ui/flux/flux_demarrage.h"
#include "ui/flux/flux_locator.h"
#include "ui/flux/flux_navigation.h"
#include "ui/flux/flux_qsl.h"
#include "ui/flux/flux_recherche.h"
#include "ui/flux/flux_saisie.h"
#include "ui/panneaux/pict_chang_locator.h"
#include "ui/panneaux/pict_contacts.h"
#include "ui/panneaux/pict_enrs.h"
#include "ui/panneaux/pict_feuille_qsl.h"
#include "ui/panneaux/pict_fiche.h"
#include "ui/panneaux/pict_liste.h"
#include "ui/panneaux/pict_rech.h"
#include "ui/widgets/vue_page.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QShortcut>
#include <QTimer>

namespace orvalis {

std::vector<EntreeDeMenu> Orvalis::BrancherMenus() {
    std::vector<EntreeDeMenu> entrees;
    FaireMenus(*menuBar(), [&](QAction& action, const Commande& commande) {
        BrancherCommande(action, commande);
        entrees.push_back({&action, commande.conditions});
    });
    // The captions have no mnemonics: this key leads into the menus from anywhere.
    auto* versLesMenus = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(versLesMenus, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().front()); });
    // A key held down closes one thing, not all that lie under one another.
    auto* echap = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    echap->setAutoRepeat(false);
    Brancher(echap, &QShortcut::activated, [this] { Echapper(p_); });
    auto* aide = new QShortcut(QKeySequence(Qt::Key_F1), this);
    Brancher(aide, &QShortcut::activated, [this] { VoirGuide(p_); });
    return entrees;
}

void Orvalis::BrancherBoutons() {
    for (const Commande& commande : Commandes())
        if (commande.legende.empty())
            BrancherCommande(*findChild<QWidget*>(Q(commande.nom)), commande);
}

void Orvalis::BrancherCommande(QObject& objet, const Commande& commande) {
    const QuandGele quand = commande.memeGele ? QuandGele::Oui : QuandGele::Non;
    if (commande.memeGele)
        memeGeles_.push_back(&objet);
    const auto lancer = [this, &commande, quand] {
        Executer([&] { LancerCommande(p_, commande); }, quand);
    };
    designateur_->Suivre(objet, commande);
    if (auto* action = qobject_cast<QAction*>(&objet))
        connect(action, &QAction::triggered, this, lancer);
    else if (auto* bouton = qobject_cast<QAbstractButton*>(&objet))
        connect(bouton, &QAbstractButton::clicked, this, lancer);
    else if (auto* boite = qobject_cast<TxtField*>(&objet))
        connect(boite, &TxtField::cliquee, this, lancer);
}

void Orvalis::Designer(const Commande* commande) {
    // At once: a button that the painter hides is left while no flow runs.
    ecran_.designee = {};
    if (commande != nullptr)
        ecran_.designee = {std::string{commande->nom}, std::string{Rogner(commande->legende)},
                           commande->conditions, ecran_.annonce.rang};
    Executer([] {});
}

void Orvalis::BrancherListes() {
    // The clock runs on while the window is frozen.
    connect(timer1_, &QTimer::timeout, this,
            [this] { Executer([this] { AfficherHeure(p_); }, QuandGele::Oui); });
    PictListe* liste = &panneaux_.liste;
    Brancher(liste, &PictListe::ligneChoisie, [this](int ligne) { ChoisirLigne(p_, ligne); });
    Brancher(liste, &PictListe::boutonPage, [this](BoutonPage b) { SurBoutonPage(p_, b); });
    Brancher(liste, &PictListe::defilement, [this](int valeur) { SurDefilement(p_, valeur); });
    Brancher(liste, &PictListe::touche,
             [this](ToucheListe touche, bool* prise) { *prise = SurToucheListe(p_, touche); });
    connect(&panneaux_.page, &VuePage::roulee, liste, &PictListe::Rouler);
    Brancher(&panneaux_.page, &VuePage::rangeeChoisie,
             [this](NumeroFiche k) { ChoisirRangee(p_, k); });
    Brancher(&panneaux_.contacts, &PictContacts::ligneChoisie,
             [this](int ligne) { ChoisirContact(p_, ligne); });
    PictRech* rech = &panneaux_.rech;
    Brancher(rech, &PictRech::texteChange,
             [this](const QString& texte) { SurTexteRecherche(p_, S(texte)); });
    Brancher(rech, &PictRech::rechercheDemandee, [this] { Rechercher(p_); });
    Brancher(rech, &PictRech::cliquee, [this] { CliquerRecherche(p_); });
}

void Orvalis::BrancherFiche() {
    for (const DescriptionBoite& d : kBoites) {
        const Boite boite = d.boite;
        TxtField* champ = &panneaux_.fiche.TxtFieldDe(boite);
        Brancher(champ, &TxtField::entree, [this, boite] { SurEntree(p_, boite); });
        Brancher(champ, &TxtField::pressee, [this, boite] { SurPression(p_, boite); });
        Brancher(champ, &TxtField::textChanged,
                 [this, boite](const QString& texte) { SurChangement(p_, boite, S(texte)); });
    }
    Brancher(&panneaux_.enrs, &PictEnrs::optionChoisie,
             [this](bool reel) { ChoisirOption(p_, reel); });
    PictChangLocator* locator = &panneaux_.changLocator;
    Brancher(locator, &PictChangLocator::texteChange,
             [this](const QString& texte) { SurTexteLocator(p_, S(texte)); });
    Brancher(locator, &PictChangLocator::entree, [this] { SurEntreeLocator(p_); });
    Brancher(locator, &PictChangLocator::garderChange,
             [this](bool garder) { GarderLocator(p_, garder); });
}

void Orvalis::BrancherFeuille() {
    PictFeuilleQSL* feuille = &panneaux_.feuilleQSL;
    Brancher(feuille, &PictFeuilleQSL::choix, [this](Place place) { SurChoix(p_, place); });
    Brancher(feuille, &PictFeuilleQSL::tag, [this](Place place) { SurTag(p_, place); });
    Brancher(feuille, &PictFeuilleQSL::boiteSaisie,
             [this](std::size_t boite, const QString& texte) {
                 SurSaisieEtiquette(p_, boite, S(texte));
             });
    Brancher(feuille, &PictFeuilleQSL::boiteEntree,
             [this](std::size_t boite) { SurEntreeEtiquette(p_, boite); });
    Brancher(feuille, &PictFeuilleQSL::voieChoisie, [this](VoieQSL voie) { SurVoie(p_, voie); });
}

// Where the focus is, whatever brought it there. What it does outside the window (another window,
// a dialog) or in the menu bar is no move: it comes back to where it was.
void Orvalis::BrancherFoyer() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*avant*/, QWidget* ici) {
        if (ici == nullptr || ici->window() != this || ici == menuBar())
            return;
        Executer([&] { SurFoyer(p_, peintre_->FoyerDe(ici)); });
    });
}

} // namespace orvalis
