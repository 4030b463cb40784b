#include "ui/panneaux/panneau_horloge.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"
#include "ui_panneau_horloge.h"

namespace orvalis {

PanneauHorloge::PanneauHorloge(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::PanneauHorloge>()) {
    ui_->setupUi(this);
    ui_->LabHeure->setFont(PoliceAjustee(font(), 1.7));
    ui_->LabUTC->setFont(PoliceAjustee(font(), kPetite));
    ui_->LabUTC->hide();
}

PanneauHorloge::~PanneauHorloge() = default;

void PanneauHorloge::Montrer(const Instant& instant) {
    ui_->LabHeure->setText(Q(HeureLongue(instant)));
    ui_->LabDate->setText(Q(DateLongue(instant)));
    const QString utc = Q(MentionUtc(instant));
    ui_->LabUTC->setText(utc);
    ui_->LabUTC->setVisible(!utc.isEmpty());
    ui_->Horloge->Montrer(instant);
}

} // namespace orvalis
