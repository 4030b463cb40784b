// The hours of a logbook are the station's own; other programs keep UTC.
#pragma once

#include "echange/sens.h"
#include "echange/zone_systeme.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

/// A minute of a calendar, whichever the clock it was read on.
using Moment = std::chrono::sys_time<std::chrono::minutes>;

[[nodiscard]] inline Moment MomentDe(Jour jour, Heure heure) {
    return std::chrono::sys_days{jour} + heure;
}
[[nodiscard]] inline Jour JourDe(Moment moment) {
    return std::chrono::floor<std::chrono::days>(moment);
}
[[nodiscard]] inline Heure HeureDe(Moment moment) {
    return moment - std::chrono::floor<std::chrono::days>(moment);
}

/// A second of UTC, as the time a file is made: "20261121 183125", "2026-11-21 18:31:25".
using Seconde = std::chrono::sys_seconds;
[[nodiscard]] Seconde Maintenant();
[[nodiscard]] std::string EcrireInstantAdif(Seconde instant);
[[nodiscard]] std::string EcrireInstantIso(Seconde instant);

/// What the logbook's hours are. The time zones are those of the system: while an object with a
/// zone lives, there is one at a time, and no other thread that asks for the time (ZoneSysteme).
class Fuseau {
  public:
    /// UTC: nothing is converted.
    Fuseau() = default;
    /// The zone of that name ("Europe/Paris"), the system's own for an empty name. Throws
    /// RefusEchange when there is none such.
    explicit Fuseau(std::string_view nom);

    /// Of an hour that comes twice the first (summer time) is meant; an hour that is skipped counts
    /// as if the clock had not been put forward yet.
    [[nodiscard]] Moment VersUtc(Moment locale) const;
    [[nodiscard]] Moment DepuisUtc(Moment utc) const;

  private:
    std::optional<ZoneSysteme> zone_;
};

} // namespace orvalis
