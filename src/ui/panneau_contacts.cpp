#include "ui/panneau_contacts.h"

#include "ui/texte_qt.h"
#include "ui_panneau_contacts.h"

#include <QEvent>
#include <QScrollBar>

namespace orvalis {

PictContacts::PictContacts(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictContacts>()) {
    ui_->setupUi(this);
    connect(ui_->ContactsListe, &ListeLignes::ligneChoisie, this, &PictContacts::ligneChoisie);
    connect(ui_->BtContactsFermer, &QPushButton::clicked, this, &PictContacts::fermetureDemandee);
    Dimensionner();
}

PictContacts::~PictContacts() = default;

void PictContacts::Dimensionner() {
    constexpr int kLargeurLigne = 46;
    ListeLignes& liste = *ui_->ContactsListe;
    liste.setMinimumWidth(liste.Composer(font(), kLargeurLigne) + 10 +
                          liste.verticalScrollBar()->sizeHint().width());
}

void PictContacts::changeEvent(QEvent* evenement) {
    QFrame::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Dimensionner();
}

void PictContacts::Remplir(std::span<const std::string> lignes) {
    ui_->ContactsListe->Remplir(lignes);
}

void PictContacts::MontrerCompte(std::string_view nombre) {
    ui_->NbreContacts->setText(Q(nombre));
}

void PictContacts::MontrerNature(std::string_view texte) {
    ui_->ContactsLab->setText(Q(texte));
}

void PictContacts::Selectionner(int ligne) {
    ui_->ContactsListe->Selectionner(ligne);
}

void PictContacts::DonnerFoyer() {
    ui_->ContactsListe->setFocus();
}

std::int32_t PictContacts::NumeroDe(int ligne) const {
    return ui_->ContactsListe->NumeroDe(ligne);
}

} // namespace orvalis
