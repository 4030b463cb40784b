// The page on show as a sheet of the paper log: its columns, and the cells of one row.
#pragma once

#include "core/numeros.h"
#include "core/qso_record.h"

#include <array>
#include <string>
#include <string_view>

namespace orvalis {

struct ColonnePage {
    std::string_view groupe; ///< upper line of the head; "" when the head is one line
    std::string_view titre;
    std::size_t largeur; ///< characters shown, as on the printed page
    Champ champ;         ///< unused in the first column, which holds the record number
};

inline constexpr std::array<ColonnePage, 13> kColonnesPage = {{
    {"", "N° QSO", 6, Champ::CSGN},
    {"", "Date", 8, Champ::DQSO},
    {"Heure", "Début", 5, Champ::HDEB},
    {"Heure", "Fin", 5, Champ::HFIN},
    {"", "QRG", 10, Champ::FREQ},
    {"", "Indicatif", 15, Champ::CSGN},
    {"RST", "Lui", 5, Champ::SRST},
    {"RST", "Moi", 5, Champ::MRST},
    {"", "Mode", 5, Champ::MODE},
    {"", "QTH", 20, Champ::SQTH},
    {"", "Nom", 12, Champ::SNOM},
    {"QSL", "Ma", 8, Champ::MQSL},
    {"QSL", "Sa", 8, Champ::SQSL},
}};

inline constexpr std::size_t kColonneIndicatif = 5;
static_assert(kColonnesPage[kColonneIndicatif].champ == Champ::CSGN);

using CellulesPage = std::array<std::string, kColonnesPage.size()>;

/// The cells of record `k`, each trimmed and cut to its column.
[[nodiscard]] CellulesPage CellulesDeFiche(NumeroFiche k, const QsoRecord& fiche);

/// The same row as one line of fixed-pitch text, cells padded to their columns.
[[nodiscard]] std::string LignePage(const CellulesPage& cellules);

} // namespace orvalis
