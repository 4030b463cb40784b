// Changing the station's own locator during entry.
#pragma once

#include "ui/plateau.h"

namespace orvalis {

/// MnuChangerLocator: opens the panel; only while a contact is being entered.
void ChangerDeLocator(Plateau& p);
/// Opens the panel over whatever asked for it.
void OuvrirChangLocator(Plateau& p);
/// The panel's box takes the focus.
void SurFoyerLocator(Plateau& p);
/// The text of the panel's box changed.
void SurTexteLocator(Plateau& p);
/// Enter in the panel's box.
void SurEntreeLocator(Plateau& p);
void ValiderLocator(Plateau& p);
void AnnulerLocator(Plateau& p);

} // namespace orvalis
