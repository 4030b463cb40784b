// Writing a small file as a whole: a program killed at any instant, or a power cut, leaves the file
// as it was or as it becomes, never a part of it.
#pragma once

#include <filesystem>
#include <string_view>

namespace orvalis {

/// Puts a file of these bytes in the place of `chemin`, or makes it when it is missing: written
/// under a name of its own, flushed, renamed, and the folder flushed. A link stays a link. Throws
/// Erreur, which names `chemin`.
void RemplacerFichier(const std::filesystem::path& chemin, std::string_view octets);

} // namespace orvalis
