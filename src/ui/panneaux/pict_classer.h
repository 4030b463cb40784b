// The panel that shows how far the sort has come.
#pragma once

#include "ui/carte/ecran.h"

#include <QFrame>

#include <memory>

namespace orvalis::Ui {
class PictClasser;
}

namespace orvalis {

class PictClasser : public QFrame {
    Q_OBJECT
  public:
    explicit PictClasser(QWidget* parent = nullptr);
    ~PictClasser() override;

    /// What the panel says; its coming and going is the painter's.
    void Montrer(const PanneauClasser& classer);

  private:
    std::unique_ptr<Ui::PictClasser> ui_;
};

} // namespace orvalis
