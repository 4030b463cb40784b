// The backups of a logbook, as they lie in the backup folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace orvalis {

/// A backup, and how many contacts it holds.
struct Sauvegarde {
    std::filesystem::path chemin;
    std::filesystem::file_time_type date;
    std::int32_t nbFiches = 0;
    friend bool operator==(const Sauvegarde&, const Sauvegarde&) = default;
};

/// The newest file of the backup folder of `lecteur` that is named after the logbook `nom`: its
/// name, or its name and something behind it that does not go on as a word ("F5ABC-2026.Vek" for
/// "F5ABC.Vek"), case aside. None without such a file or folder. The contacts are counted again
/// only where it is not `connue`. Throws Erreur.
[[nodiscard]] std::optional<Sauvegarde>
DerniereSauvegarde(const std::filesystem::path& lecteur, std::string_view nom,
                   const std::optional<Sauvegarde>& connue = std::nullopt);

/// Whole days since it was written.
[[nodiscard]] int JoursDepuis(const Sauvegarde& sauvegarde);

} // namespace orvalis
