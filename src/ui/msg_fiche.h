// The confirmation frame: delete this card, or store what was changed on it?
#pragma once

#include <QGroupBox>

#include <memory>
#include <string_view>

namespace orvalis::Ui {
class FraMsgFiche;
}

namespace orvalis {

class FraMsgFiche : public QGroupBox {
    Q_OBJECT
  public:
    explicit FraMsgFiche(QWidget* parent = nullptr);
    ~FraMsgFiche() override;

    /// Fills the frame and shows it.
    void Demander(std::string_view question, std::string_view numero, std::string_view indicatif);
    void DonnerFoyerNon();

  Q_SIGNALS:
    void visibleChange(bool visible);
    void oui();
    void non();

  protected:
    void showEvent(QShowEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;

  private:
    std::unique_ptr<Ui::FraMsgFiche> ui_;
};

} // namespace orvalis
