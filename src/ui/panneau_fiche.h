// The card of a contact: seventeen entry boxes, its number, department, distance and azimuth.
#pragma once

#include "core/boites.h"
#include "ui/zone_saisie.h"

#include <QFrame>

#include <array>
#include <string_view>

class QLabel;
class QPushButton;
class QHBoxLayout;

namespace orvalis {

class PictFiche : public QFrame {
    Q_OBJECT
  public:
    explicit PictFiche(QWidget* parent = nullptr);

    /// Box `index`, 1 to 17.
    [[nodiscard]] ZoneSaisie& Boite(std::size_t index) { return *boites_[index - 1]; }
    [[nodiscard]] std::string TexteBoite(std::size_t index) const;
    void MontrerBoite(std::size_t index, std::string_view texte);
    void MontrerNumero(std::string_view texte);
    void MontrerDistance(std::string_view texte);
    void MontrerAzimut(std::string_view texte);
    void MontrerDepartement(std::string_view nom);
    void MontrerActiveRech(bool visible);
    /// The badge that says that what the card shows is not in the logbook yet.
    void MontrerNonEnregistre(bool visible);

  Q_SIGNALS:
    void activeRechDemande(); ///< "Voir contacts réalisés"

  private:
    QWidget* FaireCellule(std::size_t premiere);
    QWidget* FaireResultats();
    void FaireEntete(QHBoxLayout& entete);
    ZoneSaisie* FaireBoite(const DescriptionBoite& boite);

    std::array<ZoneSaisie*, kNbBoites> boites_{};
    QLabel* noFicheLab_ = nullptr;
    QLabel* labNonEnregistre_ = nullptr;
    QLabel* labDept_ = nullptr;
    QLabel* labDist_ = nullptr;
    QLabel* labAzim_ = nullptr;
    QPushButton* btActiveRech_ = nullptr;
};

/// `ColorerZone`: the background of box `index` (1 to 17) by a colour code.
void ColorerZone(PictFiche& fiche, std::size_t index, Couleur couleur);

} // namespace orvalis
