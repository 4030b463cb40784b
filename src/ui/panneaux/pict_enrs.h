// The entry buttons, in the place of the idle ones while a contact is being entered.
#pragma once

#include "ui/carte/vue.h"

#include <QWidget>

#include <memory>

namespace orvalis::Ui {
class PictEnrs;
}

namespace orvalis {

class PictEnrs : public QWidget {
    Q_OBJECT
  public:
    explicit PictEnrs(QWidget* parent = nullptr);
    ~PictEnrs() override;

    /// The store button green and usable, or at rest.
    void Montrer(const VueBoutons& boutons);
    /// Leaves Alt+A to the locator panel's own button while that is open.
    void CederAltA(bool cede);
    /// Real time, or deferred.
    void MontrerOption(bool tempsReel);

  Q_SIGNALS:
    void optionChoisie(bool tempsReel); ///< a click on either option, the selected one included

  private:
    std::unique_ptr<Ui::PictEnrs> ui_;
};

} // namespace orvalis
