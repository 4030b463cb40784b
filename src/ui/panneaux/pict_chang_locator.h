// The panel that changes the station's own locator during entry.
#pragma once

#include "ui/carte/ecran.h"

#include <QFrame>

#include <memory>

namespace orvalis::Ui {
class PictChangLocator;
}

namespace orvalis {

class PictChangLocator : public QFrame {
    Q_OBJECT
  public:
    explicit PictChangLocator(QWidget* parent = nullptr);
    ~PictChangLocator() override;

    void Montrer(const PanneauLocator& locator);
    /// Whether the box reads "ERREUR".
    void MontrerErreur(bool erreur);

  Q_SIGNALS:
    void texteChange(const QString& texte);
    void entree(); ///< Enter in the box
    void garderChange(bool garder);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    /// Returns whether the event goes no further.
    [[nodiscard]] bool SuivreClic(const QEvent& evenement);

    std::unique_ptr<Ui::PictChangLocator> ui_;
    bool clicDuFoyer_ = false; ///< the click under way brought the focus
};

} // namespace orvalis
