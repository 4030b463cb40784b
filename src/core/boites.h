// The seventeen entry boxes of the card: one table, and what each box takes from the keyboard.
#pragma once

#include "core/qso_record.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvalis {

inline constexpr std::size_t kNbBoites = 17;

/// What a box does with a typed character. Backspace and Enter always pass.
enum class Touches {
    Libres,        ///< everything passes
    Majuscules,    ///< letters are turned to upper case
    DateHeureFreq, ///< "." to ":" (codes 46 to 58: point, stroke, digits, colon)
    Report,        ///< the same and "+"
    Chiffres       ///< digits only
};

struct DescriptionBoite {
    std::size_t index; ///< 1 to 17; also the working slot
    std::string_view
        etiquette;            ///< objectName of the label above; empty when it shares the last one
    std::string_view legende; ///< its caption, underscores and blanks included
    std::size_t longueur;     ///< most characters the box takes
    bool centre;
    Touches touches;
};

/// In the order of their numbers.
inline constexpr std::array<DescriptionBoite, kNbBoites> kBoites = {{
    {1, "Frm01Lab01", "_ Indicatif_______________________", 15, false, Touches::Majuscules},
    {2, "Frm01Lab02", "_ Date _____", 8, true, Touches::DateHeureFreq},
    {3, "Frm01Lab03", "_ Heures   Début /  Fin", 5, true, Touches::DateHeureFreq},
    {4, "", "", 5, true, Touches::DateHeureFreq},
    {5, "Frm01Lab05", "_ Fréquence________", 10, false, Touches::DateHeureFreq},
    {6, "Frm01Lab06", "_ Mode______", 5, true, Touches::Majuscules},
    {7, "Frm01Lab07", "_ RST Donné    /    Reçu", 8, true, Touches::Report},
    {8, "", "", 8, true, Touches::Report},
    {9, "Frm01Lab09", "_ QTH ______________________________", 25, false, Touches::Majuscules},
    {10, "Frm01Lab10", "_ Son Locator _", 6, true, Touches::Majuscules},
    {11, "Frm01Lab11", "_ Département ____________", 3, true, Touches::Chiffres},
    {12, "Frm01Lab12", "_ Prénom  ___________________________", 15, false, Touches::Libres},
    {13, "lblLabels", "_ Infos ____________", 15, false, Touches::Majuscules},
    {14, "Frm01Lab14", "_ Ma QSL ___", 8, true, Touches::Libres},
    {15, "Frm01Lab15", "_ Sa QSL __", 8, true, Touches::Libres},
    {16, "Frm01Lab16", " _Mon Locator__", 6, true, Touches::Majuscules},
    {17, "lblLabels_17", "_ QSL Manager ______", 15, false, Touches::Majuscules},
}};

[[nodiscard]] constexpr const DescriptionBoite& Boite(std::size_t index) {
    return kBoites[index - 1];
}

/// Order in which the Tab key walks through the boxes; the Enter key has an order of its own.
inline constexpr std::array<std::size_t, kNbBoites> kOrdreTabulation = {
    12, 11, 10, 8, 7, 6, 5, 4, 3, 2, 1, 9, 15, 14, 17, 16, 13};

/// The characters of `saisie` (typed or pasted, UTF-8) that a box takes, in the case it takes
/// them; refused ones are left out.
[[nodiscard]] std::string FiltrerTouches(Touches touches, std::string_view saisie);

/// Text and cursor of a box after an edit.
struct TexteEdite {
    std::string texte;
    std::size_t curseur = 0; ///< in characters
};

/// What a box of `longueur` characters holds when an edit turned `ancien` into `nouveau`, leaving
/// the cursor behind the inserted part: that part alone is filtered by `touches`, then cut to the
/// room that is left. What stood in the box before is never touched; where nothing of an inserted
/// part passes, the edit is undone, so that a refused paste does not erase what was selected.
[[nodiscard]] TexteEdite FiltrerEdition(Touches touches, std::size_t longueur,
                                        std::string_view ancien, const TexteEdite& nouveau);

} // namespace orvalis
