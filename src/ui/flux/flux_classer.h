// The sort of the logbook, shown as it walks.
#pragma once

#include "ui/flux/plateau.h"

namespace orvalis {

/// MnuClasser: sorts the logbook while the window stays alive.
void Classer(Plateau& p);

} // namespace orvalis
