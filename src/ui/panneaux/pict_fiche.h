// The card of a contact: seventeen entry boxes, its number, department, distance and azimuth.
#pragma once

#include "ui/carte/vue.h"
#include "ui/widgets/txt_field.h"

#include <QFrame>

#include <array>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace orvalis {

class Boussole;
class Rangees;

class PictFiche : public QFrame {
    Q_OBJECT
  public:
    explicit PictFiche(QWidget* parent = nullptr);

    [[nodiscard]] TxtField& TxtFieldDe(Boite boite) { return *boites_[Rang(boite)]; }
    /// Everything the card shows; what is there already is not written again.
    void Montrer(const VueCarte& vue);
    /// Breaks the rows of boxes where the card is at most `largeur` wide.
    void Ranger(int largeur);
    /// The width in which no row breaks.
    [[nodiscard]] int LargeurPleine() const;

  private:
    [[nodiscard]] QWidget* FaireCellule(Boite premiere);
    [[nodiscard]] QWidget* FaireResultats();
    [[nodiscard]] QHBoxLayout* AvecInfoJointe(QLabel& legende, Boite boite);
    void FaireEntete();
    void MontrerCap(const VueCarte& vue);
    [[nodiscard]] QLabel* FaireLegende(const DescriptionBoite& tete, QWidget* cellule);
    [[nodiscard]] TxtField* FaireBoite(const DescriptionBoite& boite);

    Rangees* rangees_ = nullptr;
    std::array<TxtField*, kNbBoites> boites_{};
    QLabel* noFicheLab_ = nullptr;
    QLabel* labNonEnregistre_ = nullptr;
    std::array<QLabel*, 2> infosJointes_{}; ///< of box 13, of box 17
    QLabel* labDept_ = nullptr;
    QLabel* labDist_ = nullptr;
    QLabel* labAzim_ = nullptr;
    Boussole* boussole_ = nullptr;
    QPushButton* btActiveRech_ = nullptr;
};

} // namespace orvalis
