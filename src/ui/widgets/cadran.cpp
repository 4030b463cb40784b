#include "ui/widgets/cadran.h"

#include "ui/widgets/teintes.h"

#include <QPainter>

#include <algorithm>

namespace orvalis {

Cadran::Cadran(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Cadran::Montrer(const Instant& instant) {
    instant_ = instant;
    update();
}

QSize Cadran::sizeHint() const {
    const int cote = QFontMetrics(font()).height() * 3;
    return {cote, cote};
}

void Cadran::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    DessinerCadran(peintre, rect(), palette(), instant_, hasFocus() || isDown());
}

void DessinerCadran(QPainter& peintre, const QRectF& cadre, const QPalette& palette,
                    const Instant& instant, bool accent, qreal epaisseur) {
    peintre.setRenderHint(QPainter::Antialiasing);
    const qreal rayon = std::min(cadre.width(), cadre.height()) / 2.0 - 2.0;
    peintre.translate(cadre.center());
    const QColor trait = palette.color(accent ? QPalette::Highlight : QPalette::WindowText);
    peintre.setPen(QPen(trait, (accent ? 2.5 : 1.5) * epaisseur));
    peintre.setBrush(palette.color(QPalette::Base));
    peintre.drawEllipse(QPointF(), rayon, rayon);
    for (int heure = 0; heure < 12; ++heure) {
        peintre.drawLine(QPointF(0, -rayon * 0.85), QPointF(0, -rayon * 0.97));
        peintre.rotate(30);
    }
    const auto aiguille = [&](qreal degres, qreal longueur, qreal largeur, const QColor& encre) {
        peintre.save();
        peintre.rotate(degres);
        peintre.setPen(QPen(encre, largeur * epaisseur, Qt::SolidLine, Qt::RoundCap));
        peintre.drawLine(QPointF(0, rayon * 0.12), QPointF(0, -rayon * longueur));
        peintre.restore();
    };
    aiguille(instant.heures * 30.0 + instant.minutes / 2.0, 0.5, 2.5, trait);
    aiguille(instant.minutes * 6.0, 0.72, 1.8, trait);
    aiguille(instant.secondes * 6.0, 0.78, 1.0, kRougeAiguille);
}

} // namespace orvalis
