#include "ui/panneaux/pict_menu.h"

#include "ui/widgets/presence.h"
#include "ui/widgets/teintes.h"
#include "ui_pict_menu.h"

namespace orvalis {

PictMenu::PictMenu(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictMenu>()) {
    ui_->setupUi(this);
    RougirTexte(*ui_->BtKillFiche);
}

PictMenu::~PictMenu() = default;

void PictMenu::Montrer(const VueBoutons& boutons) {
    Activer(*this, boutons.menuActif);
    Activer(*ui_->BtNewQSO, boutons.nouveau);
    Activer(*ui_->BtKillFiche, boutons.supprimer);
    Activer(*ui_->BtFermerLog, boutons.fermer);
}

void PictMenu::CederAltN(bool cede) {
    ui_->BtNewQSO->setShortcut(cede ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key_N));
}

} // namespace orvalis
