#include "ui/panneaux/pict_rech.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/gestes.h"
#include "ui_pict_rech.h"

#include <QMouseEvent>

namespace orvalis {

PictRech::PictRech(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictRech>()) {
    ui_->setupUi(this);
    constexpr std::size_t kLongueur = 40;
    new FiltreEdition(*ui_->RechText, Touches::Majuscules, kLongueur);
    ui_->RechText->installEventFilter(this);
    connect(ui_->RechText, &QLineEdit::textChanged, this, &PictRech::texteChange);
    ui_->RechText->setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 18);
    ui_->RechText->setClearButtonEnabled(true);
}

PictRech::~PictRech() = default;

void PictRech::Montrer(const PanneauRecherche& recherche) {
    if (const QString texte = Q(recherche.texte); ui_->RechText->text() != texte)
        ui_->RechText->setText(texte);
}

bool PictRech::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(evenement)->button() == Qt::LeftButton)
        Q_EMIT cliquee();
    if (EstEntree(*evenement)) {
        Q_EMIT rechercheDemandee();
        return true;
    }
    return QWidget::eventFilter(objet, evenement);
}

} // namespace orvalis
