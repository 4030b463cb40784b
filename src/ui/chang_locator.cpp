#include "ui/chang_locator.h"

#include "geo/locator.h"
#include "ui/filtre_edition.h"
#include "ui/gestes.h"
#include "ui/teintes.h"
#include "ui/texte_qt.h"
#include "ui_chang_locator.h"

namespace orvalis {

PictChangLocator::PictChangLocator(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictChangLocator>()) {
    ui_->setupUi(this);
    new FiltreEdition(*ui_->ChangLocText, Touches::Majuscules, kLargeurLocator);
    ui_->ChangLocText->installEventFilter(this);
    TeinterFond(*ui_->BtChangAnnul, Teinte::RougeClair);
    connect(ui_->ChangLocText, &QLineEdit::textChanged, this, &PictChangLocator::texteChange);
    connect(ui_->BtChangValid, &QPushButton::clicked, this, &PictChangLocator::valider);
    connect(ui_->BtChangAnnul, &QPushButton::clicked, this, &PictChangLocator::annuler);
}

PictChangLocator::~PictChangLocator() = default;

void PictChangLocator::Ouvrir() {
    MontrerValider(false);
    ui_->ChangLocChk->setChecked(false);
    show();
    ui_->ChangLocText->setFocus();
}

void PictChangLocator::Montrer(std::string_view texte) {
    ui_->ChangLocText->setText(Q(texte));
    ui_->ChangLocText->selectAll();
}

void PictChangLocator::MontrerValider(bool visible) {
    ui_->BtChangValid->setVisible(visible);
}
void PictChangLocator::DonnerFoyerValider() {
    ui_->BtChangValid->setFocus();
}
void PictChangLocator::DonnerFoyerTexte() {
    ui_->ChangLocText->setFocus();
}
std::string PictChangLocator::Texte() const {
    return S(ui_->ChangLocText->text());
}
bool PictChangLocator::Garder() const {
    return ui_->ChangLocChk->isChecked();
}

bool PictChangLocator::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn &&
        !FoyerVenuDAilleurs(static_cast<QFocusEvent*>(evenement)->reason()))
        Q_EMIT foyerTexte();
    if (EstEntree(*evenement)) {
        Q_EMIT entree();
        return true;
    }
    return QFrame::eventFilter(objet, evenement);
}

} // namespace orvalis
