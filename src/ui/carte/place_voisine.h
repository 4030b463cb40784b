// Where the arrows go on the label sheet.
#pragma once

#include "core/numeros.h"

#include <optional>

namespace orvalis {

/// One step of an arrow, as the places lie on the sheet: two in a row.
struct PasDePlace {
    int rangees = 0;
    int colonnes = 0;
};

/// The place one step from `place`; none behind the edges of the sheet.
[[nodiscard]] std::optional<Place> PlaceVoisine(Place place, PasDePlace pas);

} // namespace orvalis
