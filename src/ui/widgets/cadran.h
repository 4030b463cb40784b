// The dial of the clock panel: a small analogue clock that can be pressed like a button.
#pragma once

#include "core/dates.h"

#include <QAbstractButton>

namespace orvalis {

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
