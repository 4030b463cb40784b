#include "ui/widgets/boussole.h"

#include "ui/widgets/teintes.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace orvalis {

Boussole::Boussole(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Boussole::Montrer(std::optional<int> cap) {
    if (cap_ == cap)
        return;
    cap_ = cap;
    update();
}

QSize Boussole::sizeHint() const {
    const int cote = QFontMetrics(font()).height() * 9 / 4;
    return {cote, cote};
}

void Boussole::paintEvent(QPaintEvent* /*evenement*/) {
    if (!cap_)
        return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const qreal rayon = std::min(width(), height()) / 2.0 - 1.0;
    peintre.translate(width() / 2.0, height() / 2.0);
    peintre.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
    peintre.setBrush(palette().color(QPalette::Base));
    peintre.drawEllipse(QPointF(), rayon, rayon);
    QFont lettre = font();
    lettre.setPixelSize(std::max(1, static_cast<int>(rayon * 0.6)));
    peintre.setFont(lettre);
    peintre.drawText(QRectF(-rayon, -rayon, 2 * rayon, rayon * 0.75), Qt::AlignCenter,
                     QStringLiteral("N"));
    for (int quart = 1; quart < 4; ++quart) {
        peintre.rotate(90);
        peintre.drawLine(QPointF(0, -rayon), QPointF(0, -rayon * 0.8));
    }
    peintre.rotate(90);
    peintre.rotate(*cap_);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(kRougeAiguille);
    peintre.drawPolygon(QPolygonF({{0, -rayon * 0.9},
                                   {rayon * 0.32, rayon * 0.55},
                                   {0, rayon * 0.3},
                                   {-rayon * 0.32, rayon * 0.55}}));
}

} // namespace orvalis
