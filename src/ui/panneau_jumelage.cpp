#include "ui/panneau_jumelage.h"

#include "ui/texte_qt.h"
#include "ui_panneau_jumelage.h"

namespace orvalis {

PJumelage::PJumelage(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::PJumelage>()) {
    ui_->setupUi(this);
    connect(ui_->BtPjumeler, &QPushButton::clicked, this, &PJumelage::jumeler);
    connect(ui_->BtPjSauvegarder, &QPushButton::clicked, this, &PJumelage::sauvegarder);
    connect(ui_->BtPjAnnuler, &QPushButton::clicked, this, &PJumelage::annuler);
}

PJumelage::~PJumelage() = default;

void PJumelage::Ouvrir(std::string_view nomFichier) {
    ui_->LabPj_2->setText(Q(nomFichier));
    ActiverSauvegarde(true);
    show();
    ui_->BtPjSauvegarder->setFocus();
}

void PJumelage::ActiverSauvegarde(bool active) {
    if (!active && ui_->BtPjSauvegarder->hasFocus())
        ui_->BtPjumeler->setFocus(); // what comes next
    ui_->BtPjSauvegarder->setEnabled(active);
}

} // namespace orvalis
