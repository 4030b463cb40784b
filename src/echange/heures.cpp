#include "echange/heures.h"

#include <algorithm>

namespace orvalis {
namespace {

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

Fuseau::Fuseau(std::string_view nom) {
    zone_.emplace(nom);
}

Moment Fuseau::DepuisUtc(Moment utc) const {
    return zone_ ? Moins(utc, -zone_->Decalage(utc)) : utc;
}

Moment Fuseau::VersUtc(Moment locale) const {
    if (!zone_)
        return locale;
    // No clock is put forward or back twice within two days.
    const auto avant = zone_->Decalage(locale - std::chrono::days{1});
    const auto apres = zone_->Decalage(locale + std::chrono::days{1});
    for (const auto decalage : {std::max(avant, apres), std::min(avant, apres)})
        if (const Moment utc = Moins(locale, decalage); DepuisUtc(utc) == locale)
            return utc;
    return Moins(locale, avant);
}

} // namespace orvalis
