#include "ui/panneaux/fra_msg_fiche.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/teintes.h"
#include "ui_fra_msg_fiche.h"

namespace orvalis {

FraMsgFiche::FraMsgFiche(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::FraMsgFiche>()) {
    ui_->setupUi(this);
    TeinterFond(*ui_->FraCmdOui, Teinte::VertClair);
    TeinterFond(*ui_->FraCmdNon, Teinte::RougeClair);
}

FraMsgFiche::~FraMsgFiche() = default;

void FraMsgFiche::Montrer(const Question& question) {
    setTitle(Q(question.legende));
    ui_->FraLab01->setText(Q(question.numero));
    ui_->FraLab02->setText(Q(question.indicatif));
}

} // namespace orvalis
