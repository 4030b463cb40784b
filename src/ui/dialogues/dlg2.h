// The coordinates dialog: a locator, degrees with minutes and seconds, and decimal degrees; the
// notations that the operator is not typing in follow the one he types in.
#pragma once

#include "ui/carte/boites.h"

#include <QDialog>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

class QKeyEvent;
class QLineEdit;

namespace orvalis {

namespace Ui {
class Dlg2;
}

class Dlg2 : public QDialog {
    Q_OBJECT

  public:
    explicit Dlg2(QWidget* parent = nullptr);
    ~Dlg2() override;

    /// The last valid locator that the operator worked out since the dialog was opened, or nothing
    /// when he changed nothing. It holds until the next opening.
    [[nodiscard]] std::optional<std::string> LocatorModifie() const;

    bool eventFilter(QObject* objet, QEvent* evenement) override;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

  private:
    /// The editing mode: which notation the operator has chosen to type in.
    enum class Notation { Dms = 1, Locator = 2, Decimale = 3 };

    /// What a box takes.
    struct Regle {
        Touches touches = Touches::Chiffres;
        std::size_t largeur = 0; ///< in characters; 0: free
        int limite = 0;          ///< values from here on are refused; 0: none
    };

    struct Boite {
        QLineEdit* champ;
        Regle regle;
        Notation notation;
        QWidget* suivant; ///< where the focus goes when the box is complete
    };

    class Filtre;

    void PreparerBoite(const Boite& boite);
    void Ouvrir();

    [[nodiscard]] bool TraiterTouche(const Boite& boite, const QKeyEvent& touche);
    void Confirmer(const Boite& boite);
    void Choisir(const Boite& boite);
    void Quitter(const Boite& boite);
    void TraiterChangement(const Boite& boite);
    void ChangerDms(const Boite& boite);
    void ChangerDecimal(const Boite& boite);

    void CalculerDepuisDms();
    void AfficherDepuisLocator();
    void AfficherDms();
    void AfficherDecimal();
    void RetenirLocator(const std::string& nouveau);

    std::unique_ptr<Ui::Dlg2> ui_;
    std::array<Boite, 11> boites_;

    Notation notation_ = Notation::Locator;
    float latitude_ = 0;        ///< positive to the North
    float longitude_ = 0;       ///< positive to the West
    std::string locator_;       ///< always valid once the dialog has been opened
    bool locatorEdite_ = false; ///< the locator box was typed in since it was last taken over
    bool modifie_ = false;
};

} // namespace orvalis
