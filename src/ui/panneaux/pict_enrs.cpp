#include "ui/panneaux/pict_enrs.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/teintes.h"
#include "ui_pict_enrs.h"

namespace orvalis {

PictEnrs::PictEnrs(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictEnrs>()) {
    ui_->setupUi(this);
    connect(ui_->OptionEnr1, &QRadioButton::clicked, this, [this] { Q_EMIT optionChoisie(true); });
    connect(ui_->OptionEnr2, &QRadioButton::clicked, this, [this] { Q_EMIT optionChoisie(false); });
}

PictEnrs::~PictEnrs() = default;

void PictEnrs::Montrer(const VueBoutons& boutons) {
    TeinterFond(*ui_->BtEnrSuivant, boutons.suivantArme ? Teinte::Vert : Teinte::Peche);
    Activer(*ui_->BtEnrSuivant, boutons.suivantArme);
    Activer(*ui_->BtEnrAnnuler, boutons.annuler);
    ui_->BtEnrTerminer->setToolTip(Q(boutons.bulleTerminer));
}

void PictEnrs::CederAltA(bool cede) {
    ui_->BtEnrAnnuler->setShortcut(cede ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key_A));
}

void PictEnrs::MontrerOption(bool tempsReel) {
    (tempsReel ? ui_->OptionEnr1 : ui_->OptionEnr2)->setChecked(true);
}

} // namespace orvalis
