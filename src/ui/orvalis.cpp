#include "ui/orvalis.h"

#include "core/messages.h"
#include "ui/chang_locator.h"
#include "ui/effets.h"
#include "ui/feuille_log.h"
#include "ui/flux_demarrage.h"
#include "ui/gestes.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_classer.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_ctrl_impression.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_feuille_qsl.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_horloge.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_liste.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>

// Resources of a static library are linked only where they are asked for.
static void ChargerRessources() {
    Q_INIT_RESOURCE(orvalis);
}

namespace orvalis {
namespace {

constexpr int kDemarrageAFaire = 4;
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
    return EstEntree(evenement) && !static_cast<const QKeyEvent&>(evenement).isAutoRepeat();
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
    : QMainWindow(parent), p_{*this,
                              session_,
                              systeme,
                              *new PanneauHorloge(this),
                              *new PictListe(this),
                              *new FeuilleLog(this),
                              *new PictFiche(this),
                              *new PictMenu(this),
                              *new PictEnrs(this),
                              *new PictRech(this),
                              *new PictContacts(this),
                              *new FraMsgFiche(this),
                              *new PictChangLocator(this),
                              *new PictClasser(this),
                              *new PJumelage(this),
                              feuille_,
                              enTete_,
                              *new QStackedWidget(this),
                              *new PictFeuilleQSL(this),
                              *new PictCtrlImpression(this)},
      timer1_(new QTimer(this)) {
    ChargerRessources();
    setObjectName(QStringLiteral("Orvalis"));
    setWindowTitle(QStringLiteral(" Cahier de Trafic"));
    setWindowIcon(QIcon(QStringLiteral(":/orvalis.svg")));
    timer1_->setObjectName(QStringLiteral("Timer1"));
    Disposer();
    p_.actualiserMenus = [this] { ActualiserMenus(); };
    CacherPanneaux(p_);
    BrancherMenus();
    BrancherPanneaux();
    BrancherNavigation();
    BrancherFiche();
    BrancherSaisie();
    BrancherMaintenance();
    BrancherQsl();
    BrancherImpression();
    ActualiserMenus();
    qApp->installEventFilter(this);
}

Orvalis::~Orvalis() {
    // The panels go while the session they report to is still there, and nobody listens any more.
    qApp->removeEventFilter(this);
    p_.arret = true;
    delete takeCentralWidget();
}

void Orvalis::Disposer() {
    auto* centre = new QWidget;
    auto* ligne = new QHBoxLayout(centre);
    ligne->setContentsMargins(8, 6, 8, 6);
    ligne->setSpacing(10);
    ligne->addWidget(ColonneGauche());
    p_.droite.addWidget(ColonneDroite());
    p_.droite.addWidget(&p_.feuilleQSL);
    p_.feuilleQSL.Accueillir(p_.ctrlImpression);
    ligne->addWidget(&p_.droite, 1);
    // On a screen too small for the window, its parts stay within reach.
    auto* defilement = new QScrollArea(this);
    defilement->setFrameShape(QFrame::NoFrame);
    defilement->setWidgetResizable(true);
    defilement->setFocusPolicy(Qt::NoFocus);
    defilement->setWidget(centre);
    setCentralWidget(defilement);
    const QSize voulue(1320, 740);
    const QScreen* ecran = QGuiApplication::primaryScreen();
    resize(ecran == nullptr ? voulue : voulue.boundedTo(ecran->availableSize() - QSize(16, 40)));
}

QWidget* Orvalis::ColonneGauche() {
    auto* colonne = new QWidget;
    auto* pile = SansMarges<QVBoxLayout>(colonne);
    pile->addWidget(&p_.horloge);
    pile->addWidget(&p_.liste, 1);
    auto* adieu = new QLabel(colonne);
    adieu->setObjectName(QStringLiteral("OrvalisLab03"));
    adieu->setAlignment(Qt::AlignCenter);
    pile->addWidget(adieu);
    colonne->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return colonne;
}

// The card, the buttons under it, then the sheet; whatever asks or answers something lies over the
// right of the sheet, under the card, and moves nothing.
QWidget* Orvalis::ColonneDroite() {
    auto* colonne = new QWidget;
    auto* pile = SansMarges<QVBoxLayout>(colonne);
    pile->addWidget(&p_.fiche);
    auto* boutons = new QWidget(colonne);
    auto* rangee = SansMarges<QHBoxLayout>(boutons);
    rangee->addWidget(&p_.menu);
    rangee->addWidget(&p_.enrs);
    rangee->addStretch(1);
    rangee->addWidget(&p_.rech);
    boutons->setMinimumHeight(p_.menu.sizeHint().height());
    pile->addWidget(boutons);
    auto* feuille = new QWidget(colonne);
    feuille->setObjectName(QStringLiteral("PictPage"));
    SansMarges<QVBoxLayout>(feuille)->addWidget(&p_.page);
    auto* reponses = new QVBoxLayout;
    reponses->setContentsMargins(0, 0, 1, 0);
    reponses->setSpacing(0);
    for (QWidget* panneau : std::initializer_list<QWidget*>{
             &p_.msgFiche, &p_.changLocator, &p_.classer, &p_.jumelage, &p_.contacts}) {
        // The list takes the height there is; the others are as high as what they say.
        const bool haut = panneau == &p_.contacts;
        reponses->addWidget(panneau, haut ? 1 : 0);
        if (!haut)
            panneau->setSizePolicy(panneau->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
        panneau->setAutoFillBackground(true);
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

void Orvalis::Executer(const Action& flux) {
    if (p_.arret || p_.gel)
        return;
    try {
        flux();
    } catch (const std::exception& echec) {
        if (p_.arret)
            return;
        p_.arret = true;
        p_.systeme.Avertir(this, Q(MessageErreur(echec)));
        QuitterProgramme(p_, 1);
    }
    ActualiserMenus();
}

bool Orvalis::event(QEvent* evenement) {
    const bool traite = QMainWindow::event(evenement);
    // The first activation starts the program; where no window manager activates windows, being
    // shown must do.
    if (evenement->type() == QEvent::WindowActivate)
        QTimer::singleShot(0, this, &Orvalis::Demarrer);
    else if (evenement->type() == QEvent::Show && temoinDemarrage_ == kDemarrageAFaire)
        QTimer::singleShot(kDureeTic, this, &Orvalis::Demarrer);
    return traite;
}

void Orvalis::Demarrer() {
    if (temoinDemarrage_ != kDemarrageAFaire || demarrageEnCours_ || p_.arret)
        return;
    demarrageEnCours_ = true;
    Executer([this] {
        for (auto suite = Demarrage::Recommencer; suite == Demarrage::Recommencer && !p_.arret;) {
            {
                const Gel gel(p_);
                p_.systeme.Pause(1);
            }
            if (p_.arret)
                return;
            suite = ChargerParametres(p_);
            if (suite == Demarrage::Arreter)
                return QuitterProgramme(p_, 0);
        }
        timer1_->start(kDureeTic);
        temoinDemarrage_ = 0;
    });
    demarrageEnCours_ = false;
}

void Orvalis::closeEvent(QCloseEvent* evenement) {
    evenement->accept();
    if (!p_.arret)
        QuitterProgramme(p_, 0);
}

// Enter on a button, or its mnemonic, presses it at once: the usual animation would let the next
// keystrokes go to the control that is about to lose the focus. While the window is frozen, what
// the operator does reaches only what quits.
bool Orvalis::eventFilter(QObject* objet, QEvent* evenement) {
    if (p_.gel && EstUnGeste(evenement->type()) && objet->isWidgetType()) {
        const auto* controle = static_cast<QWidget*>(objet);
        const bool quitte = controle->objectName() == QLatin1String("BtFermerLog") ||
                            qobject_cast<const QMenuBar*>(controle) != nullptr;
        if (controle->window() == this && !quitte)
            return true;
    }
    if (qobject_cast<QLineEdit*>(objet) != nullptr && LettreAvecAlt(*evenement))
        return true;
    auto* bouton = qobject_cast<QAbstractButton*>(objet);
    if (bouton != nullptr && bouton->window() == this && bouton->isEnabled() &&
        Presse(*evenement)) {
        bouton->click();
        return true;
    }
    return QMainWindow::eventFilter(objet, evenement);
}

} // namespace orvalis
