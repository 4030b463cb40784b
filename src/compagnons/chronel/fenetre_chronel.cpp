#include "compagnons/chronel/fenetre_chronel.h"

#include "compagnons/chronel/grand_cadran.h"
#include "core/dates.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/gestes.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"
#include "ui_fenetre_chronel.h"

#include <QAccessible>
#include <QDateTime>
#include <QKeyEvent>

namespace orvalis {
namespace {

constexpr qreal kGrande = 2.6;         ///< the size of the two times
constexpr int kMarge = 4;              ///< of a label above and below its lines
constexpr int kSecondesRelecture = 10; ///< between two questions to the service

QDateTime EnQt(std::chrono::system_clock::time_point moment) {
    const auto ms =
        std::chrono::duration_cast<std::chrono::milliseconds>(moment.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(ms.count());
}

Instant InstantDe(const QDateTime& t) {
    return {t.date().year(), t.date().month(),  t.date().day(),
            t.time().hour(), t.time().minute(), t.time().second()};
}

// "UTC+1", "UTC−3:30"; the zone's own name is of no use to who compares two clocks.
QString DireDecalage(int secondes) {
    return Q("Heure de l'ordinateur (UTC" + EcartUtc(secondes / 60) + ")");
}

} // namespace

FenetreChronel::FenetreChronel(Horloge horloge)
    : ui_(std::make_unique<Ui::FenetreChronel>()), horloge_(std::move(horloge)), service_(etat_) {
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    Preparer();
    Brancher();
    Battre();
    Montrer();
    ui_->ChkReseau->setFocus();
    service_.Relire();
}

FenetreChronel::~FenetreChronel() = default;

void FenetreChronel::Preparer() {
    for (QLabel* heure : {ui_->LabHeure, ui_->LabHeureUtc}) {
        heure->setFont(PoliceAjustee(font(), kGrande));
        heure->setMinimumWidth(heure->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00 ")));
    }
    for (QLabel* titre : {ui_->LabTitre, ui_->LabTitreUtc})
        titre->setFont(PoliceAjustee(font(), kPetite));
    ui_->TxtDate->setFixedWidth(LargeurDeBoite(*ui_->TxtDate, 11));
    ui_->TxtHeure->setFixedWidth(LargeurDeBoite(*ui_->TxtHeure, 9));
    // Room for the longest sentence, so that none moves what is below it.
    for (QLabel* phrase : {ui_->LabEtat, ui_->LabMessage})
        phrase->setMinimumHeight(2 * phrase->fontMetrics().lineSpacing() + kMarge);
    PeindreSelonBureau(*ui_->LabMessage, [this] { MontrerMessage(VoirChronel(etat_)); });
    for (QAbstractButton* bouton : findChildren<QAbstractButton*>())
        bouton->installEventFilter(this);
    battement_.setSingleShot(true);
    battement_.setTimerType(Qt::PreciseTimer);
    relecture_.setInterval(std::chrono::seconds{kSecondesRelecture});
}

void FenetreChronel::Brancher() {
    connect(&battement_, &QTimer::timeout, this, &FenetreChronel::Battre);
    connect(&relecture_, &QTimer::timeout, &service_, &ServiceHeure::Relire);
    connect(&service_, &ServiceHeure::Change, this, &FenetreChronel::Montrer);
    connect(&service_, &ServiceHeure::Repondu, this, &FenetreChronel::RevenirAuFoyer);
    connect(ui_->ChkReseau, &QCheckBox::clicked, this, &FenetreChronel::ChangerReseau);
    connect(ui_->BtRegler, &QPushButton::clicked, this, &FenetreChronel::ReglerALaMain);
    connect(ui_->BtPage, &QPushButton::clicked, &service_, &ServiceHeure::OuvrirPage);
    connect(ui_->BtFermer, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->TxtDate, &QLineEdit::returnPressed, ui_->TxtHeure, [this] {
        ui_->TxtHeure->setFocus();
        ui_->TxtHeure->selectAll();
    });
    connect(ui_->TxtHeure, &QLineEdit::returnPressed, this, &FenetreChronel::ReglerALaMain);
    connect(ui_->TxtDate, &QLineEdit::textChanged, this, &FenetreChronel::Armer);
    connect(ui_->TxtHeure, &QLineEdit::textChanged, this, &FenetreChronel::Armer);
    connect(ui_->ChkUtc, &QCheckBox::toggled, this, [this] {
        ProposerDate();
        Armer();
    });
}

// Shows the second that has begun, and waits for the next one.
void FenetreChronel::Battre() {
    const QDateTime ici = EnQt(horloge_());
    const Instant locale = InstantDe(ici);
    const Instant utc = InstantDe(ici.toUTC());
    ui_->Cadran->Montrer(locale);
    ui_->LabTitre->setText(DireDecalage(ici.offsetFromUtc()));
    ui_->LabHeure->setText(Q(HeureLongue(locale)));
    ui_->LabDate->setText(Q(DateLongue(locale)));
    ui_->LabHeureUtc->setText(Q(HeureLongue(utc)));
    ui_->LabDateUtc->setText(Q(DateLongue(utc)));
    if (!ui_->TxtDate->hasFocus())
        ProposerDate();
    battement_.start(1000 - ici.time().msec());
}

void FenetreChronel::Montrer() {
    const VueChronel vue = VoirChronel(etat_);
    ui_->LabEtat->setText(Q(vue.etat));
    ui_->BtPage->setVisible(vue.page);
    ui_->ChkReseau->setHidden(vue.page);
    ui_->GrpMain->setHidden(vue.page);
    ui_->ChkReseau->setEnabled(vue.interrupteur);
    ui_->ChkReseau->setChecked(vue.coche);
    for (QWidget* saisie :
         std::initializer_list<QWidget*>{ui_->LabelDate, ui_->TxtDate, ui_->LabelHeure,
                                         ui_->TxtHeure, ui_->ChkUtc, ui_->BtRegler})
        saisie->setEnabled(vue.saisie);
    MontrerMessage(vue);
    Armer();
    if (!ARelire(etat_))
        relecture_.stop();
    else if (!relecture_.isActive())
        relecture_.start();
}

void FenetreChronel::MontrerMessage(const VueChronel& vue) {
    QPalette couleurs;
    if (vue.echec)
        couleurs.setColor(QPalette::WindowText, RougeSur(couleurs.color(QPalette::Window)));
    ui_->LabMessage->setPalette(couleurs);
    const QString texte = Q(vue.message);
    if (ui_->LabMessage->text() == texte)
        return;
    ui_->LabMessage->setText(texte);
    // Nothing else tells who cannot see it that there is an answer.
    if (!texte.isEmpty()) {
        QAccessibleEvent annonce(ui_->LabMessage, QAccessible::Alert);
        QAccessible::updateAccessibility(&annonce);
    }
}

// The colours of the main window's store button: at rest, and ready.
void FenetreChronel::Armer() {
    TeinterFond(*ui_->BtRegler, !ui_->BtRegler->isEnabled() ? Teinte::Aucune
                                : LireSaisie().moment       ? Teinte::Vert
                                                            : Teinte::Peche);
}

void FenetreChronel::ChangerReseau() {
    foyer_ = focusWidget();
    // The box shows what is, not what is wished for: painted while the answer is waited for, it
    // turns back, and turns once the service has said so.
    service_.MettreReseau(ui_->ChkReseau->isChecked());
}

// Today's date stands there to be kept; the time must be typed, since one that stood there would be
// past.
void FenetreChronel::ProposerDate() {
    if (ui_->TxtDate->isModified()) // it has been typed
        return;
    const QDateTime ici = EnQt(horloge_());
    const QDateTime montre = ui_->ChkUtc->isChecked() ? ici.toUTC() : ici;
    ui_->TxtDate->setText(montre.toString(QStringLiteral("dd/MM/yyyy")));
}

LectureHeure FenetreChronel::LireSaisie() const {
    return LireDateHeure(S(ui_->TxtDate->text()), S(ui_->TxtHeure->text()),
                         ui_->ChkUtc->isChecked());
}

void FenetreChronel::ReglerALaMain() {
    const LectureHeure lue = LireSaisie();
    foyer_ = ui_->TxtHeure;
    if (lue.moment) {
        service_.Regler(
            std::chrono::duration_cast<std::chrono::microseconds>(*lue.moment - horloge_()));
        return;
    }
    etat_.message = lue.reproche;
    etat_.echec = true;
    Montrer();
    QLineEdit* fautive = lue.fautive == BoiteHeure::Date ? ui_->TxtDate : ui_->TxtHeure;
    fautive->setFocus();
    fautive->selectAll();
}

// What was grey while the answer was waited for takes the focus back, so that it can be tried
// again.
void FenetreChronel::RevenirAuFoyer() {
    if (!etat_.echec) {
        ui_->TxtHeure->clear();
        ui_->TxtDate->setModified(false);
    }
    Battre();
    if (foyer_ != nullptr && foyer_->isEnabled())
        foyer_->setFocus();
}

void FenetreChronel::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(evenement);
}

void FenetreChronel::changeEvent(QEvent* evenement) {
    // Whoever comes back to the window may have installed or switched something meanwhile.
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow())
        service_.Relire();
    QWidget::changeEvent(evenement);
}

// Enter presses the button that has the focus; held down, it does so once.
bool FenetreChronel::eventFilter(QObject* objet, QEvent* evenement) {
    auto* bouton = qobject_cast<QAbstractButton*>(objet);
    if (bouton == nullptr || !EstEntree(*evenement))
        return QWidget::eventFilter(objet, evenement);
    if (!static_cast<QKeyEvent*>(evenement)->isAutoRepeat())
        bouton->click();
    return true;
}

} // namespace orvalis
