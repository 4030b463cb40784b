// Pairing: all contacts of a second logbook are appended to the open one, unchecked and unsorted.
#pragma once

#include "core/cahier.h"
#include "core/station.h"

#include <cstdint>
#include <filesystem>

namespace orvalis {

/// Appends the contacts of the logbook `source` at N + 1 of `cahier`, which is counted, and an
/// end-of-log record with the station's locator behind them. Callsigns are trimmed, all
/// other bytes copied as they are. A source without an end-of-log record gives all its records,
/// blank ones and a short last one included. How many there are is settled before the first
/// write, so a logbook paired with itself ends with each contact twice.
///
/// The record that replaces the old end-of-log record comes last, when everything else is on the
/// disk: killed before, the program leaves the contacts as they were, whatever lay behind them.
///
/// Returns the number of contacts appended, N being counted anew.
/// Throws Erreur, naming the source when that is what cannot be read; the logbook is then as it
/// was, in its former length, as far as the disk lets it (AllongerCahier).
std::int32_t JumelerCahier(Cahier& cahier, const Station& station,
                           const std::filesystem::path& source);

} // namespace orvalis
