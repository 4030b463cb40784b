// Pairing: the contacts of a second logbook are appended to the open one.
#pragma once

#include "ui/flux/plateau.h"

namespace orvalis {

/// MnuJumeler: opens the pairing panel.
void OuvrirJumelage(Plateau& p);
/// BtPjumeler: chooses a second logbook and appends its contacts.
void Jumeler(Plateau& p);
/// BtPjSauvegarder: one backup per opening of the panel.
void SauvegarderAvantJumelage(Plateau& p);
/// BtPjAnnuler.
void FermerJumelage(Plateau& p);

} // namespace orvalis
