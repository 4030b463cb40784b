// The dial of Chronel: that of the main window, large, and only to be looked at.
#pragma once

#include "core/dates.h"

#include <QWidget>

namespace orvalis {

class GrandCadran : public QWidget {
    Q_OBJECT
  public:
    explicit GrandCadran(QWidget* parent = nullptr);
    void Montrer(const Instant& instant);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    Instant instant_;
};

} // namespace orvalis
