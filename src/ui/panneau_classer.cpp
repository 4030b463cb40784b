#include "ui/panneau_classer.h"

#include "ui/texte_qt.h"
#include "ui_panneau_classer.h"

namespace orvalis {

PictClasser::PictClasser(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictClasser>()) {
    ui_->setupUi(this);
    setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 36);
}

PictClasser::~PictClasser() = default;

void PictClasser::Commencer(std::int32_t nbFiches) {
    ui_->ClasserLab->setText(QStringLiteral(" QRX ,Je classe !"));
    ui_->LabEtat_1->setText(QString::number(nbFiches));
}

void PictClasser::Montrer(std::string_view mot, std::int32_t position) {
    ui_->LabEtat_2->setText(Q(mot));
    ui_->LabEtat_3->setText(QString::number(position));
}

void PictClasser::Terminer() {
    ui_->ClasserLab->setText(QStringLiteral(" Terminé "));
}

} // namespace orvalis
