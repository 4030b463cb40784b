// The pairing panel: save first, then append a second logbook.
#pragma once

#include "ui/carte/ecran.h"

#include <QFrame>

#include <memory>

namespace orvalis::Ui {
class PJumelage;
}

namespace orvalis {

class PJumelage : public QFrame {
    Q_OBJECT
  public:
    explicit PJumelage(QWidget* parent = nullptr);
    ~PJumelage() override;

    void Montrer(const PanneauJumelage& jumelage);

  private:
    std::unique_ptr<Ui::PJumelage> ui_;
};

} // namespace orvalis
