// What an operator does while a fault strikes: each operation on the real window, up to the last
// gesture in `preparer`, and that gesture, after which the files are written, in `agir`.
#pragma once

#include "ui/banc.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace orvalis::essais {

/// The files of the program folder by name.
using Fichiers = std::map<std::string, std::string>;

struct Operation {
    std::string nom;
    Fichiers fichiers;
    std::function<void(Banc&)> preparer;
    std::function<void(Banc&)> agir;
    bool fenetre = true; ///< the window is open before
};

[[nodiscard]] std::vector<Operation> Operations();

} // namespace orvalis::essais
