#include "ui/panneaux/pict_chang_locator.h"

#include "geo/locator.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/gestes.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/teintes.h"
#include "ui_pict_chang_locator.h"

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
    return QFrame::eventFilter(objet, evenement);
}

} // namespace orvalis
