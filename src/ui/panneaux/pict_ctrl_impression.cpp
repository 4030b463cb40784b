#include "ui/panneaux/pict_ctrl_impression.h"

#include "ui/widgets/teintes.h"
#include "ui_pict_ctrl_impression.h"

namespace orvalis {

PictCtrlImpression::PictCtrlImpression(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::PictCtrlImpression>()) {
    ui_->setupUi(this);
    TeinterFond(*ui_->BtCtrl_Parfait, Teinte::VertClair);
    TeinterFond(*ui_->BtCtrl_Revoir, Teinte::RougeClair);
}

PictCtrlImpression::~PictCtrlImpression() = default;

} // namespace orvalis
