#include "echange/heures.h"

#include "echange/refus.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

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

std::chrono::seconds Decalage(Moment utc) {
    const std::time_t t = std::chrono::system_clock::to_time_t(utc);
    std::tm locale = {};
    return ::localtime_r(&t, &locale) == nullptr ? std::chrono::seconds{0}
                                                 : std::chrono::seconds{locale.tm_gmtoff};
}

Moment Moins(Moment moment, std::chrono::seconds decalage) {
    return std::chrono::floor<std::chrono::minutes>(moment - decalage);
}

} // namespace

Seconde Maintenant() {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::string EcrireInstantIso(Seconde instant) {
    const auto minute = std::chrono::floor<std::chrono::minutes>(instant);
    return EcrireJourIso(JourDe(minute)) + " " + EcrireHeure(HeureDe(minute)) + ":" +
           std::to_string(100 + (instant - minute).count()).substr(1);
}

std::string EcrireInstantAdif(Seconde instant) {
    std::string texte = EcrireInstantIso(instant);
    std::erase_if(texte, [](char c) { return c == '-' || c == ':'; });
    return texte;
}

Fuseau::Fuseau(std::string_view nom) : converti_(true) {
    if (!nom.empty() && !ZoneConnue(nom))
        throw RefusEchange("Le fuseau horaire « " + std::string{nom} + " » est inconnu.");
    nomme_ = !nom.empty();
    if (!nomme_)
        return;
    if (const char* avant = std::getenv("TZ"))
        avant_ = avant;
    ::setenv("TZ", std::string{nom}.c_str(), 1);
    ::tzset();
}

Fuseau::~Fuseau() {
    if (!nomme_)
        return;
    if (avant_)
        ::setenv("TZ", avant_->c_str(), 1);
    else
        ::unsetenv("TZ");
    ::tzset();
}

Moment Fuseau::DepuisUtc(Moment utc) const {
    return converti_ ? Moins(utc, -Decalage(utc)) : utc;
}

Moment Fuseau::VersUtc(Moment locale) const {
    if (!converti_)
        return locale;
    // No clock is put forward or back twice within two days.
    const auto avant = Decalage(locale - std::chrono::days{1});
    const auto apres = Decalage(locale + std::chrono::days{1});
    for (const auto decalage : {std::max(avant, apres), std::min(avant, apres)})
        if (const Moment utc = Moins(locale, decalage); DepuisUtc(utc) == locale)
            return utc;
    return Moins(locale, avant);
}

} // namespace orvalis
