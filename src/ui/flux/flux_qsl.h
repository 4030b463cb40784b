// The QSL service in the window: from the card to the sheet, the print and back. What a label may
// become is decided in qsl/vie_etiquette.h; here its answers reach the card and the focus.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/flux/plateau.h"

#include <cstddef>
#include <string>

namespace orvalis {

/// Loads the sheet of the program folder; a failure is told, and the service does without.
void ChargerFeuille(Plateau& p);

/// MnuGestionFeuilleQSL: the sheet takes the place of the card.
void GererFeuille(Plateau& p);
/// MnuVirginTags: prints a sheet of blank labels.
void ImprimerEtiquettesVierges(Plateau& p);
/// A click on box 14 of the card: with an empty MQSL the contact becomes a fresh label.
void CliquerMaQsl(Plateau& p);

/// BtChoix and BtTag of a place.
void SurChoix(Plateau& p, Place place);
void SurTag(Plateau& p, Place place);
/// Typing and Enter in entry box `boite` of the editor, 1 to 11.
void SurSaisieEtiquette(Plateau& p, std::size_t boite, const std::string& texte);
void SurEntreeEtiquette(Plateau& p, std::size_t boite);
/// OptBureau or OptDirect, the one already chosen included.
void SurVoie(Plateau& p, VoieQSL voie);

/// BtIndicatifQSL: the own callsign becomes the heading of a fresh label.
void SurBtIndicatifQSL(Plateau& p);
/// The other buttons of the panel.
void SurBtValidQSL(Plateau& p);
void SurBtDelQSL(Plateau& p);
void SurBtLeaveQSL(Plateau& p);
void SurBtQuitQSL(Plateau& p);
void SurBtRestore(Plateau& p);
void SurBtPrintQSL(Plateau& p);

/// The two answers of the print check.
void ConfirmerImpression(Plateau& p);
void RevoirImpression(Plateau& p);

} // namespace orvalis
