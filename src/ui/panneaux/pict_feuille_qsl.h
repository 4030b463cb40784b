// The QSL sheet: its sixteen places as they lie on the paper, and the editor of one label. It
// paints an EtatFeuille and reports what the operator does; it decides nothing.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/apercu_etiquette.h"

#include <QFrame>

#include <array>
#include <memory>
#include <optional>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace orvalis::Ui {
class PictFeuilleQSL;
}

namespace orvalis {

class FiltreEdition;
class VueEtiquette;

class PictFeuilleQSL : public QFrame {
    Q_OBJECT
  public:
    explicit PictFeuilleQSL(QWidget* parent = nullptr);
    ~PictFeuilleQSL() override;

    /// Paints the whole panel. Text is edited only while the label is a fresh one, and nothing
    /// while the print check waits.
    void Montrer(const EtatFeuille& feuille);
    /// What is printed of the label in the editor, and what to look at twice.
    void MontrerApercu(const std::optional<ApercuEtiquette>& apercu);
    /// Puts a panel under the editor, where it comes and goes without moving anything.
    void Accueillir(QWidget& panneau);
    /// Puts the editor beside the sheet, or above it where both do not fit into `largeur`.
    void Ranger(int largeur);

  Q_SIGNALS:
    void choix(orvalis::Place place); ///< BtChoix
    void tag(orvalis::Place place);   ///< BtTag
    void boiteSaisie(std::size_t boite, const QString& texte);
    void boiteEntree(std::size_t boite); ///< Enter, either one
    void voieChoisie(orvalis::VoieQSL voie);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    struct ControlesPlace {
        QFrame* cadre = nullptr; ///< PictBtEtiq
        QPushButton* tag = nullptr;
        QPushButton* choix = nullptr;
        VueEtiquette* etiquette = nullptr;
    };
    struct BoiteEditeur {
        QLineEdit* texte = nullptr;
        QLabel* legende = nullptr;
        FiltreEdition* filtre = nullptr;
    };

    [[nodiscard]] ControlesPlace FaireControles(Place place);
    void FaireBoites();
    void FaireApercu();
    void FaireBoite(std::size_t rang, QHBoxLayout& rangee);
    void BrancherBoutons();
    void OrdonnerTabulation();
    [[nodiscard]] bool AllerALaPlace(const QObject* depuis, int touche);
    void MontrerPlaces(const EtatFeuille& feuille);
    void MontrerBoites(const EtatFeuille& feuille);
    void MontrerVoie(VoieQSL voie);
    void MontrerBoutons(const VueFeuille& vue);
    void PeindreFonds();
    [[nodiscard]] BoiteEditeur& Boite(std::size_t boite) { return boites_[boite - 1]; }

    std::unique_ptr<Ui::PictFeuilleQSL> ui_;
    std::array<ControlesPlace, kNbEtiquettes> places_;
    std::array<BoiteEditeur, kNbBoitesEtiquette> boites_;
    QPushButton* btIndicatif_ = nullptr; ///< puts the own callsign into the heading
    QWidget* apercu_ = nullptr;          ///< the two that follow
    VueEtiquette* etiquette_ = nullptr;
    QLabel* avis_ = nullptr;
};

} // namespace orvalis
