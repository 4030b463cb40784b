// Operations on the real window, the faults that strike while they run, and what must hold after.
#pragma once

#include "fautes/injection.h"
#include "ui/banc.h"

namespace orvalis::operateur {

/// The files of the program folder by name.
using Fichiers = std::map<std::string, std::string>;

/// What an operator does (see ui/banc.h); the last gesture is the one that writes files.
struct Operation {
    std::string nom, cahier, gestes, dernier; ///< without a last gesture the window opens
    /// What is written and flushed, in order (Journal).
    std::string ordre;
    int etiquettes = -1; ///< the first contacts with a label on the sheet; -1: there is no sheet
};
[[nodiscard]] std::vector<Operation> Operations();
/// Puts the files in place, opens the window and goes up to the last gesture.
void Preparer(const Operation& operation, Banc& banc);
/// Ends what is returned when the program has ended.
inline constexpr const char* kFini = " FINI";
/// Does the last gesture; returns what the operator was told.
[[nodiscard]] std::string Agir(const Operation& operation, Banc& banc);

/// First damage found in the files `trouves`, when an operation turns `avant` into `apres`; empty
/// when every contact is there, whole and once, the log has its end, nothing was invented, the
/// label sheet has whole labels and each contact "En cours" its own, and the Settings are whole.
/// `repare`: the program could mend what failed, so that nothing is blank and no file longer.
[[nodiscard]] std::string Degat(Fichiers avant, Fichiers apres, Fichiers trouves,
                                bool repare = false);

} // namespace orvalis::operateur
