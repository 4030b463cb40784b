#include "compagnons/db_orvalis/fenetre/lab_chemin.h"

#include <QPainter>

namespace orvalis {

void LabChemin::Montrer(const QString& chemin) {
    setText(chemin);
    setToolTip(chemin);
}

QSize LabChemin::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void LabChemin::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    peintre.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

} // namespace orvalis
