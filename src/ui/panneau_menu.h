// The idle buttons under the card: new contact, delete, close.
#pragma once

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

    void ActiverNouveau(bool actif);
    /// Leaves Alt+N to the No button while a question waits.
    void CederAltN(bool cede);
    void DonnerFoyerNouveau();
    void ActiverSupprimer(bool actif);
    void ActiverFermer(bool actif);

  Q_SIGNALS:
    void nouveauDemande();
    void suppressionDemandee();
    void fermetureDemandee();

  private:
    std::unique_ptr<Ui::PictMenu> ui_;
};

} // namespace orvalis
