// The few operations that the printed pages, labels and charts need of a printer.
//
// Coordinates are whole twips (1/1440 inch) from the top-left corner of the printable area, x to
// the right and y downwards. Font sizes are in points, of 20 twips. A text is placed by its
// top-left corner and never wrapped. Lines and rectangles are thin and black; texts are black until
// another ink is chosen, as are filled rectangles.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvalis {

inline constexpr int kTwipsParPoint = 20;
inline constexpr int kEpaisseurTrait = 8; ///< twips; of lines and unfilled rectangles

/// What pages and labels are printed on, and no more.
enum class Papier { A4 };
enum class Orientation { Portrait };

/// Where the text that follows goes: below, at the left edge, or on the same line.
enum class Suite { NouvelleLigne, MemeLigne };

/// What texts and filled rectangles are drawn with. On a printer without colours each is told from
/// the others by its darkness.
enum class Encre { Noir, Gris, Trait, Pale, Forte, Blanc };

struct CouleurEncre {
    unsigned char rouge, vert, bleu;
};
[[nodiscard]] constexpr CouleurEncre CouleurDe(Encre encre) {
    constexpr std::array<CouleurEncre, 6> kCouleurs = {{
        {0, 0, 0},
        {0x55, 0x5F, 0x69},
        {0xCD, 0xD3, 0xD9},
        {0xBF, 0xD6, 0xEC},
        {0x1F, 0x4E, 0x79},
        {0xFF, 0xFF, 0xFF},
    }};
    return kCouleurs[static_cast<std::size_t>(encre)];
}

/// A document begins with the first drawing and is sent by TerminerDocument(). A document that
/// is not ended is not printed.
class Imprimante {
  public:
    virtual ~Imprimante() = default;

    /// Paper of the document to come; to be called before its first drawing.
    virtual void ChoisirPapier(Papier papier, Orientation orientation) = 0;

    /// Font of the texts to come. A family that the system lacks is substituted.
    virtual void ChoisirPolice(std::string_view famille) = 0;
    virtual void ChoisirTaille(int points) = 0;
    virtual void ChoisirGras(bool gras) = 0;
    virtual void ChoisirEncre(Encre encre) = 0;

    /// Sets the current position.
    virtual void Placer(int x, int y) = 0;
    /// Prints a text (UTF-8) at the current position and moves it: to the end of the text with
    /// MemeLigne, to the left edge below the text otherwise.
    virtual void Ecrire(std::string_view utf8, Suite suite) = 0;
    /// Prints a text at a place, and no more on its line.
    void EcrireEn(int x, int y, std::string_view utf8) {
        Placer(x, y);
        Ecrire(utf8, Suite::NouvelleLigne);
    }
    /// Width of a text in the current font, in twips.
    [[nodiscard]] virtual int LargeurTexte(std::string_view utf8) const = 0;

    virtual void TracerLigne(int x1, int y1, int x2, int y2) = 0;
    /// An unfilled rectangle between two opposite corners.
    virtual void TracerRectangle(int x1, int y1, int x2, int y2) = 0;

    /// A rectangle of the chosen ink, without a frame.
    virtual void RemplirRectangle(int x1, int y1, int x2, int y2) = 0;

    /// What follows is on another sheet.
    virtual void TournerPage() = 0;

    /// The printer or file that the document goes to, for the operator (UTF-8); may be empty.
    [[nodiscard]] virtual std::string Nom() const { return {}; }

    /// Sends the document. Throws Erreur when there is no printer, when it fails, or when the PDF
    /// file cannot be written.
    virtual void TerminerDocument() = 0;

  protected:
    Imprimante() = default;
    Imprimante(const Imprimante&) = default;
    Imprimante& operator=(const Imprimante&) = default;
};

} // namespace orvalis
