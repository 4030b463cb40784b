// Change of the station's own locator, from which distances start and which every contact carries.
#pragma once

#include "core/station.h"
#include "ui/carte/carte.h"

#include <string_view>

namespace orvalis {

enum class VerdictLocator {
    Rien,    ///< not six characters: nothing happens
    Accepte, ///< show BtChangValid and give it the focus
    Refuse   ///< show "ERREUR" for one second, then empty the box
};

/// The Enter key in ChangLocText, for its text (blanks around it do not count).
[[nodiscard]] VerdictLocator JugerLocatorStation(std::string_view texte);

/// BtChangValid: `texte`, trimmed and padded to 6 characters, becomes the own locator, and that of
/// the contact under entry. With `garder` the Settings file in the program folder is rewritten
/// with it, its two other values as they are in the file; throws Erreur,
/// nothing being changed then.
void ChangerLocatorStation(Station& station, Carte& carte, std::string_view texte, bool garder);

} // namespace orvalis
