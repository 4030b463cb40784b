// The contacts list when it is emptied and when it goes.
#pragma once

#include "ui/carte/ecran.h"

namespace orvalis {

/// A contacts list in which nothing was found; whether it is on show and what it greyed stay.
void ViderContacts(ListeContacts& contacts);

/// Gives back the idle buttons that a contacts list greyed, once none is on show.
void RendreBoutons(Ecran& ecran);

} // namespace orvalis
