#include "ui/panneau_contacts.h"

#include "core/pages.h"
#include "ui/police.h"
#include "ui/texte_qt.h"
#include "ui_panneau_contacts.h"

#include <QEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace orvalis {

PictContacts::PictContacts(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictContacts>()) {
    ui_->setupUi(this);
    connect(ui_->ContactsListe, &QListWidget::currentRowChanged, this, [this](int ligne) {
        if (ligne >= 0)
            Q_EMIT ligneChoisie(NumeroDe(ligne));
    });
    connect(ui_->ContactsListe, &QListWidget::itemClicked, this, [this](QListWidgetItem* element) {
        Q_EMIT ligneChoisie(NumeroDe(ui_->ContactsListe->row(element)));
    });
    connect(ui_->BtContactsFermer, &QPushButton::clicked, this, &PictContacts::fermetureDemandee);
    Dimensionner();
}

PictContacts::~PictContacts() = default;

void PictContacts::Dimensionner() {
    constexpr int kLargeurLigne = 46;
    QListWidget& liste = *ui_->ContactsListe;
    liste.setFont(PoliceFixe("Courier New", font()));
    const int caractere = QFontMetrics(liste.font()).horizontalAdvance(QLatin1Char('0'));
    liste.setMinimumWidth(caractere * kLargeurLigne + 2 * liste.frameWidth() + 10 +
                          liste.verticalScrollBar()->sizeHint().width());
}

void PictContacts::changeEvent(QEvent* evenement) {
    QFrame::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Dimensionner();
}

void PictContacts::Remplir(std::span<const std::string> lignes) {
    const QSignalBlocker silence(ui_->ContactsListe);
    ui_->ContactsListe->clear();
    QStringList textes;
    textes.reserve(static_cast<qsizetype>(lignes.size()));
    for (const std::string& ligne : lignes)
        textes << Q(ligne);
    ui_->ContactsListe->addItems(textes);
}

void PictContacts::MontrerCompte(std::string_view nombre) {
    ui_->NbreContacts->setText(Q(nombre));
}

void PictContacts::MontrerNature(std::string_view texte) {
    ui_->ContactsLab->setText(Q(texte));
}

void PictContacts::Selectionner(int ligne) {
    const QSignalBlocker silence(ui_->ContactsListe);
    ui_->ContactsListe->setCurrentRow(ligne);
}

void PictContacts::DonnerFoyer() {
    ui_->ContactsListe->setFocus();
}

std::int32_t PictContacts::NumeroDe(int ligne) const {
    const QListWidgetItem* element = ui_->ContactsListe->item(ligne);
    return element == nullptr ? 0 : NumeroDeLigne(S(element->text()));
}

} // namespace orvalis
