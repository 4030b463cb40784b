// Opening another logbook in place of the current one.
#pragma once

#include "core/fiches.h"
#include "core/session.h"

#include <filesystem>
#include <string>

namespace orvalis {

/// What opening another logbook came to.
struct BilanOuverture {
    bool ouvert = false; ///< false: it is the logbook already open, and nothing changed
    EtatJournal etat;    ///< what is missing in the opened file deserves a warning
};

/// The name under which a logbook file is shown: its file name less the last four characters (its
/// extension). A name of four characters or fewer stays whole, since an empty one would pass for
/// the station's own logbook.
[[nodiscard]] std::string NomAutreJournal(const std::filesystem::path& chemin);

/// Opens `chemin` as the session's logbook: path, name of the other logbook, N and next record
/// number are set, no record is current, and the own locator becomes that of the end-of-log
/// record (trimmed, then kept as 6 characters); without one it stays as it was. A file that may
/// not be written opens for reading when its name is not the station's callsign.
///
/// Throws ErreurFichier or ErreurVerrou; the current logbook then stays open as it was.
BilanOuverture OuvrirAutreJournal(Session& session, const std::filesystem::path& chemin);

} // namespace orvalis
