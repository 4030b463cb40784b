#include "ui/panneaux/p_jumelage.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/presence.h"
#include "ui_p_jumelage.h"

namespace orvalis {

PJumelage::PJumelage(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::PJumelage>()) {
    ui_->setupUi(this);
}

PJumelage::~PJumelage() = default;

void PJumelage::Montrer(const PanneauJumelage& jumelage) {
    ui_->LabPj_2->setText(Q(jumelage.nomFichier));
    Activer(*ui_->BtPjSauvegarder, !jumelage.sauvegardeFaite);
}

} // namespace orvalis
