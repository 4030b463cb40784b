// Backup and copy of the open logbook, record by record.
#pragma once

#include "core/cahier.h"
#include "core/station.h"

#include <filesystem>

namespace orvalis {

/// The backup folder in the program folder of `lecteur`, under the name in whatever case that is
/// there; created when missing. Throws Erreur naming it when that fails.
[[nodiscard]] std::filesystem::path CheminSauvegardes(const std::filesystem::path& lecteur);

/// Writes records 1 to N + 1 of the logbook (N being counted), the end-of-log record included, as
/// records 1 to N + 1 of `cible`, and returns when they are on the disk. An existing file keeps its
/// records beyond. A logbook without an end-of-log record gives a copy with one, carrying the
/// station's locator: a blank record in its place would count as a contact.
///
/// Throws Erreur naming `cible` when it is the open logbook itself, under whatever name, when
/// another program has it open, when it cannot be written, or has no room for all of it: that is
/// asked before the first byte. The message says whether what was there is still whole; a file that
/// was made and not finished is removed. The logbook is only read.
void CopierCahier(const Cahier& cahier, const Station& station, const std::filesystem::path& cible);

} // namespace orvalis
