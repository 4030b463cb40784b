#include "ui/msg_fiche.h"

#include "ui/teintes.h"
#include "ui/texte_qt.h"
#include "ui_msg_fiche.h"

namespace orvalis {

FraMsgFiche::FraMsgFiche(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::FraMsgFiche>()) {
    ui_->setupUi(this);
    TeinterFond(*ui_->FraCmdOui, Teinte::VertClair);
    TeinterFond(*ui_->FraCmdNon, Teinte::RougeClair);
    connect(ui_->FraCmdOui, &QPushButton::clicked, this, &FraMsgFiche::oui);
    connect(ui_->FraCmdNon, &QPushButton::clicked, this, &FraMsgFiche::non);
}

FraMsgFiche::~FraMsgFiche() = default;

void FraMsgFiche::Demander(std::string_view question, std::string_view numero,
                           std::string_view indicatif) {
    setTitle(Q(question));
    ui_->FraLab01->setText(Q(numero));
    ui_->FraLab02->setText(Q(indicatif));
    show();
}

void FraMsgFiche::showEvent(QShowEvent* evenement) {
    QGroupBox::showEvent(evenement);
    Q_EMIT visibleChange(true);
}

void FraMsgFiche::hideEvent(QHideEvent* evenement) {
    QGroupBox::hideEvent(evenement);
    Q_EMIT visibleChange(false);
}

void FraMsgFiche::DonnerFoyerNon() {
    ui_->FraCmdNon->setFocus();
}

} // namespace orvalis
