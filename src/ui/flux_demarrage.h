// Start-up, the clock, the companion programs, the end.
#pragma once

#include "ui/plateau.h"

#include <string_view>

namespace orvalis {

/// Hides every panel that waits for its function.
void CacherPanneaux(Plateau& p);

enum class Demarrage { Pret, Recommencer, Arreter };

/// Reads the Settings file, opens the logbook it names and shows it (Pret). Without program folder
/// or Settings file the creation dialog runs first: Recommencer once it has written them, Arreter
/// when the operator gave up. Throws ErreurFichier, ErreurParametres, ErreurVerrou.
[[nodiscard]] Demarrage ChargerParametres(Plateau& p);

/// Fills the window from the open logbook.
void InitialiserFenetre(Plateau& p);

/// One tick of the clock.
void AfficherHeure(Plateau& p);

/// Starts a companion program of the program folder without waiting; a failure is told.
void LancerCompagnon(Plateau& p, std::string_view nom);

/// "Réaliser fichier.mdb".
void CreerBaseDeDonnees(Plateau& p);

/// Closes every file, says goodbye and ends the program at once, without a question.
void QuitterProgramme(Plateau& p, int code);

} // namespace orvalis
