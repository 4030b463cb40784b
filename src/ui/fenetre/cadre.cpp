#include "ui/fenetre/cadre.h"

#include "ui/widgets/rangees.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace orvalis {

Cadre::Cadre(QWidget& gauche, Droite droite, QWidget* parent)
    : QScrollArea(parent), gauche_(gauche), droite_(std::move(droite)), ligne_(nullptr) {
    auto* centre = new QWidget;
    ligne_ = new QHBoxLayout(centre);
    ligne_->setContentsMargins(8, 6, 8, 6);
    ligne_->setSpacing(10);
    auto* pile = new QVBoxLayout;
    pile->addWidget(&gauche_, 1);
    pile->addStretch(0);
    ligne_->addLayout(pile);
    ligne_->addWidget(&droite_.widget, 1);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(centre);
    centre->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*avant*/, const QWidget* ici) {
                if (ici != nullptr && isAncestorOf(ici))
                    VoirLeFoyer();
            });
}

QSize Cadre::TailleVoulue() const {
    return widget()->sizeHint();
}

void Cadre::resizeEvent(QResizeEvent* evenement) {
    Arranger();
    QScrollArea::resizeEvent(evenement);
    VoirLeFoyer();
}

void Cadre::changeEvent(QEvent* evenement) {
    QScrollArea::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange && widget() != nullptr)
        Arranger();
}

// What is in it may come to need more width, or less.
bool Cadre::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == widget() && evenement->type() == QEvent::LayoutRequest)
        Arranger();
    return QScrollArea::eventFilter(objet, evenement);
}

// The scroll bar is reckoned with whether it shows or not: else its coming could make it go.
void Cadre::Arranger() {
    const QMargins bords = ligne_->contentsMargins();
    const int place = width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) -
                      bords.left() - bords.right();
    const int reste = place - LargeurMinimale(gauche_) - ligne_->spacing();
    // A card in many short rows is worse to read than a list below it.
    const bool cote = reste >= droite_.largeurPleine() * 55 / 100;
    // Beside a right side that is higher than the window, the list and the buttons under it are in
    // view all the same.
    const int hauteur =
        std::max(height() - bords.top() - bords.bottom(), gauche_.minimumSizeHint().height());
    gauche_.setMaximumHeight(cote ? hauteur : QWIDGETSIZE_MAX);
    ligne_->setDirection(cote ? QBoxLayout::LeftToRight : QBoxLayout::BottomToTop);
    droite_.ranger(cote ? reste : place);
}

void Cadre::VoirLeFoyer() {
    if (std::exchange(attendu_, true))
        return;
    QTimer::singleShot(0, this, [this] {
        attendu_ = false;
        QWidget* ici = window()->focusWidget();
        if (ici == nullptr || !isAncestorOf(ici))
            return;
        // A box comes with the caption above it; of a list that is higher than the window, what
        // counts is the line.
        const int marge = 2 * fontMetrics().height();
        const auto* liste = qobject_cast<QAbstractItemView*>(ici);
        if (liste == nullptr)
            return ensureWidgetVisible(ici, marge / 2, marge);
        const QRect ligne = liste->visualRect(liste->currentIndex());
        const QPoint centre =
            liste->viewport()->mapTo(widget(), ligne.isValid() ? ligne.center() : QPoint());
        ensureVisible(liste->mapTo(widget(), QPoint()).x(), centre.y(), 0, marge);
    });
}

} // namespace orvalis
