// Which chapter of the operator's guide tells of what is on show.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/session.h"

#include <string_view>

namespace orvalis {

inline constexpr std::string_view kChapitreCreation = "le-premier-lancement";
inline constexpr std::string_view kChapitreCoordonnees = "la-fenêtre-des-coordonnées";

/// The anchor of the chapter: its title in small letters, hyphens for blanks, other signs dropped.
[[nodiscard]] std::string_view ChapitreDuGuide(const Session& session, const Ecran& ecran,
                                               const VueFeuille& feuille);

} // namespace orvalis
