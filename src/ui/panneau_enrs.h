// The entry buttons, in the place of the idle ones while a contact is being entered.
#pragma once

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

    /// The store button: green and usable, or at rest and disabled.
    void ArmerSuivant(bool arme);
    [[nodiscard]] bool SuivantArme() const;
    void ActiverAnnuler(bool actif);
    void DonnerFoyerSuivant();

  Q_SIGNALS:
    void suivantDemande();
    void terminerDemande();
    void annulerDemande();
    void optionChoisie(bool tempsReel); ///< a click on either option, the selected one included

  private:
    std::unique_ptr<Ui::PictEnrs> ui_;
};

} // namespace orvalis
