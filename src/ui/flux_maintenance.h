// Keeping the logbook in order: sort, pairing, other logbooks, backup and copy.
#pragma once

#include "ui/plateau.h"

namespace orvalis {

/// MnuClasser: sorts the logbook while the window stays alive.
void Classer(Plateau& p);

/// MnuJumeler: opens the pairing panel.
void OuvrirJumelage(Plateau& p);
/// BtPjumeler: chooses a second logbook and appends its contacts.
void Jumeler(Plateau& p);
/// BtPjSauvegarder: one backup per opening of the panel.
void SauvegarderAvantJumelage(Plateau& p);
/// BtPjAnnuler.
void FermerJumelage(Plateau& p);

/// MnuCourantF: reopens the station's own logbook.
void OuvrirJournalCourant(Plateau& p);
/// MnuAutreF: opens another logbook in place of the current one.
void OuvrirAutre(Plateau& p);
/// MnuSauver: copies the logbook into the backup folder.
void Sauvegarder(Plateau& p);
/// MnuCopieSurDisque: copies the logbook wherever the operator likes.
void CopierSurDisque(Plateau& p);

} // namespace orvalis
