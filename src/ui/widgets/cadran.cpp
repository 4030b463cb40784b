#include "ui/widgets/cadran.h"

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
    peintre.setRenderHint(QPainter::Antialiasing);
    const qreal rayon = std::min(width(), height()) / 2.0 - 2.0;
    peintre.translate(width() / 2.0, height() / 2.0);
    const bool accent = hasFocus() || isDown();
    const QColor trait = palette().color(accent ? QPalette::Highlight : QPalette::WindowText);
    peintre.setPen(QPen(trait, accent ? 2.5 : 1.5));
    peintre.setBrush(palette().color(QPalette::Base));
    peintre.drawEllipse(QPointF(), rayon, rayon);
    for (int heure = 0; heure < 12; ++heure) {
        peintre.drawLine(QPointF(0, -rayon * 0.85), QPointF(0, -rayon * 0.97));
        peintre.rotate(30);
    }
    const auto aiguille = [&](qreal degres, qreal longueur, qreal epaisseur, const QColor& encre) {
        peintre.save();
        peintre.rotate(degres);
        peintre.setPen(QPen(encre, epaisseur, Qt::SolidLine, Qt::RoundCap));
        peintre.drawLine(QPointF(0, rayon * 0.12), QPointF(0, -rayon * longueur));
        peintre.restore();
    };
    aiguille(instant_.heures * 30.0 + instant_.minutes / 2.0, 0.5, 2.5, trait);
    aiguille(instant_.minutes * 6.0, 0.72, 1.8, trait);
    aiguille(instant_.secondes * 6.0, 0.78, 1.0, QColor(0xC0, 0x39, 0x2B));
}

} // namespace orvalis
