// The dial of the clock panel: a small analogue clock that can be pressed like a button.
#pragma once

#include "core/dates.h"

#include <QAbstractButton>

namespace orvalis {

/// Draws the dial into `cadre`, in the colours of `palette`; `accent` where the keyboard is on it
/// or it is held down. Its lines are `epaisseur` times as wide as those of the small one.
void DessinerCadran(QPainter& peintre, const QRectF& cadre, const QPalette& palette,
                    const Instant& instant, bool accent, qreal epaisseur = 1);

class Cadran : public QAbstractButton {
    Q_OBJECT
  public:
    explicit Cadran(QWidget* parent = nullptr);

    void Montrer(const Instant& instant);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    Instant instant_;
};

} // namespace orvalis
