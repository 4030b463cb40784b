// dbOrvalis without a window: what the command line asks, done.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <span>
#include <string_view>

namespace orvalis {

/// What the program answers the system with.
enum class Retour : int { Fait = 0, FaitAvecRemarques = 1, Refuse = 2 };

/// What the command line stands in.
struct Alentours {
    std::filesystem::path courant; ///< current folder, from which the drive follows
    std::filesystem::path maison;  ///< the user's own folder
    std::ostream& sortie;          ///< the help
    std::ostream& messages;        ///< everything else
};

/// Carries out the arguments after the program's name. Throws nothing: every fault is a message.
[[nodiscard]] Retour ExecuterCommande(std::span<const std::string_view> arguments,
                                      const Alentours& alentours);

} // namespace orvalis
