// What the card says about a stored contact beside its seventeen boxes.
#pragma once

#include "core/session.h"

#include <string>

namespace orvalis {

struct TextesCarte {
    std::string numero;      ///< NoFicheLab
    std::string distance;    ///< LabDist, 10 characters
    std::string azimut;      ///< LabAzim, 4 characters
    std::string departement; ///< LabDept
    bool indicatifPresent = false;
};

/// Texts of record `k`, whose fields stand in the working slots. The distance routine is called
/// with the contact's own MLOC and SLOC, unless they are equal: then "0 Km" and "...".
[[nodiscard]] TextesCarte TextesDeFiche(Session& session, std::int32_t k);

/// Number label of a contact under entry.
[[nodiscard]] std::string NumeroNouvelleFiche(std::int32_t k);

} // namespace orvalis
