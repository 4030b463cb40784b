// Start-up, the clock, the end.
#pragma once

#include "ui/flux/plateau.h"

namespace orvalis {

/// How ChargerParametres came back.
enum class Demarrage { Pret, Recommencer, Arreter };

/// The first activation of the window: pauses one second and loads the settings, again after the
/// creation of a logbook. Returns whether the creation dialog was on show. Throws what
/// ChargerParametres throws.
bool Demarrer(Plateau& p);

/// Reads the Settings file, opens the logbook it names and shows it (Pret). Without program folder
/// or Settings file the creation dialog runs first: Recommencer once it has written them, Arreter
/// when the operator gave up. Throws Erreur; CahierPerdu, having let go nothing, when the own
/// logbook was open and is lost.
[[nodiscard]] Demarrage ChargerParametres(Plateau& p);

/// Fills the window from the open logbook.
void InitialiserFenetre(Plateau& p);

/// One tick of the clock.
void AfficherHeure(Plateau& p);

/// MnuQuitter and BtFermerLog.
void QuitterOrvalis(Plateau& p);

/// Ends the program; when the own logbook is lost, CahierPerdu is thrown the first time and the
/// program goes on.
void FermerCahierEtQuitter(Plateau& p);

/// Closes every file, says goodbye and ends the program at once, without a question.
void QuitterProgramme(Plateau& p, int code);

} // namespace orvalis
