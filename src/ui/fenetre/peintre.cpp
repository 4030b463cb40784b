#include "ui/fenetre/peintre.h"

#include "ui/bureau/texte_qt.h"
#include "ui/carte/conditions.h"
#include "ui/panneaux/fra_msg_fiche.h"
#include "ui/panneaux/p_jumelage.h"
#include "ui/panneaux/panneau_horloge.h"
#include "ui/panneaux/pict_chang_locator.h"
#include "ui/panneaux/pict_classer.h"
#include "ui/panneaux/pict_contacts.h"
#include "ui/panneaux/pict_ctrl_impression.h"
#include "ui/panneaux/pict_enrs.h"
#include "ui/panneaux/pict_feuille_qsl.h"
#include "ui/panneaux/pict_fiche.h"
#include "ui/panneaux/pict_liste.h"
#include "ui/panneaux/pict_menu.h"
#include "ui/panneaux/pict_rech.h"
#include "ui/widgets/lab_conseil.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/vue_page.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <stdexcept>

namespace orvalis {
namespace {

struct NomDeCible {
    Cible cible;
    const char* nom;
    int derniere; // of controls that are numbered from 1; else 0
};

constexpr std::array<NomDeCible, 25> kNoms = {{
    {Cible::Boite, "TxtField_%1", static_cast<int>(kNbBoites)},
    {Cible::Liste, "ListeLog", 0},
    {Cible::Contacts, "ContactsListe", 0},
    {Cible::Recherche, "RechText", 0},
    {Cible::Nouveau, "BtNewQSO", 0},
    {Cible::Suivant, "BtEnrSuivant", 0},
    {Cible::Terminer, "BtEnrTerminer", 0},
    {Cible::Annuler, "BtEnrAnnuler", 0},
    {Cible::OptionReel, "OptionEnr1", 0},
    {Cible::OptionDiffere, "OptionEnr2", 0},
    {Cible::Oui, "FraCmdOui", 0},
    {Cible::Non, "FraCmdNon", 0},
    {Cible::TexteLocator, "ChangLocText", 0},
    {Cible::ValiderLocator, "BtChangValid", 0},
    {Cible::AnnulerLocator, "BtChangAnnul", 0},
    {Cible::GarderLocator, "ChangLocChk", 0},
    {Cible::Sauvegarder, "BtPjSauvegarder", 0},
    {Cible::Jumeler, "BtPjumeler", 0},
    {Cible::BoiteEtiquette, "FLdText_%1", static_cast<int>(kNbBoitesEtiquette)},
    {Cible::VoieBureau, "OptBureau", 0},
    {Cible::VoieDirecte, "OptDirect", 0},
    {Cible::ValiderEtiquette, "BtValidQSL", 0},
    {Cible::LaisserEtiquette, "BtLeaveQSL", 0},
    {Cible::ChoixEtiquette, "BtChoix_%1", kNbEtiquettes},
    {Cible::Revoir, "BtCtrl_Revoir", 0},
}};

// A stack asks all its pages for their least size: those out of sight would make the window scroll.
void TournerVers(QStackedWidget& pile, QWidget& page) {
    for (int i = 0; i < pile.count(); ++i) {
        const auto place = pile.widget(i) == &page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        pile.widget(i)->setSizePolicy(place, place);
    }
    pile.setCurrentWidget(&page);
}

} // namespace

Peintre::Peintre(QMainWindow& fenetre, const Panneaux& panneaux, QLabel& adieu,
                 std::vector<EntreeDeMenu> entrees)
    : fenetre_(fenetre), p_(panneaux), adieu_(adieu), entrees_(std::move(entrees)) {
    // A name that is misspelt would drop a wish in silence.
    const auto trouver = [&fenetre](const QString& nom) {
        auto* widget = fenetre.findChild<QWidget*>(nom);
        return widget != nullptr ? widget : throw std::logic_error("no control " + S(nom));
    };
    for (const NomDeCible& n : kNoms) {
        const QString nom = QString::fromLatin1(n.nom);
        for (int k = std::min(n.derniere, 1); k <= n.derniere; ++k)
            nommes_.push_back({{n.cible, k}, trouver(k == 0 ? nom : nom.arg(k))});
    }
}

void Peintre::Peindre(VueFenetre vue, EtatFoyer& foyer) {
    if (enCours_)
        return;
    const QScopedValueRollback garde(enCours_, true);
    PeindreCarte(vue);
    PeindreListe(vue);
    PeindrePanneaux(vue);
    PeindreFeuille(vue);
    PeindreCommandes(vue);
    AccorderVoeu(foyer);
    derniere_ = std::move(vue);
}

bool Peintre::FoyerPerdu(const EtatFoyer& foyer) const {
    return foyer.ici != Foyer{} && fenetre_.isActiveWindow() && fenetre_.focusWidget() == nullptr;
}

Foyer Peintre::FoyerDe(const QWidget* widget) const {
    const auto ici = std::find_if(nommes_.begin(), nommes_.end(),
                                  [widget](const Nomme& nomme) { return nomme.widget == widget; });
    return ici == nommes_.end() ? Foyer{Cible::Autre} : ici->foyer;
}

template<typename Champ> bool Peintre::Differe(const VueFenetre& vue, Champ champ) const {
    return !derniere_ || (*derniere_).*champ != vue.*champ;
}

void Peintre::PeindreCarte(const VueFenetre& vue) {
    // The boxes are compared with what they show: what is typed is in the state already.
    p_.fiche.Montrer(vue.carte);
    p_.enrs.MontrerOption(vue.boutons.tempsReel);
    if (!Differe(vue, &VueFenetre::boutons))
        return;
    Presenter(p_.menu, !vue.boutons.saisie);
    Presenter(p_.enrs, vue.boutons.saisie);
    p_.menu.Montrer(vue.boutons);
    p_.enrs.Montrer(vue.boutons);
}

void Peintre::PeindreListe(const VueFenetre& vue) {
    if (Differe(vue, &VueFenetre::invitation))
        p_.page.Inviter(Q(vue.invitation));
    if (!Differe(vue, &VueFenetre::liste))
        return;
    const ListeDuCahier& liste = vue.liste;
    const bool pageChangee = !derniere_ || derniere_->liste.contenu != liste.contenu;
    if (pageChangee && liste.contenu)
        p_.page.Montrer(liste.contenu);
    p_.liste.Montrer(liste, vue.pagination, pageChangee);
    p_.page.Marquer(liste.marquee);
    Activer(p_.liste, liste.active);
}

void Peintre::PeindrePanneaux(const VueFenetre& vue) {
    Presenter(p_.rech, vue.recherche.montre);
    p_.rech.Montrer(vue.recherche);
    if (Differe(vue, &VueFenetre::contacts)) {
        const bool change = !derniere_ || derniere_->contacts.lignes != vue.contacts.lignes;
        p_.contacts.Montrer(vue.contacts, change);
        Presenter(p_.contacts, vue.contacts.montree);
    }
    if (Differe(vue, &VueFenetre::question)) {
        if (vue.question)
            p_.msgFiche.Montrer(*vue.question);
        Presenter(p_.msgFiche, vue.question.has_value());
        p_.menu.CederAltN(vue.question.has_value());
    }
    p_.changLocator.Montrer(vue.locator);
    if (Differe(vue, &VueFenetre::locatorEnErreur))
        p_.changLocator.MontrerErreur(vue.locatorEnErreur);
    Presenter(p_.changLocator, vue.locator.montre);
    if (Differe(vue, &VueFenetre::locator))
        p_.enrs.CederAltA(vue.locator.montre);
    if (Differe(vue, &VueFenetre::classer)) {
        p_.classer.Montrer(vue.classer);
        Presenter(p_.classer, vue.classer.montre);
    }
    if (Differe(vue, &VueFenetre::jumelage)) {
        p_.jumelage.Montrer(vue.jumelage);
        Presenter(p_.jumelage, vue.jumelage.montre);
    }
    if (Differe(vue, &VueFenetre::heure) && vue.heure)
        p_.horloge.Montrer(*vue.heure);
    if (Differe(vue, &VueFenetre::titre))
        fenetre_.setWindowTitle(Q(vue.titre));
    adieu_.setText(Q(vue.adieu));
    p_.conseil.Montrer(vue.conseil);
}

void Peintre::PeindreFeuille(const VueFenetre& vue) {
    // Out of sight it is not painted: its sixteen places cost more than all the rest.
    const bool montree = vue.feuille.vue.panneau;
    if (!Differe(vue, &VueFenetre::feuille))
        return;
    if (montree) {
        p_.feuilleQSL.Montrer(vue.feuille);
        p_.feuilleQSL.MontrerApercu(vue.apercu);
    }
    Presenter(p_.ctrlImpression, vue.feuille.vue.controle);
    QWidget& colonne = montree ? static_cast<QWidget&>(p_.feuilleQSL) : *p_.droite.widget(0);
    if (p_.droite.currentWidget() != &colonne)
        OterLeFoyer(p_.droite);
    TournerVers(p_.droite, colonne);
}

void Peintre::PeindreCommandes(const VueFenetre& vue) {
    if (!Differe(vue, &VueFenetre::conditions))
        return;
    const unsigned visibles = vue.conditions | kConditionsMuettes;
    for (const EntreeDeMenu& entree : entrees_)
        entree.action->setEnabled(Permis(entree.conditions, visibles));
}

void Peintre::AccorderVoeu(EtatFoyer& foyer) {
    if (foyer.voeu) {
        QWidget* voulu = WidgetDe(*foyer.voeu);
        if (voulu != nullptr)
            voulu->setFocus();
        else if (foyer.voeu->cible == Cible::Aucune)
            OterLeFoyer(fenetre_);
    }
    if (foyer.selection)
        if (auto* boite = qobject_cast<QLineEdit*>(WidgetDe(*foyer.selection)))
            boite->selectAll();
    foyer.voeu.reset();
    foyer.selection.reset();
}

QWidget* Peintre::WidgetDe(const Foyer& foyer) const {
    const auto ici = std::find_if(nommes_.begin(), nommes_.end(),
                                  [&](const Nomme& nomme) { return nomme.foyer == foyer; });
    return ici == nommes_.end() ? nullptr : ici->widget;
}

} // namespace orvalis
