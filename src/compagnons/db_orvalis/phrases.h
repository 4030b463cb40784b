// What dbOrvalis says of a work that is done, on the command line and in its window.
#pragma once

#include "echange/base.h"
#include "echange/exporter.h"
#include "echange/importer.h"

#include <string>
#include <string_view>

namespace orvalis {

/// Complete sentences, a line each, and whether there is more to say than that it is done.
struct Constat {
    std::string texte;
    bool remarques = false;
};

/// A file was made of a logbook; `sansDate` says what comes of contacts without a date.
[[nodiscard]] Constat DireSortie(const BilanSortie& bilan, const std::filesystem::path& cahier,
                                 const std::filesystem::path& cible, std::string_view sansDate,
                                 std::string_view un = "écrit",
                                 std::string_view plusieurs = "écrits");
[[nodiscard]] Constat DireImport(const BilanImport& bilan, const std::filesystem::path& cible);

inline constexpr std::string_view kSansDateAdif = "les autres programmes les laissent de côté";
inline constexpr std::string_view kSansDateBase = "voyez la vue dates_illisibles";
inline constexpr std::string_view kSansDateBilan = "leurs numéros sont à la fin du bilan";

/// "1 contact repris", "3 contacts repris".
[[nodiscard]] std::string Contacts(std::size_t nombre, std::string_view un,
                                   std::string_view plusieurs);

} // namespace orvalis
