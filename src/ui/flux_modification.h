// Correcting a stored card, and deleting it.
#pragma once

#include "ui/plateau.h"

namespace orvalis {

/// Leaves modification as if the operator had answered Non, without showing a card again: what
/// was changed and not stored is dropped, the boxes take their resting colours.
void AbandonnerModification(Plateau& p);

} // namespace orvalis
