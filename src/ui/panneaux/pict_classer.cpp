#include "ui/panneaux/pict_classer.h"

#include "ui/bureau/texte_qt.h"
#include "ui_pict_classer.h"

namespace orvalis {

PictClasser::PictClasser(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictClasser>()) {
    ui_->setupUi(this);
    setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 36);
}

PictClasser::~PictClasser() = default;

void PictClasser::Montrer(const PanneauClasser& classer) {
    ui_->ClasserLab->setText(Q(classer.titre));
    ui_->LabEtat_1->setText(Q(classer.nombre));
    ui_->LabEtat_2->setText(Q(classer.mot));
    ui_->LabEtat_3->setText(Q(classer.position));
}

} // namespace orvalis
