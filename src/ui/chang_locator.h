// The panel that changes the station's own locator during entry.
#pragma once

#include <QFrame>

#include <memory>
#include <string>
#include <string_view>

namespace orvalis::Ui {
class PictChangLocator;
}

namespace orvalis {

class PictChangLocator : public QFrame {
    Q_OBJECT
  public:
    explicit PictChangLocator(QWidget* parent = nullptr);
    ~PictChangLocator() override;

    /// Shows the panel with its Valider button hidden and gives its box the focus.
    void Ouvrir();
    /// Shows a text in the box, all of it selected.
    void Montrer(std::string_view texte);
    void MontrerValider(bool visible);
    void DonnerFoyerValider();
    void DonnerFoyerTexte();
    [[nodiscard]] std::string Texte() const;
    [[nodiscard]] bool Garder() const;

  Q_SIGNALS:
    void foyerTexte(); ///< the box takes the focus
    void texteChange();
    void entree();
    void valider();
    void annuler();

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    std::unique_ptr<Ui::PictChangLocator> ui_;
};

} // namespace orvalis
