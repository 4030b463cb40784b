// Pairing: all contacts of a second logbook are appended to the open one, unchecked and unsorted.
#pragma once

#include "core/session.h"

#include <cstdint>
#include <filesystem>

namespace orvalis {

/// Appends the contacts of the logbook `source` at the session's N + 1 and an end-of-log record
/// with the own locator behind them; the session's N must be counted. Callsigns are trimmed, all
/// other bytes copied as they are. A source without an end-of-log record gives all its records,
/// blank ones and a short last one included. How many there are is settled before the first
/// write, so a logbook paired with itself ends with each contact twice.
///
/// The record that replaces the old end-of-log record comes last, when everything else is on the
/// disk: killed before, the program leaves the contacts as they were, whatever lay behind them.
///
/// Returns the number of contacts appended, N and the next record number being counted anew.
/// Throws ErreurFichier, naming the source when that is what cannot be read.
std::int32_t JumelerJournal(Session& session, const std::filesystem::path& source);

} // namespace orvalis
