// QSL labels: a sheet of sixteen on A4 portrait, in two columns of eight.
#pragma once

#include "core/numeros.h"
#include "print/imprimante.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvalis {

/// The nine texts of a label, in the order of the label sheet's fields 1 to 9. Their padding is
/// no matter: the drawing trims them in place.
struct DonneesEtiquette {
    std::string indicatif; ///< 1: callsign of the correspondent
    std::string texte1;    ///< 2: first free line; begins the heading
    std::string texte2;    ///< 3: second free line; printed as the QSL manager
    std::string route;     ///< 4: "BUREAU", "DIRECT" or a manager's callsign
    std::string date;      ///< 5
    std::string heure;     ///< 6: UTC
    std::string frequence; ///< 7
    std::string report;    ///< 8
    std::string mode;      ///< 9
};

enum class GenreEtiquette : std::uint8_t { Remplie = 1, Vierge = 2 };

inline constexpr int kLargeurEtiquette = 5200; ///< twips
inline constexpr int kHauteurEtiquette = 1780;

/// The line of a label from `haut` to `bas`, in twips from its upper edge.
struct BandeEtiquette {
    int haut = 0;
    int bas = 0;
};
inline constexpr BandeEtiquette kBandeEnTete = {20, 290};
inline constexpr BandeEtiquette kBandeManager = {300, 570};

/// Column (1 or 2) and row (1 to 8) of a label on the sheet.
struct PositionEtiquette {
    int colonne = 1;
    int rangee = 1;
};

struct OrigineEtiquette {
    int x = 0; ///< twips
    int y = 0;
    friend bool operator==(const OrigineEtiquette&, const OrigineEtiquette&) = default;
};

/// Where the label of `place` lies: odd places left, even places right, row by row.
[[nodiscard]] PositionEtiquette PositionDeEtiquette(Place place);

/// Top-left corner of a label; a row outside 1 to 8 gives y = 0.
[[nodiscard]] OrigineEtiquette OrigineDeEtiquette(PositionEtiquette position);

/// Draws one label at its position and leaves the document open for the others.
/// Remplie: draws and trims `donnees`, and keeps its heading in `enTete`, which outlives a label:
/// kept on purpose, for the printed sheets, where a blank label takes the size of its first font
/// from the last filled one.
/// Vierge: `donnees` is left alone; `station`, the own callsign, makes the heading. Nothing is cut:
/// a value too long for its cell overflows it on both sides. The font is left bold.
void ImprimerEtiquette(Imprimante& imprimante, PositionEtiquette position, GenreEtiquette genre,
                       DonneesEtiquette& donnees, std::string_view station, std::string& enTete);

/// A label and its place on the sheet.
struct EtiquettePlacee {
    Place place = kPremierePlace;
    DonneesEtiquette donnees;
};

/// Prints filled labels on one A4 sheet, each at its place, and ends the document. Prints nothing
/// at all when there is no label.
void ImprimerFeuille(Imprimante& imprimante, std::span<EtiquettePlacee> etiquettes,
                     std::string& enTete);

/// Prints a sheet of sixteen blank labels and ends the document.
void ImprimerFeuilleVierge(Imprimante& imprimante, std::string_view station, std::string& enTete);

} // namespace orvalis
