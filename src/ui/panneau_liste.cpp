#include "ui/panneau_liste.h"

#include "ui/police.h"
#include "ui/texte_qt.h"
#include "ui_panneau_liste.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <array>

namespace orvalis {
namespace {

struct LigneTouche {
    int touche;
    ToucheListe sens;
};

constexpr std::array<LigneTouche, 4> kTouches = {{
    {Qt::Key_PageUp, ToucheListe::PagePrecedente},
    {Qt::Key_PageDown, ToucheListe::PageSuivante},
    {Qt::Key_Up, ToucheListe::Haut},
    {Qt::Key_Down, ToucheListe::Bas},
}};

} // namespace

PictListe::PictListe(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictListe>()) {
    ui_->setupUi(this);
    ui_->ListeLog->installEventFilter(this);
    connect(ui_->ListeLog, &QListWidget::currentRowChanged, this, [this](int ligne) {
        if (ligne >= 0)
            Q_EMIT ligneChoisie(NumeroDe(ligne));
    });
    // A click on the line that is current already is a click too.
    connect(ui_->ListeLog, &QListWidget::itemClicked, this, [this](QListWidgetItem* element) {
        Q_EMIT ligneChoisie(NumeroDe(ui_->ListeLog->row(element)));
    });
    const std::array<std::pair<QPushButton*, BoutonPage>, 4> boutons = {{
        {ui_->CmdSensHaut, BoutonPage::Premiere},
        {ui_->CmdPageMoins, BoutonPage::Precedente},
        {ui_->CmdPagePlus, BoutonPage::Suivante},
        {ui_->CmdSensBas, BoutonPage::Derniere},
    }};
    for (const auto& [bouton, sens] : boutons)
        connect(bouton, &QPushButton::clicked, this,
                [this, voulu = sens] { Q_EMIT boutonPage(voulu); });
    connect(ui_->VScroll1, &QScrollBar::valueChanged, this, &PictListe::defilement);
    ui_->VScroll1->setSingleStep(kFichesParPage);
    ui_->VScroll1->setPageStep(kFichesParPage);
    Dimensionner();
}

PictListe::~PictListe() = default;

void PictListe::Dimensionner() {
    constexpr int kLargeurLigne = 40;
    ui_->ListeLog->setFont(PoliceFixe("Courier New", font()));
    const QFontMetrics mesures(ui_->ListeLog->font());
    const int cadre = 2 * ui_->ListeLog->frameWidth();
    ui_->ListeLog->setFixedWidth(mesures.horizontalAdvance(QLatin1Char('0')) * kLargeurLigne +
                                 cadre + 8);
    ui_->ListeLog->setMinimumHeight((mesures.height() + 1) * kFichesParPage + cadre);
    const int cote = QFontMetrics(font()).height() * 2;
    for (QPushButton* bouton :
         {ui_->CmdSensHaut, ui_->CmdPageMoins, ui_->CmdPagePlus, ui_->CmdSensBas})
        bouton->setFixedWidth(cote + cote / 4);
}

void PictListe::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Dimensionner();
}

void PictListe::Remplir(std::span<const std::string> lignes, std::int32_t page,
                        std::int32_t nbPages) {
    const QSignalBlocker silence(ui_->ListeLog);
    ui_->ListeLog->clear();
    for (const std::string& ligne : lignes)
        ui_->ListeLog->addItem(Q(ligne));
    ui_->LabPage->setText(QStringLiteral("Page %1 / %2").arg(page).arg(nbPages));
}

void PictListe::RemplacerLigne(int ligne, const std::string& texte) {
    if (QListWidgetItem* element = ui_->ListeLog->item(ligne))
        element->setText(Q(texte));
}

void PictListe::ReglerDefilement(std::int32_t nbFiches, std::int32_t valeur) {
    const QSignalBlocker silence(ui_->VScroll1);
    ui_->VScroll1->setRange(nbFiches > 0 ? 1 : 0, nbFiches);
    ui_->VScroll1->setValue(valeur);
}

void PictListe::ActiverPagination(bool actif) {
    for (QPushButton* bouton :
         {ui_->CmdSensHaut, ui_->CmdPageMoins, ui_->CmdPagePlus, ui_->CmdSensBas})
        bouton->setEnabled(actif);
}

void PictListe::Selectionner(int ligne) {
    const QSignalBlocker silence(ui_->ListeLog);
    ui_->ListeLog->setCurrentRow(ligne < NbLignes() ? ligne : -1);
}

int PictListe::LigneChoisie() const {
    return ui_->ListeLog->currentRow();
}

int PictListe::NbLignes() const {
    return ui_->ListeLog->count();
}

std::int32_t PictListe::NumeroDe(int ligne) const {
    const QListWidgetItem* element = ui_->ListeLog->item(ligne);
    return element == nullptr ? 0 : NumeroDeLigne(S(element->text()));
}

void PictListe::MontrerNom(const QString& texte) {
    ui_->LabJournal->setText(texte);
}

void PictListe::DonnerFoyer() {
    ui_->ListeLog->setFocus();
}

bool PictListe::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui_->ListeLog && evenement->type() == QEvent::KeyPress) {
        const int code = static_cast<QKeyEvent*>(evenement)->key();
        for (const LigneTouche& ligne : kTouches) {
            if (ligne.touche != code)
                continue;
            bool prise = false;
            Q_EMIT touche(ligne.sens, &prise);
            // A page key that moves no page does nothing; the arrows walk within the page.
            if (prise || code == Qt::Key_PageUp || code == Qt::Key_PageDown)
                return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}

} // namespace orvalis
