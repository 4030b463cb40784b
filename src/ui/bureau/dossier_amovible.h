// Where copies for another disk go.
#pragma once

#include <QString>

namespace orvalis {

/// The root of a removable volume that can be written, else the operator's documents.
[[nodiscard]] QString DossierAmovible();

} // namespace orvalis
