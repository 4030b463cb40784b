#include "ui/panneau_horloge.h"

#include "ui/police.h"
#include "ui/texte_qt.h"
#include "ui_panneau_horloge.h"

namespace orvalis {

PanneauHorloge::PanneauHorloge(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::PanneauHorloge>()) {
    ui_->setupUi(this);
    ui_->LabHeure->setFont(PoliceAjustee(font(), 1.7));
    connect(ui_->Horloge, &QAbstractButton::clicked, this, &PanneauHorloge::miseALHeureDemandee);
}

PanneauHorloge::~PanneauHorloge() = default;

void PanneauHorloge::Montrer(const Instant& instant) {
    ui_->LabHeure->setText(Q(HeureLongue(instant)));
    ui_->LabDate->setText(Q(DateLongue(instant)));
    ui_->Horloge->Montrer(instant);
}

} // namespace orvalis
