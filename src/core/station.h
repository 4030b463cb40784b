// Who and where the station is: what the Settings file says of it, and the drive it was found on.
#pragma once

#include <filesystem>
#include <string>

namespace orvalis {

struct Station {
    std::filesystem::path lecteur;  ///< the drive (see dossier.h)
    std::string indicatif;          ///< station callsign
    std::string monLocator;         ///< own locator, 6 characters; that of another logbook on show
    std::string propreLocator = {}; ///< the station's own, kept while another logbook is on show
};

} // namespace orvalis
