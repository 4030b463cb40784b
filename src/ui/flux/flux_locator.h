// Changing the station's own locator during entry.
#pragma once

#include "ui/flux/plateau.h"

#include <string_view>

namespace orvalis {

/// MnuChangerLocator: opens the panel.
void ChangerDeLocator(Plateau& p);
/// The operator changed the text of the panel's box.
void SurTexteLocator(Plateau& p, std::string_view texte);
/// Enter in the panel's box.
void SurEntreeLocator(Plateau& p);
/// ChangLocChk: whether the Settings file is to keep the locator.
void GarderLocator(Plateau& p, bool garder);
/// BtChangValid.
void ValiderLocator(Plateau& p);
/// BtChangAnnul.
void AnnulerLocator(Plateau& p);

} // namespace orvalis
