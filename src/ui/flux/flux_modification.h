// Correcting a stored card, and deleting it: the question, the answer, what happens then.
#pragma once

#include "ui/flux/plateau.h"

namespace orvalis {

/// Leaves modification or a question that waits as if the operator had answered Non, without
/// showing a card again: what was changed is dropped, the boxes take their resting colours.
void AbandonnerModification(Plateau& p);

/// BtKillFiche: asks whether to delete the card on show.
void DemanderSuppression(Plateau& p);

/// FraCmdOui: deletes the card, or stores its changes.
void RepondreOuiAuCadre(Plateau& p);

/// FraCmdNon: drops the question, and the changes it asked about.
void RepondreNonAuCadre(Plateau& p);

} // namespace orvalis
