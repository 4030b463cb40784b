#include "ui/fenetre/orvalis.h"

#include "core/erreurs.h"
#include "ui/bureau/icone.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/saisie.h"
#include "ui/fenetre/cadre.h"
#include "ui/fenetre/designateur.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_demarrage.h"
#include "ui/flux/flux_fichiers.h"
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
#include "ui/widgets/gestes.h"
#include "ui/widgets/lab_conseil.h"
#include "ui/widgets/police.h"
#include "ui/widgets/rangees.h"
#include "ui/widgets/vue_page.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

// Resources of a static library are linked only where they are asked for.
static void ChargerRessources() {
    Q_INIT_RESOURCE(orvalis);
}

namespace orvalis {
namespace {

constexpr int kDureeTic = 1000;

// Something the operator does to a control.
bool EstUnGeste(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

// Enter on a button, or its mnemonic.
bool Presse(const QEvent& evenement) {
    if (evenement.type() == QEvent::Shortcut)
        return !static_cast<const QShortcutEvent&>(evenement).isAmbiguous();
    return EstEntree(evenement);
}

// What an event of the keyboard says of the Enter key. Only windows are asked, which every key
// comes to first, and once.
std::optional<MouvementEntree> MouvementDeEntree(const QObject& objet, const QEvent& evenement) {
    const bool enfoncee = evenement.type() == QEvent::KeyPress;
    if (!objet.isWindowType() || (!enfoncee && evenement.type() != QEvent::KeyRelease))
        return std::nullopt;
    const auto& touche = static_cast<const QKeyEvent&>(evenement);
    if (touche.key() != Qt::Key_Return && touche.key() != Qt::Key_Enter)
        return std::nullopt;
    return MouvementEntree{enfoncee, touche.timestamp(), touche.isAutoRepeat(),
                           reinterpret_cast<std::uintptr_t>(&objet)};
}

// A letter held with Alt: a command, or a slip of the hand, but never a letter of a box.
bool LettreAvecAlt(const QEvent& evenement) {
#ifdef Q_OS_MACOS
    return false; // that key makes accented letters there
#else
    if (evenement.type() != QEvent::KeyPress)
        return false;
    const auto& touche = static_cast<const QKeyEvent&>(evenement);
    const auto commandes = touche.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
    return commandes == Qt::AltModifier && !touche.text().isEmpty() &&
           touche.text().front().isPrint();
#endif
}

// A layout without margins of its own.
template<typename Disposition> Disposition* SansMarges(QWidget* parent) {
    auto* disposition = new Disposition(parent);
    disposition->setContentsMargins(0, 0, 0, 0);
    disposition->setSpacing(6);
    return disposition;
}

} // namespace

Orvalis::Orvalis(Systeme& systeme, QWidget* parent)
    : QMainWindow(parent), exterieur_(systeme, [this](const Action& action) { Sortir(action); }),
      p_{session_,
         ecran_,
         feuille_,
         enTete_,
         exterieur_,
         *this,
         [this](const Action& action) { Sortir(action); },
         [this] { close(); }},
      adieu_(new QLabel(this)),
      panneaux_{
          *new PanneauHorloge(this),   *new PictListe(this),      *new VuePage(this),
          *new PictFiche(this),        *new PictMenu(this),       *new PictEnrs(this),
          *new PictRech(this),         *new PictContacts(this),   *new FraMsgFiche(this),
          *new PictChangLocator(this), *new PictClasser(this),    *new PJumelage(this),
          *new QStackedWidget(this),   *new PictFeuilleQSL(this), *new PictCtrlImpression(this),
          *new LabConseil(this)},
      timer1_(new QTimer(this)) {
    ChargerRessources();
    setObjectName(QStringLiteral("Orvalis"));
    setWindowIcon(IconeProgramme());
    timer1_->setObjectName(QStringLiteral("Timer1"));
    designateur_ = new Designateur([this](const Commande* c) { Designer(c); }, this);
    Disposer();
    peintre_ = std::make_unique<Peintre>(*this, panneaux_, *adieu_, BrancherMenus());
    BrancherBoutons();
    BrancherListes();
    BrancherFiche();
    BrancherFeuille();
    BrancherFoyer();
    Peindre();
    Dimensionner();
    qApp->installEventFilter(this);
}

Orvalis::~Orvalis() {
    // The panels go while the state they report to is still there, and nobody listens any more.
    qApp->removeEventFilter(this);
    ecran_.arret = true;
    delete takeCentralWidget();
}

void Orvalis::Disposer() {
    panneaux_.droite.addWidget(ColonneDroite());
    panneaux_.droite.addWidget(&panneaux_.feuilleQSL);
    panneaux_.feuilleQSL.Accueillir(panneaux_.ctrlImpression);
    cadre_ = new Cadre(*ColonneGauche(),
                       {panneaux_.droite, [this] { return panneaux_.fiche.LargeurPleine(); },
                        [this](int largeur) {
                            panneaux_.fiche.Ranger(largeur);
                            rangeeBoutons_->Ranger(largeur);
                            panneaux_.feuilleQSL.Ranger(largeur);
                        }},
                       this);
    // The line of advice is in view whatever is scrolled out of it.
    auto* tout = new QWidget(this);
    auto* pile = SansMarges<QVBoxLayout>(tout);
    pile->setSpacing(0);
    pile->addWidget(cadre_, 1);
    pile->addWidget(&panneaux_.conseil);
    setCentralWidget(tout);
    OrdonnerTabulation();
}

// The window opens so that the sheet shows its largest type, as far as the screen allows.
void Orvalis::Dimensionner() {
    const QSize voulue = cadre_->TailleVoulue() +
                         QSize(0, menuBar()->sizeHint().height() + panneaux_.conseil.height());
    resize(TailleSurEcran(*this, voulue));
}

// What a list of contacts found is read beside the list of the log; the boxes of the card keep
// their own order.
void Orvalis::OrdonnerTabulation() {
    const char* avant = "ListeLog";
    for (const char* nom : {"ContactsListe", "BtContactsFermer"}) {
        setTabOrder(findChild<QWidget*>(QLatin1String(avant)),
                    findChild<QWidget*>(QLatin1String(nom)));
        avant = nom;
    }
}

QWidget* Orvalis::ColonneGauche() {
    auto* colonne = new QWidget;
    auto* pile = SansMarges<QVBoxLayout>(colonne);
    pile->addWidget(&panneaux_.horloge);
    pile->addWidget(&panneaux_.liste, 1);
    adieu_->setObjectName(QStringLiteral("OrvalisLab03"));
    adieu_->setAlignment(Qt::AlignCenter);
    pile->addWidget(adieu_);
    colonne->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return colonne;
}

// The card, the buttons under it, beside them the question about the card, then the sheet; whatever
// else asks or answers something lies over the right of the sheet, under the card. Nothing of it
// moves anything.
QWidget* Orvalis::ColonneDroite() {
    auto* colonne = new QWidget;
    auto* pile = SansMarges<QVBoxLayout>(colonne);
    pile->setSpacing(0); // the room between card and sheet is the question's
    pile->addWidget(&panneaux_.fiche);
    auto* boutons = new QWidget(colonne);
    auto* tour = new QWidget(boutons); // the buttons at rest, or those of entry
    auto* cote = SansMarges<QHBoxLayout>(tour);
    cote->addWidget(&panneaux_.menu);
    cote->addWidget(&panneaux_.enrs);
    tour->setMinimumWidth(
        std::max(LargeurMinimale(panneaux_.menu), LargeurMinimale(panneaux_.enrs)));
    rangeeBoutons_ = SansMarges<Rangees>(boutons);
    GarderPlace(panneaux_.msgFiche);
    rangeeBoutons_->Ajouter({tour, &panneaux_.msgFiche, &panneaux_.rech}, 6, 2);
    constexpr int kEcart = 3;
    rangeeBoutons_->setContentsMargins(0, kEcart, 0, kEcart);
    pile->addWidget(boutons);
    auto* feuille = new QWidget(colonne);
    feuille->setObjectName(QStringLiteral("PictPage"));
    SansMarges<QVBoxLayout>(feuille)->addWidget(&panneaux_.page);
    auto* reponses = new QVBoxLayout;
    reponses->setContentsMargins(0, 0, 1, 0);
    reponses->setSpacing(0);
    for (QFrame* panneau :
         std::initializer_list<QFrame*>{&panneaux_.changLocator, &panneaux_.classer,
                                        &panneaux_.jumelage, &panneaux_.contacts}) {
        // The list takes the height there is; the others are as high as what they say.
        const bool haut = panneau == &panneaux_.contacts;
        reponses->addWidget(panneau, haut ? 1 : 0);
        if (!haut)
            panneau->setSizePolicy(panneau->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
        panneau->setAutoFillBackground(true);
        panneau->setFrameStyle(QFrame::Box | QFrame::Plain); // a clear edge over the sheet
        panneau->raise();
    }
    reponses->addStretch(0);
    auto* bas = new QGridLayout;
    bas->addWidget(feuille, 0, 0, 1, 2);
    bas->addLayout(reponses, 0, 1);
    bas->setColumnStretch(0, 1);
    pile->addLayout(bas, 1);
    return colonne;
}

void Orvalis::Executer(const Action& flux, QuandGele quand) {
    if (ecran_.arret || (ecran_.gel && quand == QuandGele::Non) || peintre_->EnCours())
        return;
    const QScopedValueRollback profondeur(profondeur_, profondeur_ + 1);
    try {
        flux();
        if (profondeur_ == 1)
            Peindre();
    } catch (const CahierPerdu& perdu) {
        // Nothing was written, and the file that is still open is the last that has every contact.
        exterieur_.Avertir(this, Q(perdu.what() + ContactANoter(session_.carte)));
        RetrouverFoyer(p_);
        if (profondeur_ == 1)
            Peindre();
    } catch (const std::exception& echec) {
        if (!std::exchange(ecran_.arret, true)) {
            exterieur_.Avertir(this, Q(MessageErreur(echec) + ContactANoter(session_.carte)));
            QuitterProgramme(p_, 1);
        }
    }
}

void Orvalis::Sortir(const Action& action) {
    const QScopedValueRollback profondeur(profondeur_, 0);
    Peindre();
    action();
}

void Orvalis::Peindre() {
    VueFenetre vue = VoirFenetre(session_, ecran_, feuille_);
    if (AccorderFoyer(session_.carte, ecran_, session_.station, vue))
        vue = VoirFenetre(session_, ecran_, feuille_);
    if (const auto& derniere = peintre_->Derniere();
        derniere && OublierAnnonce(ecran_, *derniere, vue))
        vue = VoirFenetre(session_, ecran_, feuille_);
    peintre_->Peindre(vue, ecran_.foyer);
    // What had the focus may have gone without being known to the rules.
    if (peintre_->FoyerPerdu(ecran_.foyer) &&
        AccorderFoyer(session_.carte, ecran_, session_.station, vue, true))
        peintre_->Peindre(VoirFenetre(session_, ecran_, feuille_), ecran_.foyer);
}

bool Orvalis::event(QEvent* evenement) {
    const bool traite = QMainWindow::event(evenement);
    // The first activation starts the program; where no window manager activates windows, being
    // shown must do.
    if (evenement->type() == QEvent::WindowActivate)
        QTimer::singleShot(0, this, &Orvalis::LancerDemarrage);
    else if (evenement->type() == QEvent::Show && ecran_.temoinDemarrage == kDemarrageAFaire)
        QTimer::singleShot(kDureeTic, this, &Orvalis::LancerDemarrage);
    return traite;
}

void Orvalis::LancerDemarrage() {
    if (ecran_.temoinDemarrage != kDemarrageAFaire || demarrageEnCours_ || ecran_.arret)
        return;
    demarrageEnCours_ = true;
    bool creation = false;
    Executer([&] {
        creation = Demarrer(p_);
        if (ecran_.temoinDemarrage == 0)
            timer1_->start(kDureeTic);
    });
    // Two windows that close one behind the other, as those of the creation do, can leave the
    // keyboard with none.
    if (creation && !ecran_.arret)
        activateWindow();
    // The clock runs while the operator reads it.
    if (ecran_.temoinDemarrage == 0)
        Executer([this] { PrevenirSiIncomplet(p_); });
    demarrageEnCours_ = false;
}

void Orvalis::closeEvent(QCloseEvent* evenement) {
    bool reste = false;
    const auto fermer = [&] {
        reste = true;
        FermerCahierEtQuitter(p_);
        reste = false;
    };
    Executer(fermer, QuandGele::Oui);
    evenement->setAccepted(!reste || ecran_.arret);
}

// Enter on a button, or its mnemonic, presses it at once: the usual animation would let the next
// keystrokes go to the control that is about to lose the focus. While the window is frozen, what
// the operator does reaches only what quits.
bool Orvalis::eventFilter(QObject* objet, QEvent* evenement) {
    if (const auto mouvement = MouvementDeEntree(*objet, *evenement))
        SuivreEntree(entree_, *mouvement);
    if (ecran_.gel && EstUnGeste(evenement->type()) && objet->isWidgetType()) {
        const bool agit =
            qobject_cast<QMenuBar*>(objet) != nullptr ||
            std::find(memeGeles_.begin(), memeGeles_.end(), objet) != memeGeles_.end();
        if (static_cast<QWidget*>(objet)->window() == this && !agit)
            return true;
    }
    if (qobject_cast<QLineEdit*>(objet) != nullptr && LettreAvecAlt(*evenement))
        return true;
    auto* bouton = qobject_cast<QAbstractButton*>(objet);
    if (bouton != nullptr && EstEntree(*evenement) && !entree_.propre)
        return true; // those of dialogs too
    if (bouton != nullptr && bouton->window() == this && bouton->isEnabled() &&
        Presse(*evenement)) {
        bouton->click();
        return true;
    }
    return QMainWindow::eventFilter(objet, evenement);
}

} // namespace orvalis
