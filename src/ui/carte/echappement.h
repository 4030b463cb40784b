// What the Escape key stands for in a given state.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"

#include <string_view>

namespace orvalis {

/// The command of the button that Escape presses, by its objectName: the one that closes what lies
/// on top and changes nothing that is stored. Empty: Escape does nothing.
[[nodiscard]] std::string_view CommandeDEchap(const Ecran& ecran, const VueFeuille& feuille);

} // namespace orvalis
