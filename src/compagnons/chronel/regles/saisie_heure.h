// A date and a time as they are typed.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

enum class BoiteHeure { Date, Heure };

/// What was typed: a moment, or what is wrong and in which box.
struct LectureHeure {
    std::optional<std::chrono::sys_seconds> moment;
    std::string reproche;
    BoiteHeure fautive = BoiteHeure::Date;
};

/// Reads dd/mm/yyyy (or yy, or yyyy-mm-dd) and hh:mm or hh:mm:ss ("18h30", "1830" and "183015" as
/// well), in UTC or else in the computer's zone. An hour that the zone has twice, or skips, is told
/// of instead of guessed.
[[nodiscard]] LectureHeure LireDateHeure(std::string_view date, std::string_view heure, bool utc);

} // namespace orvalis
