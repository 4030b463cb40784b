#include "ui/panneaux/pict_liste.h"

#include "core/pages.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/teintes.h"
#include "ui_pict_liste.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

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
    ui_->ListeLog->viewport()->installEventFilter(this);
    connect(ui_->ListeLog, &ListeLignes::ligneChoisie, this, &PictListe::ligneChoisie);
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
    // Greyed with the list during entry, they are read all the same.
    for (QLabel* label : {ui_->LabJournal, ui_->LabPage})
        PeindreSelonBureau(*label, [label] {
            QPalette palette;
            palette.setColor(QPalette::Disabled, QPalette::WindowText,
                             palette.color(QPalette::Active, QPalette::WindowText));
            label->setPalette(palette);
        });
    Dimensionner();
}

PictListe::~PictListe() = default;

void PictListe::Dimensionner() {
    ListeLignes& liste = *ui_->ListeLog;
    liste.setFixedWidth(liste.Composer(font(), static_cast<int>(kLargeurLigneListe)) + 8);
    liste.setMinimumHeight((QFontMetrics(liste.font()).height() + 1) * kFichesParPage +
                           2 * liste.frameWidth());
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

void PictListe::Montrer(const ListeDuCahier& liste, bool pagination, bool pageChangee) {
    if (!liste.contenu)
        return; // nothing was read yet
    if (pageChangee)
        ui_->ListeLog->Remplir(liste.contenu->lignes);
    ui_->LabPage->setText(QStringLiteral("Page %1 / %2").arg(liste.page).arg(liste.nbPages));
    ui_->LabJournal->setText(Q(liste.nom));
    ui_->LabDossier->setText(Q(liste.dossier));
    ui_->LabDossier->setVisible(!liste.dossier.empty());
    ui_->VScroll1->setRange(liste.nbFiches > 0 ? 1 : 0, liste.nbFiches);
    ui_->VScroll1->setValue(liste.defilement);
    for (QPushButton* bouton :
         {ui_->CmdSensHaut, ui_->CmdPageMoins, ui_->CmdPagePlus, ui_->CmdSensBas})
        Activer(*bouton, pagination);
    ui_->ListeLog->Selectionner(liste.choisie);
}

// Handed over directly: what the bar leaves at its ends must not scroll the window.
void PictListe::Rouler(QWheelEvent* evenement) {
    static_cast<QObject*>(ui_->VScroll1)->event(evenement);
    evenement->accept();
}

bool PictListe::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui_->ListeLog->viewport() && evenement->type() == QEvent::Wheel &&
        ui_->ListeLog->verticalScrollBar()->maximum() == 0) {
        Rouler(static_cast<QWheelEvent*>(evenement));
        return true;
    }
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
