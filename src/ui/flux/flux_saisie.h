// Entering new contacts, and what the seventeen boxes report.
#pragma once

#include "ui/carte/boites.h"
#include "ui/flux/plateau.h"

#include <string_view>

namespace orvalis {

/// BtNewQSO: leaves browsing and opens a blank card.
void NouveauQso(Plateau& p);
/// BtEnrSuivant: stores the contact and opens the next blank card.
void EnregistrerEtSuivre(Plateau& p);
/// BtEnrTerminer: stores the contact and goes back to the list.
void EnregistrerEtTerminer(Plateau& p);
/// BtEnrAnnuler: drops what was typed and opens a blank card.
void AnnulerSaisie(Plateau& p);
/// OptionEnr1 (real time) or OptionEnr2 (deferred).
void ChoisirOption(Plateau& p, bool tempsReel);

/// Enter in a box of the card.
void SurEntree(Plateau& p, Boite boite);
/// A mouse press on a box, or F2 in it.
void SurPression(Plateau& p, Boite boite);
/// The operator, or a helper of his desktop, changed the text of a box.
void SurChangement(Plateau& p, Boite boite, std::string_view texte);
/// The operator moved the focus.
void SurFoyer(Plateau& p, const Foyer& ici);

} // namespace orvalis
