// The first run: asks for callsign and locator, writes the Settings file and an empty logbook.
#pragma once

#include "ui/carte/creation_cahier.h"

#include <QDialog>

#include <filesystem>
#include <memory>

namespace orvalis::Ui {
class Dlg1;
}

namespace orvalis {

class LabConseil;
class Systeme;

class Dlg1 : public QDialog {
    Q_OBJECT
  public:
    Dlg1(std::filesystem::path lecteur, Systeme& systeme, QWidget* parent);
    ~Dlg1() override;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

  private:
    /// The dialog as the rules know it.
    [[nodiscard]] Creation Lire() const;
    void Conseiller();
    void AccepterIndicatif();
    void AccepterLocator();
    void CalculerLocator();
    void Valider();

    std::unique_ptr<Ui::Dlg1> ui_;
    std::filesystem::path lecteur_;
    Systeme& systeme_;
    Creation acceptee_; ///< what Enter has accepted
    LabConseil* conseil_ = nullptr;
};

} // namespace orvalis
