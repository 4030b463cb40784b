// What the program works on while it runs: plain structs, owned by the main window and passed by
// reference to who needs them.
#pragma once

#include "core/cahier.h"
#include "core/pages.h"
#include "core/station.h"
#include "ui/carte/carte.h"

namespace orvalis {

struct Session {
    Station station;
    Cahier cahier;
    Carte carte;
    PageAffichee page;
};

} // namespace orvalis
