#include "ui/panneau_rech.h"

#include "ui/filtre_edition.h"
#include "ui/gestes.h"
#include "ui/teintes.h"
#include "ui/texte_qt.h"
#include "ui_panneau_rech.h"

#include <QMouseEvent>
#include <QPalette>

namespace orvalis {

PictRech::PictRech(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PictRech>()) {
    ui_->setupUi(this);
    constexpr std::size_t kLongueur = 40;
    new FiltreEdition(*ui_->RechText, Touches::Majuscules, kLongueur);
    ui_->RechText->installEventFilter(this);
    ui_->RechText->setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 18);
    ui_->RechText->setClearButtonEnabled(true);
    PeindreSelonBureau(*ui_->RechText, [this] {
        // Some dark palettes leave the placeholder black.
        QPalette palette;
        QColor discret = palette.color(QPalette::Text);
        discret.setAlpha(140);
        palette.setColor(QPalette::PlaceholderText, discret);
        ui_->RechText->setPalette(palette);
    });
}

PictRech::~PictRech() = default;

std::string PictRech::Texte() const {
    return S(ui_->RechText->text());
}

void PictRech::Vider() {
    ui_->RechText->clear();
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
