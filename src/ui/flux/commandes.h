// The commands of the window: one table. A row says what it is called, what it asks of the state
// of the program, and the flow that it runs; a new command is a new row and its flow.
#pragma once

#include "ui/carte/conditions.h"
#include "ui/flux/plateau.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace orvalis {

struct Commande {
    std::string_view nom;          ///< objectName of its menu entry, button or box
    std::string_view legende = {}; ///< of a menu entry, blanks included; empty for a button
    unsigned conditions = kToujours;
    void (*flux)(Plateau&) = nullptr; ///< none: the head of a menu, whose entries follow
    bool memeGele = false;            ///< it runs although the window is frozen
};

/// Menu heads with their entries as the menu bar shows them, then the buttons.
[[nodiscard]] std::span<const Commande> Commandes();

/// Runs the flow of a command when the state lets it, else does nothing. The permission of a
/// command is asked here and nowhere else.
void LancerCommande(Plateau& p, const Commande& commande);

/// Runs the command that Escape stands for in the present state, if any.
void Echapper(Plateau& p);

} // namespace orvalis
