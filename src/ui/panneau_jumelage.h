// The pairing panel: save first, then append a second logbook.
#pragma once

#include <QFrame>

#include <memory>
#include <string_view>

namespace orvalis::Ui {
class PJumelage;
}

namespace orvalis {

class PJumelage : public QFrame {
    Q_OBJECT
  public:
    explicit PJumelage(QWidget* parent = nullptr);
    ~PJumelage() override;

    /// Shows the panel for the logbook file of this name; its backup button is usable.
    void Ouvrir(std::string_view nomFichier);
    void ActiverSauvegarde(bool active);

  Q_SIGNALS:
    void jumeler();
    void sauvegarder();
    void annuler();

  private:
    std::unique_ptr<Ui::PJumelage> ui_;
};

} // namespace orvalis
