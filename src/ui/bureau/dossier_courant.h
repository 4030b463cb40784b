// The current folder, on which the drive depends.
#pragma once

#include <QDir>

namespace orvalis {

/// While one lives, a dialog of the system may go where it likes; then the program is where it was.
class DossierCourantGarde {
  public:
    DossierCourantGarde() = default;
    DossierCourantGarde(const DossierCourantGarde&) = delete;
    DossierCourantGarde& operator=(const DossierCourantGarde&) = delete;
    ~DossierCourantGarde() {
        if (QDir::currentPath() != avant_)
            QDir::setCurrent(avant_);
    }

  private:
    QString avant_ = QDir::currentPath();
};

} // namespace orvalis
