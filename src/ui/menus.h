// The menu bar: one table of heads and entries.
#pragma once

#include <QObject>

#include <functional>
#include <string_view>

class QAction;
class QMenuBar;

namespace orvalis {

/// Fills the menu bar; `ajouter` is called with each new entry, heads excluded.
void FaireMenus(QMenuBar& barre, const std::function<void(QAction&)>& ajouter);

} // namespace orvalis
