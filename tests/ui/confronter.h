// The line of advice as it is read in the real window, held against what Enter then does.
#pragma once

#include "ui/banc.h"

#include <string>

namespace orvalis::operateur::conseil {

/// What Enter is said to do, without "Entrée : ", no-break spaces as plain ones; empty for nothing.
[[nodiscard]] std::string Entree(const Banc& banc);

/// Reads the sentence, presses Enter, and holds what became of focus, boxes, question and file
/// against it. Returns the verb.
std::string Confronter(Banc& banc);

} // namespace orvalis::operateur::conseil
