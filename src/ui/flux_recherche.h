// Searching: contacts made with a station or on a date, contacts logged twice.
#pragma once

#include "ui/plateau.h"

namespace orvalis {

/// BtActiveRech: lists every contact made with the station on the card.
void VoirContacts(Plateau& p);
/// Enter in the search box.
void Rechercher(Plateau& p);
/// A click in the search box: empties it and closes the contacts list.
void CliquerRecherche(Plateau& p);
/// BtContactsFermer.
void FermerContacts(Plateau& p);
/// MnuDoublons.
void MontrerDoublons(Plateau& p);

} // namespace orvalis
