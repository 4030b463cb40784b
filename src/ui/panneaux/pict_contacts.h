// The contacts list: what a search or the duplicate search found.
#pragma once

#include "ui/carte/ecran.h"

#include <QFrame>

#include <memory>

namespace orvalis::Ui {
class PictContacts;
}

namespace orvalis {

class PictContacts : public QFrame {
    Q_OBJECT
  public:
    explicit PictContacts(QWidget* parent = nullptr);
    ~PictContacts() override;

    /// What was found; `lignesChangees`: not the lines of the last time.
    void Montrer(const ListeContacts& contacts, bool lignesChangees);

  Q_SIGNALS:
    void ligneChoisie(int ligne); ///< from 0

  protected:
    void changeEvent(QEvent* evenement) override;

  private:
    void Dimensionner();
    std::unique_ptr<Ui::PictContacts> ui_;
};

} // namespace orvalis
