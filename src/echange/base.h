// A logbook as an SQLite base, for questions that the window does not answer.
#pragma once

#include "echange/lecture_cahier.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvalis {

struct DemandeBase {
    std::filesystem::path cahier; ///< the logbook that is read; its file is never written
    std::filesystem::path cible;
    std::string indicatif;                       ///< of the station, for the table `source`
    std::vector<std::filesystem::path> proteges; ///< the station's own files, never replaced
    std::string creation;                        ///< when it is made, see EcrireInstantIso
};

/// Makes the base, described in docs/formats.md, in one transaction; a former one is replaced once
/// the new one is on the disk, but not while a journal says that a program is at work on it, and no
/// file that is no base. Throws Erreur or RefusEchange, with nothing written.
[[nodiscard]] BilanSortie FaireBase(const DemandeBase& demande);

} // namespace orvalis
