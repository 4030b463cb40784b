// What opens beside the window: the companion programs, the coordinates dialog, the About box.
#pragma once

#include "ui/flux/plateau.h"

namespace orvalis {

/// A click on the clock: starts the time-setting tool, that of the program folder or else the one
/// installed beside this program, without waiting; a failure is told.
void ReglerHorloge(Plateau& p);

/// MnuCreateMDB: starts the database tool likewise.
void CreerBaseDeDonnees(Plateau& p);

/// MnuEditLocator: the coordinates dialog.
void EditerLocator(Plateau& p);

/// MnuVoir: the About box, which leads to the guide.
void VoirInfos(Plateau& p);

/// F1: the operator's guide, at the chapter of what is on show.
void VoirGuide(Plateau& p);

} // namespace orvalis
