#include "compagnons/chronel/grand_cadran.h"

#include "ui/widgets/cadran.h"

#include <QPainter>

namespace orvalis {
namespace {
constexpr int kLignes = 7;        ///< its height in lines of text
constexpr qreal kEpaisseur = 1.8; ///< of its lines, against those of the small dial
} // namespace

GrandCadran::GrandCadran(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void GrandCadran::Montrer(const Instant& instant) {
    instant_ = instant;
    update();
}

QSize GrandCadran::sizeHint() const {
    const int cote = fontMetrics().height() * kLignes;
    return {cote, cote};
}

void GrandCadran::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    DessinerCadran(peintre, rect(), palette(), instant_, false, kEpaisseur);
}

} // namespace orvalis
