#include "ui/panneaux/pict_chang_locator.h"

#include "geo/locator.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/gestes.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/teintes.h"
#include "ui_pict_chang_locator.h"

#include <QFocusEvent>
#include <QMouseEvent>

namespace orvalis {

PictChangLocator::PictChangLocator(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictChangLocator>()) {
    ui_->setupUi(this);
    new FiltreEdition(*ui_->ChangLocText, Touches::Majuscules, kLargeurLocator);
    ui_->ChangLocText->installEventFilter(this);
    TeinterFond(*ui_->BtChangAnnul, Teinte::RougeClair);
    connect(ui_->ChangLocText, &QLineEdit::textChanged, this, &PictChangLocator::texteChange);
    connect(ui_->ChangLocChk, &QCheckBox::toggled, this, &PictChangLocator::garderChange);
}

PictChangLocator::~PictChangLocator() = default;

void PictChangLocator::MontrerErreur(bool erreur) {
    ui_->ChangLocText->setPalette(erreur ? EnErreur({}) : QPalette());
}

void PictChangLocator::Montrer(const PanneauLocator& locator) {
    if (const QString texte = Q(locator.texte); ui_->ChangLocText->text() != texte)
        ui_->ChangLocText->setText(texte);
    ui_->ChangLocChk->setChecked(locator.garder);
    Presenter(*ui_->BtChangValid, locator.valider);
}

bool PictChangLocator::eventFilter(QObject* objet, QEvent* evenement) {
    if (EstEntree(*evenement)) {
        Q_EMIT entree();
        return true;
    }
    return SuivreClic(*evenement) || QFrame::eventFilter(objet, evenement);
}

// The click that brings the focus finds the whole text selected, and leaves it so; a later one
// places the caret.
bool PictChangLocator::SuivreClic(const QEvent& evenement) {
    switch (evenement.type()) {
    case QEvent::FocusIn:
        clicDuFoyer_ = static_cast<const QFocusEvent&>(evenement).reason() == Qt::MouseFocusReason;
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
        return clicDuFoyer_ &&
               static_cast<const QMouseEvent&>(evenement).buttons().testFlag(Qt::LeftButton);
    case QEvent::MouseButtonRelease:
    case QEvent::FocusOut:
        clicDuFoyer_ = false;
        return false;
    default:
        return false;
    }
}

} // namespace orvalis
