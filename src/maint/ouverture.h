// Opening another logbook in place of the current one.
#pragma once

#include "core/cahier.h"
#include "core/station.h"

#include <filesystem>
#include <string>

namespace orvalis {

/// What opening another logbook came to.
struct BilanOuverture {
    bool ouvert = false; ///< false: it is the logbook already open, and nothing changed
    EtatCahier etat;     ///< what is missing in the opened file deserves a warning
};

/// The name under which a logbook file is shown: its file name less the last four characters (its
/// extension). A name of four characters or fewer stays whole, since an empty one would pass for
/// the station's own logbook.
[[nodiscard]] std::string NomAutreCahier(const std::filesystem::path& chemin);

/// Opens `chemin` in place of the logbook on show: path, name of the other logbook, whether it may
/// only be looked at and N are set, and the own locator becomes that of the end-of-log record
/// (trimmed, then kept as 6 characters); without one it is the station's. A logbook may only be
/// looked at when its name is not the station's callsign or its file may not be written. That no
/// record of it is current yet is the caller's business.
///
/// Throws Erreur; the current logbook then stays open as it was.
[[nodiscard]] BilanOuverture OuvrirAutreCahier(Cahier& cahier, Station& station,
                                               const std::filesystem::path& chemin);

} // namespace orvalis
