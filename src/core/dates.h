// Dates and times of contacts, and the long date of the clock. Texts are read by position, so
// only dd/mm/yy (8 characters) and hh:mm (5 characters) are meaningful.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

/// A moment of the station's clock, local time.
struct Instant {
    int annee = 2000; ///< four digits
    int mois = 1;     ///< 1 to 12
    int jour = 1;     ///< 1 to 31
    int heures = 0;
    int minutes = 0;
    int secondes = 0;
    int decalageUtc = 0; ///< minutes by which it is ahead of UTC
    friend bool operator==(const Instant&, const Instant&) = default;
};

/// Result of a check: the validity flag and, when it is set, the normalised text.
struct Verification {
    bool ValiditeOK = false;
    std::string texte;
};

/// Four-digit year of a two-digit one (0 to 99): 2000 to 2059, then 1960 to 1999.
[[nodiscard]] constexpr int AnneeComplete(int y) {
    return y < 60 ? 2000 + y : 1900 + y;
}

/// Checks a date dd/mm/yy; the normalised text has two digits in each part.
[[nodiscard]] Verification ControlerDate(std::string_view date);

/// Checks a time hh:mm; the normalised text has two digits in each part.
[[nodiscard]] Verification ControlerHeure(std::string_view heure);

/// "Samedi 21 Novembre 2026": day of the week, day in two digits, month, year.
[[nodiscard]] std::string DateLongue(const Instant& instant);

/// dd/mm/yy, whatever the system's own date format.
[[nodiscard]] std::string DateCourte(const Instant& instant);

/// hh:mm
[[nodiscard]] std::string HeureCourte(const Instant& instant);

/// hh:mm:ss
[[nodiscard]] std::string HeureLongue(const Instant& instant);

/// "+5:30", "−3", "+0": hours alone where they are whole.
[[nodiscard]] std::string EcartUtc(int minutes);

/// "heure locale, UTC+5:30", hours alone where they are whole; nothing when the clock tells UTC.
[[nodiscard]] std::string MentionUtc(const Instant& instant);

} // namespace orvalis
