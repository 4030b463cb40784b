#include "ui/dialogues/dlg2.h"

#include "core/texte.h"
#include "geo/locator.h"
#include "geo/notations.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/chapitre.h"
#include "ui/dialogues/guide.h"
#include "ui/widgets/gestes.h"
#include "ui_dlg2.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QValidator>

#include <algorithm>
#include <cmath>

namespace orvalis {
namespace {

constexpr const char* kLocatorOuverture = "JN04SD";
constexpr int kLimiteLatitude = 90;
constexpr int kLimiteLongitude = 180;

bool EstLettre(Touches touches) {
    return touches == Touches::Hemisphere || touches == Touches::Cote;
}

int Entier(const QLineEdit* champ) {
    return champ->text().toInt();
}

void AfficherEntier(QLineEdit* champ, int valeur, int chiffres) {
    champ->setText(QStringLiteral("%1").arg(valeur, chiffres, 10, QLatin1Char('0')));
}

// As wide as its text, in whatever font and style the desktop has.
void AjusterLargeur(QLineEdit* champ, int caracteres) {
    champ->ensurePolished();
    QStyleOptionFrame option;
    option.initFrom(champ);
    option.lineWidth = champ->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, champ);
    const QFontMetrics mesure = champ->fontMetrics();
    const int marge = mesure.horizontalAdvance(QLatin1Char('0'));
    const QSize contenu(mesure.horizontalAdvance(QString(caracteres, QLatin1Char('M'))) + marge,
                        mesure.height());
    champ->setFixedWidth(
        champ->style()->sizeFromContents(QStyle::CT_LineEdit, &option, contenu, champ).width());
}

} // namespace

// Holds every insertion (key, paste, drop, input method) to the box's rule. A maximum length of the
// box itself would cut a pasted text before its refused characters are dropped.
class Dlg2::Filtre : public QValidator {
  public:
    Filtre(const Regle& regle, QObject* parent) : QValidator(parent), regle_(regle) {}

    State validate(QString& texte, int& curseur) const override {
        const std::string avant = S(texte.left(curseur));
        const std::string apres = S(texte.mid(curseur));
        const TexteEdite pris =
            FiltrerTexte(regle_.touches, regle_.largeur, {avant + apres, Longueur(avant)});
        // What these boxes take is one unit of Qt's text for each character.
        texte = Q(pris.texte);
        curseur = static_cast<int>(pris.curseur);
        return Acceptable;
    }

  private:
    Regle regle_;
};

Dlg2::Dlg2(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::Dlg2>()) {
    ui_->setupUi(this);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            [this] { Guide::Ouvrir(*this, kChapitreCoordonnees); });
    using enum Touches;
    constexpr Regle kSoixante{Chiffres, 2, 60};
    constexpr Regle kDecimal{Decimal, 0, 0};
    boites_ = {{
        {ui_->Fr1DegText1, {Chiffres, 2, kLimiteLatitude}, Notation::Dms, ui_->Fr1MinText1},
        {ui_->Fr1MinText1, kSoixante, Notation::Dms, ui_->Fr1SecText1},
        {ui_->Fr1SecText1, kSoixante, Notation::Dms, ui_->Fr1LatSgnText},
        {ui_->Fr1LatSgnText, {Hemisphere, 1, 0}, Notation::Dms, ui_->Fr1DegText2},
        {ui_->Fr1DegText2, {Chiffres, 3, kLimiteLongitude}, Notation::Dms, ui_->Fr1MinText2},
        {ui_->Fr1MinText2, kSoixante, Notation::Dms, ui_->Fr1SecText2},
        {ui_->Fr1SecText2, kSoixante, Notation::Dms, ui_->Fr1LonSgnText},
        {ui_->Fr1LonSgnText, {Cote, 1, 0}, Notation::Dms, ui_->Fr1CmdFermer},
        {ui_->Fr1LatCent, kDecimal, Notation::Decimale, ui_->Fr1LonCent},
        {ui_->Fr1LonCent, kDecimal, Notation::Decimale, ui_->Fr1CmdFermer},
        {ui_->Fr1TextLocator,
         {Touches::Locator, kLargeurLocator, 0},
         Notation::Locator,
         ui_->Fr1CmdFermer},
    }};
    QFont grand = ui_->Fr1TextLocator->font();
    grand.setBold(true);
    ui_->Fr1TextLocator->setFont(grand);
    for (const Boite& boite : boites_)
        PreparerBoite(boite);
    for (QLabel* legende : {ui_->Fr1LabDms, ui_->Fr1LabCent, ui_->Fr1LabLocator})
        legende->installEventFilter(this);
    connect(ui_->Fr1CmdFermer, &QPushButton::clicked, this, &QDialog::accept);
}

Dlg2::~Dlg2() = default;

void Dlg2::PreparerBoite(const Boite& boite) {
    constexpr int kLargeurDecimale = 8; // "-179.9583" in digits, which are narrower than an M
    boite.champ->setValidator(new Filtre(boite.regle, boite.champ));
    boite.champ->installEventFilter(this);
    AjusterLargeur(boite.champ, boite.regle.largeur > 0 ? static_cast<int>(boite.regle.largeur)
                                                        : kLargeurDecimale);
    connect(boite.champ, &QLineEdit::textEdited, this,
            [this, &boite] { TraiterChangement(boite); });
}

std::optional<std::string> Dlg2::LocatorModifie() const {
    return modifie_ ? std::optional(locator_) : std::nullopt;
}

void Dlg2::showEvent(QShowEvent* evenement) {
    // Coming back from an icon or from another window is no new opening.
    if (!evenement->spontaneous())
        Ouvrir();
    QDialog::showEvent(evenement);
}

// The button is no default button, which would look pressed by Enter in the boxes too; so Enter has
// to be brought to it when it has the focus.
void Dlg2::keyPressEvent(QKeyEvent* evenement) {
    if (EstEntree(*evenement) && ui_->Fr1CmdFermer->hasFocus())
        ui_->Fr1CmdFermer->click();
    else
        QDialog::keyPressEvent(evenement);
}

void Dlg2::Ouvrir() {
    notation_ = Notation::Locator;
    locator_ = kLocatorOuverture;
    locatorEdite_ = false;
    modifie_ = false;
    ui_->Fr1TextLocator->setText(Q(locator_));
    AfficherDepuisLocator();
    ui_->Fr1CmdFermer->setFocus();
}

bool Dlg2::eventFilter(QObject* objet, QEvent* evenement) {
    // The shortcut of a notation's caption is the keyboard's way to click its first box.
    const auto* legende = qobject_cast<QLabel*>(objet);
    const QObject* vise = legende != nullptr ? legende->buddy() : objet;
    const auto boite = std::find_if(boites_.begin(), boites_.end(),
                                    [&](const Boite& b) { return b.champ == vise; });
    if (boite == boites_.end())
        return QDialog::eventFilter(objet, evenement);
    if (legende != nullptr) {
        if (evenement->type() == QEvent::Shortcut)
            Choisir(*boite);
        return false;
    }
    switch (evenement->type()) {
    case QEvent::KeyPress:
        return TraiterTouche(*boite, *static_cast<QKeyEvent*>(evenement));
    case QEvent::InputMethod: {
        const std::string compose = S(TexteCompose(*evenement));
        return !compose.empty() && FiltrerTouches(boite->regle.touches, compose).empty();
    }
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(evenement)->button() == Qt::LeftButton)
            Choisir(*boite);
        return false;
    case QEvent::FocusIn:
    case QEvent::FocusOut: {
        // A window that comes and goes, or a context menu, neither enters a box nor leaves it.
        if (FoyerVenuDAilleurs(static_cast<QFocusEvent*>(evenement)->reason()))
            return false;
        if (evenement->type() == QEvent::FocusOut)
            Quitter(*boite);
        else
            boite->champ->selectAll();
        return false;
    }
    default:
        return false;
    }
}

// True when the key goes no further. Refused keys must stop here: the box would first let them
// replace the selection.
bool Dlg2::TraiterTouche(const Boite& boite, const QKeyEvent& touche) {
    if (EstEntree(touche)) {
        Confirmer(boite);
        return true;
    }
    // Kept on purpose, for the operators: Backspace does not empty a letter box.
    if (EstLettre(boite.regle.touches) && touche.key() == Qt::Key_Backspace)
        return true;
    const QString texte = touche.text();
    const bool commande = (touche.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
    if (commande || texte.isEmpty() || !texte.front().isPrint())
        return false;
    const bool plein = boite.regle.largeur > 0 && !boite.champ->hasSelectedText() &&
                       boite.champ->text().size() >= static_cast<int>(boite.regle.largeur);
    return plein || FiltrerTouches(boite.regle.touches, Gauche(S(texte), 1)).empty();
}

// Enter takes a complete locator over; in the other boxes, whose values are taken over as they are
// typed, it only moves on.
void Dlg2::Confirmer(const Boite& boite) {
    if (boite.notation == Notation::Locator) {
        const std::string saisi = S(boite.champ->text());
        if (!LocatorValide(saisi))
            return;
        RetenirLocator(saisi);
        AfficherDepuisLocator();
    }
    boite.suivant->setFocus();
}

// Kept on purpose, for the operators: only choosing a notation, by a click or by the shortcut of
// its caption, makes its boxes drive the others; passing through a box with the Tab key does not.
void Dlg2::Choisir(const Boite& boite) {
    notation_ = boite.notation;
    boite.champ->selectAll();
}

void Dlg2::Quitter(const Boite& boite) {
    if (boite.notation != Notation::Locator)
        return;
    const std::string saisi = S(boite.champ->text());
    if (boite.champ->text().size() < static_cast<int>(kLargeurLocator)) {
        boite.champ->setText(Q(locator_));
        AfficherDepuisLocator();
    } else if (locatorEdite_ && LocatorValide(saisi)) {
        // Left without Enter, a complete locator would contradict the coordinates beside it.
        RetenirLocator(saisi);
        AfficherDepuisLocator();
    }
    locatorEdite_ = false;
}

void Dlg2::TraiterChangement(const Boite& boite) {
    if (boite.notation == Notation::Locator) {
        locatorEdite_ = true;
    } else if (boite.notation == notation_) {
        if (notation_ == Notation::Dms)
            ChangerDms(boite);
        else
            ChangerDecimal(boite);
    }
}

void Dlg2::ChangerDms(const Boite& boite) {
    const bool refuse = boite.regle.limite > 0 && Entier(boite.champ) >= boite.regle.limite;
    if (refuse) {
        AfficherEntier(boite.champ, 0, static_cast<int>(boite.regle.largeur));
        boite.champ->selectAll();
    }
    CalculerDepuisDms();
    const bool complet = boite.champ->text().size() == static_cast<int>(boite.regle.largeur);
    if (!refuse && (complet || EstLettre(boite.regle.touches)))
        boite.suivant->setFocus();
}

void Dlg2::ChangerDecimal(const Boite& boite) {
    // Kept on purpose, for the operators: a value out of range is passed over, and the other box
    // goes on from the last one that was in range.
    const bool estLatitude = boite.champ == ui_->Fr1LatCent;
    const float lu = LireDecimal(S(boite.champ->text()));
    if (std::abs(lu) >= static_cast<float>(estLatitude ? kLimiteLatitude : kLimiteLongitude))
        return;
    (estLatitude ? latitude_ : longitude_) = lu;
    RetenirLocator(CoordVersLocator(latitude_, longitude_));
    AfficherDms();
}

void Dlg2::CalculerDepuisDms() {
    const auto lire = [](const QLineEdit* degres, const QLineEdit* minutes,
                         const QLineEdit* secondes) {
        return DmsVersDecimal({Entier(degres), Entier(minutes), Entier(secondes)});
    };
    latitude_ = lire(ui_->Fr1DegText1, ui_->Fr1MinText1, ui_->Fr1SecText1);
    longitude_ = lire(ui_->Fr1DegText2, ui_->Fr1MinText2, ui_->Fr1SecText2);
    if (ui_->Fr1LatSgnText->text() == QLatin1String("S"))
        latitude_ = -latitude_;
    if (ui_->Fr1LonSgnText->text() == QLatin1String("E"))
        longitude_ = -longitude_;
    AfficherDecimal();
    RetenirLocator(CoordVersLocator(latitude_, longitude_));
}

void Dlg2::AfficherDepuisLocator() {
    latitude_ = static_cast<float>(LocatorVersLatitude(locator_));
    longitude_ = static_cast<float>(LocatorVersLongitude(locator_));
    AfficherDecimal();
    AfficherDms();
}

void Dlg2::AfficherDecimal() {
    ui_->Fr1LatCent->setText(Q(FormaterDecimal(latitude_)));
    ui_->Fr1LonCent->setText(Q(FormaterDecimal(longitude_)));
}

void Dlg2::AfficherDms() {
    // A zero leaves the letter as it was.
    if (latitude_ != 0)
        ui_->Fr1LatSgnText->setText(latitude_ < 0 ? QStringLiteral("S") : QStringLiteral("N"));
    if (longitude_ != 0)
        ui_->Fr1LonSgnText->setText(longitude_ < 0 ? QStringLiteral("E") : QStringLiteral("O"));
    const Dms lat = DecimalVersDms(latitude_);
    AfficherEntier(ui_->Fr1DegText1, lat.degres, 2);
    AfficherEntier(ui_->Fr1MinText1, lat.minutes, 2);
    AfficherEntier(ui_->Fr1SecText1, lat.secondes, 2);
    const Dms lon = DecimalVersDms(longitude_);
    AfficherEntier(ui_->Fr1DegText2, lon.degres, 3);
    AfficherEntier(ui_->Fr1MinText2, lon.minutes, 2);
    AfficherEntier(ui_->Fr1SecText2, lon.secondes, 2);
}

// Takes over what the operator worked out; the few points that rounding pushes off the globe have
// no locator and leave the last one.
void Dlg2::RetenirLocator(const std::string& nouveau) {
    if (!LocatorValide(nouveau))
        return;
    locator_ = nouveau;
    locatorEdite_ = false;
    modifie_ = true;
    ui_->Fr1TextLocator->setText(Q(locator_));
}

} // namespace orvalis
