#include "ui/panneaux/pict_contacts.h"

#include "core/pages.h"
#include "ui/bureau/texte_qt.h"
#include "ui_pict_contacts.h"

#include <QEvent>
#include <QScrollBar>

namespace orvalis {

PictContacts::PictContacts(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictContacts>()) {
    ui_->setupUi(this);
    connect(ui_->ContactsListe, &ListeLignes::ligneChoisie, this, &PictContacts::ligneChoisie);
    Dimensionner();
}

PictContacts::~PictContacts() = default;

void PictContacts::Dimensionner() {
    ListeLignes& liste = *ui_->ContactsListe;
    liste.setMinimumWidth(liste.Composer(font(), static_cast<int>(kLargeurLigneContact)) + 10 +
                          liste.verticalScrollBar()->sizeHint().width());
}

void PictContacts::changeEvent(QEvent* evenement) {
    QFrame::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Dimensionner();
}

void PictContacts::Montrer(const ListeContacts& contacts, bool lignesChangees) {
    if (lignesChangees && contacts.lignes)
        ui_->ContactsListe->Remplir(*contacts.lignes, contacts.reprise);
    ui_->ContactsListe->Selectionner(contacts.choisie);
    ui_->NbreContacts->setText(Q(contacts.compte));
    ui_->ContactsLab->setText(Q(contacts.nature));
}

} // namespace orvalis
