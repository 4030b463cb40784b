// A logbook into a file of the interchange format.
#pragma once

#include "echange/adif_fichiers.h"
#include "echange/heures.h"
#include "echange/lecture_cahier.h"

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace orvalis {

struct DemandeExport {
    std::filesystem::path cahier; ///< the logbook that is read; its file is never written
    std::filesystem::path cible;
    GenreAdif genre = GenreAdif::Adi;
    std::string indicatif;                       ///< of the station; not written when empty
    std::vector<std::filesystem::path> proteges; ///< the station's own files, never replaced
    std::string creation;                        ///< time of the file, see EcrireInstantAdif
};

/// Writes all contacts of the logbook; a former file is replaced once the new one is on the disk.
/// Throws Erreur or RefusEchange, with nothing written.
[[nodiscard]] BilanSortie ExporterAdif(const DemandeExport& demande, const Fuseau& fuseau);

/// Refuses a place for a file of another form: a logbook's, by the end .Vek of its name, or that of
/// one of the files `proteges` under whatever name. Throws RefusEchange.
void RefuserCible(const std::filesystem::path& cible,
                  std::span<const std::filesystem::path> proteges);
/// Whether both name one file, be it there or not.
[[nodiscard]] bool MemeFichier(const std::filesystem::path& a, const std::filesystem::path& b);
/// Whether writing `cible` would replace one of these files, or make one that the station would
/// take for it: names in the program folder are looked up without regard to case.
[[nodiscard]] bool PrendUnePlace(const std::filesystem::path& cible,
                                 std::span<const std::filesystem::path> proteges);

} // namespace orvalis
