#ifdef _WIN32

#include "core/chemins.h"
#include "echange/refus.h"
#include "echange/zone_systeme.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <windows.h>

namespace orvalis {
namespace {

constexpr std::int64_t kTicsParSeconde = 10'000'000;  // of the system's own count
constexpr std::int64_t kDe1601A1970 = 11'644'473'600; // seconds

FILETIME Tics(std::chrono::sys_seconds instant) {
    ULARGE_INTEGER tics;
    tics.QuadPart = static_cast<ULONGLONG>((instant.time_since_epoch().count() + kDe1601A1970) *
                                           kTicsParSeconde);
    return {tics.LowPart, tics.HighPart};
}

std::int64_t Secondes(const FILETIME& tics) {
    ULARGE_INTEGER valeur;
    valeur.LowPart = tics.dwLowDateTime;
    valeur.HighPart = tics.dwHighDateTime;
    return static_cast<std::int64_t>(valeur.QuadPart) / kTicsParSeconde - kDe1601A1970;
}

// The zones of those who write their logbook in French, by the name that other systems have;
// Windows has its own.
struct NomDeZone {
    std::string_view nom;
    std::string_view sien;
};

constexpr std::array kNoms = std::to_array<NomDeZone>({
    {"Europe/Paris", "Romance Standard Time"},
    {"Europe/Brussels", "Romance Standard Time"},
    {"Europe/Madrid", "Romance Standard Time"},
    {"Europe/Luxembourg", "W. Europe Standard Time"},
    {"Europe/Monaco", "W. Europe Standard Time"},
    {"Europe/Zurich", "W. Europe Standard Time"},
    {"Europe/Berlin", "W. Europe Standard Time"},
    {"Europe/Rome", "W. Europe Standard Time"},
    {"Europe/London", "GMT Standard Time"},
    {"Europe/Lisbon", "GMT Standard Time"},
    {"America/Montreal", "Eastern Standard Time"},
    {"America/Toronto", "Eastern Standard Time"},
    {"America/New_York", "Eastern Standard Time"},
    {"America/Martinique", "SA Western Standard Time"},
    {"America/Guadeloupe", "SA Western Standard Time"},
    {"America/Cayenne", "SA Eastern Standard Time"},
    {"America/Miquelon", "Saint Pierre Standard Time"},
    {"Indian/Reunion", "Mauritius Standard Time"},
    {"Indian/Mayotte", "E. Africa Standard Time"},
    {"Pacific/Noumea", "Central Pacific Standard Time"},
    {"Pacific/Tahiti", "Hawaiian Standard Time"},
    {"Africa/Algiers", "W. Central Africa Standard Time"},
    {"Africa/Tunis", "W. Central Africa Standard Time"},
    {"Africa/Casablanca", "Morocco Standard Time"},
    {"Africa/Dakar", "Greenwich Standard Time"},
    {"Africa/Abidjan", "Greenwich Standard Time"},
    {"Pacific/Wallis", "UTC+12"},
    {"Pacific/Kiritimati", "Line Islands Standard Time"},
    {"UTC", "UTC"},
});

std::optional<DYNAMIC_TIME_ZONE_INFORMATION> TrouverZone(std::string_view nom) {
    const auto* connue = std::find_if(kNoms.begin(), kNoms.end(),
                                      [nom](const NomDeZone& n) { return n.nom == nom; });
    const std::wstring cherche = CheminTexte(connue == kNoms.end() ? nom : connue->sien).wstring();
    DYNAMIC_TIME_ZONE_INFORMATION zone = {};
    for (DWORD i = 0; ::EnumDynamicTimeZoneInformation(i, &zone) == ERROR_SUCCESS; ++i)
        if (cherche == zone.TimeZoneKeyName)
            return zone;
    return {};
}

} // namespace

struct ZoneSysteme::Donnees {
    DYNAMIC_TIME_ZONE_INFORMATION zone = {};
};

ZoneSysteme::ZoneSysteme(std::string_view nom) {
    if (nom.empty())
        return;
    const auto zone = TrouverZone(nom);
    if (!zone)
        throw RefusEchange("Le fuseau horaire « " + std::string{nom} + " » est inconnu.");
    donnees_ = std::make_unique<Donnees>(Donnees{*zone});
}

ZoneSysteme::~ZoneSysteme() = default;

// With the rules of that year, which the C library of Windows does not know.
std::chrono::seconds ZoneSysteme::Decalage(std::chrono::sys_seconds utc) const {
    const FILETIME tics = Tics(utc);
    SYSTEMTIME heure = {};
    SYSTEMTIME locale = {};
    TIME_ZONE_INFORMATION regles = {};
    FILETIME ici = {};
    DYNAMIC_TIME_ZONE_INFORMATION* zone = donnees_ == nullptr ? nullptr : &donnees_->zone;
    if (::FileTimeToSystemTime(&tics, &heure) == 0 ||
        ::GetTimeZoneInformationForYear(heure.wYear, zone, &regles) == 0 ||
        ::SystemTimeToTzSpecificLocalTime(&regles, &heure, &locale) == 0 ||
        ::SystemTimeToFileTime(&locale, &ici) == 0)
        return std::chrono::seconds{0};
    return std::chrono::seconds{Secondes(ici)} - utc.time_since_epoch();
}

} // namespace orvalis

#endif
