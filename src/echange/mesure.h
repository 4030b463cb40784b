// How far a contact goes, and where to.
#pragma once

#include "core/qso_record.h"

#include <optional>
#include <string>

namespace orvalis {

/// Distance and azimuth of a contact as the card shows them, empty where a locator is not one.
struct MesureContact {
    std::string distance;
    std::string azimut;
    std::optional<double> km; ///< the distance shown, as a number
};

[[nodiscard]] MesureContact MesurerContact(const QsoRecord& fiche);

} // namespace orvalis
