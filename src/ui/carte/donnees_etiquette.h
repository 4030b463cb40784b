// From a label of the sheet to the label that is printed.
#pragma once

#include "print/etiquette.h"
#include "qsl/qsl_slot_record.h"

namespace orvalis {

/// The nine texts to print of a label, trimmed; the number of its contact is not printed.
[[nodiscard]] DonneesEtiquette DonneesDeEtiquette(const QslSlotRecord& etiquette);

} // namespace orvalis
