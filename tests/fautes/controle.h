// What must hold after a fault, whatever the fault was.
#pragma once

#include "fautes/operations.h"

#include <string>

namespace orvalis::essais {

/// First damage found in the files `trouves`, when an operation turns `avant` into `apres`; empty
/// when every contact is there, whole and once, the log has its end, nothing was invented, the
/// label sheet has whole labels and each contact "En cours" its own, and the Settings are whole.
[[nodiscard]] std::string Degat(const Fichiers& avant, const Fichiers& apres,
                                const Fichiers& trouves);

} // namespace orvalis::essais
