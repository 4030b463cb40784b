// Charts on a printer: columns, bars, and the texts beside them.
#pragma once

#include "print/imprimante.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace orvalis {

/// A part of the sheet, in twips.
struct Cadre {
    int x = 0, y = 0, largeur = 0, hauteur = 0;
    [[nodiscard]] constexpr int Droite() const { return x + largeur; }
    [[nodiscard]] constexpr int Bas() const { return y + hauteur; }
};

/// What a column or a bar stands for.
struct Valeur {
    std::string nom;
    std::size_t nombre = 0;
};

/// How a text looks.
struct Style {
    int taille = 9; ///< points
    bool gras = false;
    Encre encre = Encre::Noir;
};

/// Where a text stands from the place it is given.
enum class Cote : unsigned char { Gauche, Centre, Droite };

void EcrireTexte(Imprimante& imprimante, int x, int y, std::string_view texte, Style style = {},
                 Cote cote = Cote::Gauche);
/// Its width in that style.
[[nodiscard]] int Largeur(Imprimante& imprimante, std::string_view texte, Style style = {});
/// The text, cut with an ellipsis where it is wider than `largeur`.
[[nodiscard]] std::string Tenir(Imprimante& imprimante, std::string texte, int largeur,
                                Style style = {});
void Remplir(Imprimante& imprimante, const Cadre& cadre, Encre encre);

/// The word for so many: "un" from 0 to 1, "plusieurs" beyond.
[[nodiscard]] constexpr std::string_view Accorder(std::size_t nombre, std::string_view un,
                                                  std::string_view plusieurs) {
    return nombre > 1 ? plusieurs : un;
}

/// Columns side by side over their names. Where there are too many for their numbers, a scale takes
/// their place; where there are too many for their names, every fifth or tenth is named.
void DessinerColonnes(Imprimante& imprimante, const Cadre& cadre, std::span<const Valeur> valeurs);

/// Bars one below the other, name on the left, number behind the bar.
void DessinerBarres(Imprimante& imprimante, const Cadre& cadre, std::span<const Valeur> valeurs);

/// How many bars the part takes, and the height of one.
inline constexpr int kHauteurBarre = 330;
[[nodiscard]] constexpr std::size_t NbBarres(const Cadre& cadre) {
    return static_cast<std::size_t>(cadre.hauteur / kHauteurBarre);
}

} // namespace orvalis
