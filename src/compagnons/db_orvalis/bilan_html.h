// The numbers of a logbook as a page of the web, in one file.
#pragma once

#include "compagnons/db_orvalis/bilan_dessin.h"
#include "echange/exporter.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvalis {

/// The page itself; what it holds is escaped and it asks for no other file.
[[nodiscard]] std::string PageBilan(const FeuilleBilan& feuille);

/// What EcrireBilan is asked for.
struct DemandeBilan {
    std::filesystem::path cahier; ///< the logbook that is read; its file is never written
    std::filesystem::path cible;
    std::string indicatif;                       ///< of the station; not written when empty
    std::vector<std::filesystem::path> proteges; ///< the station's own files, never replaced
    Jour faitLe;
};

/// Writes the page; a former file is replaced once the new one is on the disk. Throws Erreur or
/// RefusEchange, with nothing written.
[[nodiscard]] BilanSortie EcrireBilan(const DemandeBilan& demande);

/// The computer's day, for DemandeBilan. As long as it takes no Fuseau may live.
[[nodiscard]] Jour Aujourdhui();

} // namespace orvalis
