#include "ui/panneau_ctrl_impression.h"

#include "ui/teintes.h"
#include "ui_panneau_ctrl_impression.h"

namespace orvalis {

PictCtrlImpression::PictCtrlImpression(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::PictCtrlImpression>()) {
    ui_->setupUi(this);
    TeinterFond(*ui_->BtCtrl_Parfait, Teinte::VertClair);
    TeinterFond(*ui_->BtCtrl_Revoir, Teinte::RougeClair);
    connect(ui_->BtCtrl_Parfait, &QPushButton::clicked, this, &PictCtrlImpression::parfait);
    connect(ui_->BtCtrl_Revoir, &QPushButton::clicked, this, &PictCtrlImpression::revoir);
}

PictCtrlImpression::~PictCtrlImpression() = default;

void PictCtrlImpression::DonnerFoyerRevoir() {
    ui_->BtCtrl_Revoir->setFocus();
}

} // namespace orvalis
