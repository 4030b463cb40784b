#include "ui/chang_locator.h"

#include "core/boites.h"
#include "ui/filtre_edition.h"
#include "ui/teintes.h"
#include "ui/texte_qt.h"
#include "ui_chang_locator.h"

#include <QKeyEvent>

namespace orvalis {

PictChangLocator::PictChangLocator(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictChangLocator>()) {
    ui_->setupUi(this);
    constexpr std::size_t kLongueur = 6;
    ui_->ChangLocText->setValidator(new FiltreEdition(
        [](const TexteEdite& nouveau) {
            return FiltrerEdition(Touches::Majuscules, kLongueur, "", nouveau);
        },
        this));
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
    if (evenement->type() == QEvent::FocusIn) {
        const Qt::FocusReason raison = static_cast<QFocusEvent*>(evenement)->reason();
        if (raison != Qt::ActiveWindowFocusReason && raison != Qt::PopupFocusReason &&
            raison != Qt::MenuBarFocusReason)
            Q_EMIT foyerTexte();
    }
    if (evenement->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent*>(evenement)->key();
        if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
            Q_EMIT entree();
            return true;
        }
    }
    return QFrame::eventFilter(objet, evenement);
}

} // namespace orvalis
