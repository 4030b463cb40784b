// A logbook as an SQLite base, for questions that the window does not answer.
#pragma once

#include <cstddef>
#include <cstdint>
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

struct BilanBase {
    std::size_t contacts = 0;
    std::size_t sansDate = 0; ///< contacts whose date cannot be read
    bool finPresente = true;  ///< see CahierLu
    bool longueurEntiere = true;
};

/// Makes the base, described in docs/formats.md, in one transaction; a former one is replaced once
/// the new one is on the disk, but not while a journal says that a program is at work on it, and no
/// file that is no base. Throws Erreur or RefusEchange, with nothing written.
[[nodiscard]] BilanBase FaireBase(const DemandeBase& demande);

} // namespace orvalis
