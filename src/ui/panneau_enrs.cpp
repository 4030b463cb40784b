#include "ui/panneau_enrs.h"

#include "ui/teintes.h"
#include "ui_panneau_enrs.h"

namespace orvalis {

PictEnrs::PictEnrs(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictEnrs>()) {
    ui_->setupUi(this);
    connect(ui_->BtEnrSuivant, &QPushButton::clicked, this, &PictEnrs::suivantDemande);
    connect(ui_->BtEnrTerminer, &QPushButton::clicked, this, &PictEnrs::terminerDemande);
    connect(ui_->BtEnrAnnuler, &QPushButton::clicked, this, &PictEnrs::annulerDemande);
    connect(ui_->OptionEnr1, &QRadioButton::clicked, this, [this] { Q_EMIT optionChoisie(true); });
    connect(ui_->OptionEnr2, &QRadioButton::clicked, this, [this] { Q_EMIT optionChoisie(false); });
    ArmerSuivant(false);
}

PictEnrs::~PictEnrs() = default;

void PictEnrs::ArmerSuivant(bool arme) {
    TeinterFond(*ui_->BtEnrSuivant, arme ? Teinte::Vert : Teinte::Peche);
    ui_->BtEnrSuivant->setEnabled(arme);
}

bool PictEnrs::SuivantArme() const {
    return ui_->BtEnrSuivant->isEnabled();
}

void PictEnrs::ActiverAnnuler(bool actif) {
    ui_->BtEnrAnnuler->setEnabled(actif);
}

void PictEnrs::DonnerFoyerSuivant() {
    ui_->BtEnrSuivant->setFocus();
}

} // namespace orvalis
