// The confirmation frame: delete this card, or store what was changed on it?
#pragma once

#include "ui/carte/ecran.h"

#include <QGroupBox>

#include <memory>

namespace orvalis::Ui {
class FraMsgFiche;
}

namespace orvalis {

class FraMsgFiche : public QGroupBox {
    Q_OBJECT
  public:
    explicit FraMsgFiche(QWidget* parent = nullptr);
    ~FraMsgFiche() override;

    /// The texts of the question; its coming and going is the painter's.
    void Montrer(const Question& question);

  protected:
    void changeEvent(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

  private:
    void Encadrer();
    std::unique_ptr<Ui::FraMsgFiche> ui_;
};

} // namespace orvalis
