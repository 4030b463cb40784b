// Entering new contacts, and what the seventeen boxes report.
#pragma once

#include "ui/plateau.h"

#include <cstddef>
#include <string>

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

/// Events of box `boite`, 1 to 17.
void SurEntree(Plateau& p, std::size_t boite);
void SurFocusPris(Plateau& p, std::size_t boite);
void SurFocusPerdu(Plateau& p, std::size_t boite);
void SurPression(Plateau& p, std::size_t boite);
void SurChangement(Plateau& p, std::string texte);

} // namespace orvalis
