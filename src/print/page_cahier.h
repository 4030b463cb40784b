// One A4 page of the paper log: twenty-five rows ruled in columns, filled or left for the pen.
#pragma once

#include "core/cahier.h"
#include "core/pages.h"
#include "core/station.h"
#include "print/imprimante.h"

#include <string>

namespace orvalis {

/// Prints one page and ends the document.
///
/// `cahier` is counted; `station` gives the callsign in the heading, `page` the number at the foot.
/// `premiereFiche` only chooses the kind of page: above 0 a filled page, otherwise a blank one.
/// A filled page always starts at the first record of the page on show, `page.premiere` (which
/// must then be 1 or more), whatever `premiereFiche` holds. Rows stop at the end-of-log record, or
/// after N contacts in a log that has none; the rows below stay unruled.
///
/// The contacts are read before anything is drawn, into records of the procedure's own: the card
/// on show keeps its working slots. Throws Erreur; when the logbook cannot be read nothing is
/// printed.
void ImprimerPage(Imprimante& imprimante, const Cahier& cahier, const Station& station,
                  const PageAffichee& page, NumeroFiche premiereFiche);

/// The number of a contact as printed: six digits with leading zeros, the last six of a longer
/// number.
[[nodiscard]] std::string NumeroImprime(NumeroFiche k);

} // namespace orvalis
