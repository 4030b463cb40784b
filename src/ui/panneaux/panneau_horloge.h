// The clock: time of day, long date, how far that is from UTC, and the button that starts the
// time-setting tool.
#pragma once

#include "core/dates.h"

#include <QWidget>

#include <memory>

namespace orvalis::Ui {
class PanneauHorloge;
}

namespace orvalis {

class PanneauHorloge : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauHorloge(QWidget* parent = nullptr);
    ~PanneauHorloge() override;

    void Montrer(const Instant& instant);

  private:
    std::unique_ptr<Ui::PanneauHorloge> ui_;
};

} // namespace orvalis
