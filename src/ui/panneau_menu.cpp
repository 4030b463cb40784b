#include "ui/panneau_menu.h"

#include "ui/teintes.h"
#include "ui_panneau_menu.h"

namespace orvalis {

PictMenu::PictMenu(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictMenu>()) {
    ui_->setupUi(this);
    RougirTexte(*ui_->BtKillFiche);
    connect(ui_->BtNewQSO, &QPushButton::clicked, this, &PictMenu::nouveauDemande);
    connect(ui_->BtKillFiche, &QPushButton::clicked, this, &PictMenu::suppressionDemandee);
    connect(ui_->BtFermerLog, &QPushButton::clicked, this, &PictMenu::fermetureDemandee);
}

PictMenu::~PictMenu() = default;

void PictMenu::DonnerFoyerNouveau() {
    ui_->BtNewQSO->setFocus();
}
void PictMenu::ActiverNouveau(bool actif) {
    ui_->BtNewQSO->setEnabled(actif);
}
void PictMenu::CederAltN(bool cede) {
    ui_->BtNewQSO->setShortcut(cede ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key_N));
}

void PictMenu::ActiverSupprimer(bool actif) {
    ui_->BtKillFiche->setEnabled(actif);
}
void PictMenu::ActiverFermer(bool actif) {
    ui_->BtFermerLog->setEnabled(actif);
}

} // namespace orvalis
