// What dbOrvalis knows of the station: its Settings, and the files that it never replaces.
#pragma once

#include "core/parametres.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvalis {

struct StationLue {
    Parametres parametres;
    std::filesystem::path cahier;                ///< the station's logbook
    std::vector<std::filesystem::path> fichiers; ///< all files of the station
};

/// The Settings, where there are any. `courant` is the current folder, from which the drive
/// follows, `maison` the user's own. Throws Erreur.
[[nodiscard]] std::optional<StationLue> LireStation(const std::filesystem::path& courant,
                                                    const std::filesystem::path& maison);

/// The callsign that goes with a logbook: the station's for its own, none for another.
[[nodiscard]] std::string IndicatifDe(const std::optional<StationLue>& station,
                                      const std::filesystem::path& cahier);
/// The station's locator for contacts that do not tell it; empty when the Settings have none.
[[nodiscard]] std::string LocatorDe(const std::optional<StationLue>& station);
/// The station's files; none without Settings.
[[nodiscard]] std::vector<std::filesystem::path>
FichiersDe(const std::optional<StationLue>& station);

} // namespace orvalis
