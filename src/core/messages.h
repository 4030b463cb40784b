// French words for what went wrong.
#pragma once

#include "core/fichier.h"

#include <exception>
#include <string>

namespace orvalis {

/// The system's reason in French ("le disque est plein").
[[nodiscard]] std::string RaisonFrancaise(const std::error_code& raison);

/// A sentence that names the file, what was tried and why it failed; for any other exception the
/// best that can be said.
[[nodiscard]] std::string MessageErreur(const std::exception& erreur);

} // namespace orvalis
