// The menu bar, made from the table of the commands.
#pragma once

#include "ui/flux/commandes.h"

#include <functional>

class QAction;
class QMenuBar;

namespace orvalis {

/// Fills the menu bar; `ajouter` is called with each new entry and its command, heads excluded.
void FaireMenus(QMenuBar& barre, const std::function<void(QAction&, const Commande&)>& ajouter);

} // namespace orvalis
