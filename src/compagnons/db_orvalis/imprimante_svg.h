// A printer that draws into SVG, for pages of the web.
#pragma once

#include "compagnons/db_orvalis/graphiques.h"

#include <string>
#include <string_view>

namespace orvalis {

/// Gathers the elements of one drawing. Widths are those of Arial and the faces made to its
/// measure, which the drawing asks for; papers and pages mean nothing here.
class ImprimanteSvg : public Imprimante {
  public:
    void ChoisirPapier(Papier papier, Orientation orientation) override;
    void ChoisirPolice(std::string_view famille) override;
    void ChoisirTaille(int points) override;
    void ChoisirGras(bool gras) override;
    void ChoisirEncre(Encre encre) override;
    void Placer(int x, int y) override;
    void Ecrire(std::string_view utf8, Suite suite) override;
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override;
    void TracerLigne(int x1, int y1, int x2, int y2) override;
    void TracerRectangle(int x1, int y1, int x2, int y2) override;
    void RemplirRectangle(int x1, int y1, int x2, int y2) override;
    void TournerPage() override;
    void TerminerDocument() override;

    /// The part `cadre` of what was drawn as an element `svg`, no higher than it takes;
    /// `titre` is for who cannot see it.
    [[nodiscard]] std::string Dessin(const Cadre& cadre, std::string_view titre) const;

  private:
    void Rectangle(int x1, int y1, int x2, int y2, std::string_view aspect);

    std::string elements_;
    std::string police_;
    int taille_ = 10;
    bool gras_ = false;
    Encre encre_ = Encre::Noir;
    int x_ = 0;
    int y_ = 0;
    int bas_ = 0; ///< of what was drawn
};

/// A text between the tags of a page, or in an attribute.
[[nodiscard]] std::string EchapperHtml(std::string_view utf8);
/// "#1f4e79".
[[nodiscard]] std::string CouleurHtml(Encre encre);

} // namespace orvalis
