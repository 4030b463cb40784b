// Searching: contacts made with a station or on a date, contacts logged twice.
#pragma once

#include "ui/flux/plateau.h"

#include <string>

namespace orvalis {

/// BtActiveRech: lists every contact made with the station on the card.
void VoirContacts(Plateau& p);
/// The operator changed the text of the search box.
void SurTexteRecherche(Plateau& p, const std::string& texte);
/// Enter in the search box.
void Rechercher(Plateau& p);
/// A click in the search box: empties it and closes the contacts list.
void CliquerRecherche(Plateau& p);
/// BtContactsFermer.
void FermerContacts(Plateau& p);
/// A line of the contacts list, from 0, was chosen: its card is shown, except during entry.
void ChoisirContact(Plateau& p, int ligne);
/// MnuDoublons.
void MontrerDoublons(Plateau& p);
/// After a deletion: the duplicates that are left, scrolled as they were, none of them chosen.
void ReprendreDoublons(Plateau& p);

} // namespace orvalis
