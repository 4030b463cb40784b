#ifndef _WIN32

#include "echange/refus.h"
#include "echange/zone_systeme.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace orvalis {
namespace {

constexpr std::array<std::string_view, 3> kDossiersZones = {
    "/usr/share/zoneinfo", "/usr/lib/zoneinfo", "/usr/share/lib/zoneinfo"};

bool EstUneZone(const std::filesystem::path& fichier) {
    constexpr std::string_view kDebut = "TZif"; // tables and lists stand there as well
    std::array<char, kDebut.size()> debut{};
    std::ifstream(fichier, std::ios::binary).read(debut.data(), debut.size());
    return std::string_view{debut.data(), debut.size()} == kDebut;
}

// The C library takes a name that it does not know for UTC, without a word.
bool ZoneConnue(std::string_view nom) {
    if (nom.front() == '/' || nom.find("..") != nom.npos)
        return false;
    return std::any_of(kDossiersZones.begin(), kDossiersZones.end(), [nom](std::string_view d) {
        return EstUneZone(std::filesystem::path(d) / nom);
    });
}

} // namespace

struct ZoneSysteme::Donnees {
    std::optional<std::string> avant; // what the environment named before
};

ZoneSysteme::ZoneSysteme(std::string_view nom) {
    if (nom.empty())
        return;
    if (!ZoneConnue(nom))
        throw RefusEchange("Le fuseau horaire « " + std::string{nom} + " » est inconnu.");
    donnees_ = std::make_unique<Donnees>();
    if (const char* avant = std::getenv("TZ"))
        donnees_->avant = avant;
    ::setenv("TZ", std::string{nom}.c_str(), 1);
    ::tzset();
}

ZoneSysteme::~ZoneSysteme() {
    if (donnees_ == nullptr)
        return;
    if (donnees_->avant)
        ::setenv("TZ", donnees_->avant->c_str(), 1);
    else
        ::unsetenv("TZ");
    ::tzset();
}

std::chrono::seconds ZoneSysteme::Decalage(std::chrono::sys_seconds utc) const {
    const std::time_t t = std::chrono::system_clock::to_time_t(utc);
    std::tm locale = {};
    return ::localtime_r(&t, &locale) == nullptr ? std::chrono::seconds{0}
                                                 : std::chrono::seconds{locale.tm_gmtoff};
}

} // namespace orvalis

#endif
