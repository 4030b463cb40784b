// Where what leaves the program folder goes: copies for another disk, PDF files.
#pragma once

#include <QString>

namespace orvalis {

/// The operator's documents, or his home where that folder was never made: a file proposed in a
/// folder that is not there could not be written.
[[nodiscard]] QString DossierDocuments();

/// The root of a removable volume that can be written, else the operator's documents.
[[nodiscard]] QString DossierAmovible();

} // namespace orvalis
