// The border between paths and text: inside the program text is UTF-8, while a path is what the
// system takes (on Windows wide characters, and its narrow string need not be UTF-8).
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvalis {

/// A path as text, UTF-8, with the separators of the system.
[[nodiscard]] std::string TexteChemin(const std::filesystem::path& chemin);
/// The path that a text, UTF-8, names.
[[nodiscard]] std::filesystem::path CheminTexte(std::string_view texte);

} // namespace orvalis
