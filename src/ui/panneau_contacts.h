// The contacts list: what a search or the duplicate search found.
#pragma once

#include <QFrame>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace orvalis::Ui {
class PictContacts;
}

namespace orvalis {

class PictContacts : public QFrame {
    Q_OBJECT
  public:
    explicit PictContacts(QWidget* parent = nullptr);
    ~PictContacts() override;

    void Remplir(std::span<const std::string> lignes);
    void MontrerCompte(std::string_view nombre);
    void MontrerNature(std::string_view texte);
    /// Selects a line (from 0) without reporting it.
    void Selectionner(int ligne);
    void DonnerFoyer();
    [[nodiscard]] std::int32_t NumeroDe(int ligne) const;

  Q_SIGNALS:
    void ligneChoisie(std::int32_t numero);
    void fermetureDemandee();

  protected:
    void changeEvent(QEvent* evenement) override;

  private:
    void Dimensionner();
    std::unique_ptr<Ui::PictContacts> ui_;
};

} // namespace orvalis
