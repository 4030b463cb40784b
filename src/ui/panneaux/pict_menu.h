// The idle buttons under the card: new contact, delete, close.
#pragma once

#include "ui/carte/vue.h"

#include <QWidget>

#include <memory>

namespace orvalis::Ui {
class PictMenu;
}

namespace orvalis {

class PictMenu : public QWidget {
    Q_OBJECT
  public:
    explicit PictMenu(QWidget* parent = nullptr);
    ~PictMenu() override;

    void Montrer(const VueBoutons& boutons);
    /// Leaves Alt+N to the No button while a question waits.
    void CederAltN(bool cede);

  private:
    std::unique_ptr<Ui::PictMenu> ui_;
};

} // namespace orvalis
