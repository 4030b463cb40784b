// Other logbooks, backup and copy: the commands that ask for a file, and the way back to the own
// logbook. When the other file or the Settings file fails, the operator is told and the program
// goes on, since the open logbook is as it was; a failure of the open logbook itself ends the
// program as everywhere.
#pragma once

#include "ui/flux/plateau.h"

#include <functional>

namespace orvalis {

/// Runs `action`; a failure that does not concern the open logbook is told. Returns success.
[[nodiscard]] bool Essayer(Plateau& p, const std::function<void()>& action);

/// Warns of an open logbook without an end-of-log record or cut in the middle of a record.
void PrevenirSiIncomplet(Plateau& p);

/// Looks what the newest backup of our own logbook is; without a word where it cannot be told.
void RegarderSauvegardes(Plateau& p);

/// Asks for a file in the backup folder and copies the logbook into it. Returns whether a backup
/// was made.
[[nodiscard]] bool FaireSauvegarde(Plateau& p);

/// MnuCourantF: reopens the station's own logbook.
void OuvrirCahierCourant(Plateau& p);
/// MnuAutreF: opens another logbook in place of the current one.
void OuvrirAutre(Plateau& p);
/// MnuSauver: copies the logbook into the backup folder.
void Sauvegarder(Plateau& p);
/// MnuCopieSurDisque: copies the logbook wherever the operator likes.
void CopierSurDisque(Plateau& p);

} // namespace orvalis
