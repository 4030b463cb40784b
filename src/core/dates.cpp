#include "core/dates.h"

#include "core/texte.h"

#include <array>
#include <chrono>
#include <cstdlib>

namespace orvalis {
namespace {

constexpr std::array<std::string_view, 7> kJours = {"Dimanche", "Lundi",    "Mardi", "Mercredi",
                                                    "Jeudi",    "Vendredi", "Samedi"};
constexpr std::array<std::string_view, 12> kMois = {"Janvier",   "Février", "Mars",     "Avril",
                                                    "Mai",       "Juin",    "Juillet",  "Août",
                                                    "Septembre", "Octobre", "Novembre", "Décembre"};

// Days of each month beyond 28.
constexpr std::string_view kLongueurs = "303232332323";

std::string DeuxChiffres(int n) {
    std::string texte = std::to_string(n);
    return texte.size() < 2 ? "0" + texte : texte;
}

} // namespace

Verification ControlerDate(std::string_view date) {
    const int jour = ValeurNumerique(Gauche(date, 2));
    const int mois = ValeurNumerique(Milieu(date, 4, 2));
    const int deuxChiffres = ValeurNumerique(Droite(date, 2));
    if (jour < 1 || mois < 1 || mois > 12)
        return {};
    int longueur = 28 + (kLongueurs[static_cast<std::size_t>(mois) - 1] - '0');
    // No century rule: the two-digit years run from 1960 to 2059, where every fourth is a leap
    // year.
    if (mois == 2 && AnneeComplete(deuxChiffres) % 4 == 0)
        ++longueur;
    if (jour > longueur)
        return {};
    return {true, DeuxChiffres(jour) + "/" + DeuxChiffres(mois) + "/" + DeuxChiffres(deuxChiffres)};
}

Verification ControlerHeure(std::string_view heure) {
    const int heures = ValeurNumerique(Gauche(heure, 2));
    const int minutes = ValeurNumerique(Droite(heure, 2));
    if (heures >= 24 || minutes >= 60)
        return {};
    return {true, DeuxChiffres(heures) + ":" + DeuxChiffres(minutes)};
}

std::string DateLongue(const Instant& instant) {
    const std::chrono::year_month_day date{std::chrono::year{instant.annee},
                                           std::chrono::month{static_cast<unsigned>(instant.mois)},
                                           std::chrono::day{static_cast<unsigned>(instant.jour)}};
    const std::chrono::weekday jour{std::chrono::sys_days{date}};
    return std::string{kJours[jour.c_encoding()]} + " " + DeuxChiffres(instant.jour) + " " +
           std::string{kMois[static_cast<std::size_t>(instant.mois) - 1]} + " " +
           std::to_string(instant.annee);
}

std::string DateCourte(const Instant& instant) {
    return DeuxChiffres(instant.jour) + "/" + DeuxChiffres(instant.mois) + "/" +
           DeuxChiffres(instant.annee % 100);
}

std::string HeureCourte(const Instant& instant) {
    return DeuxChiffres(instant.heures) + ":" + DeuxChiffres(instant.minutes);
}

std::string HeureLongue(const Instant& instant) {
    return HeureCourte(instant) + ":" + DeuxChiffres(instant.secondes);
}

std::string EcartUtc(int minutes) {
    constexpr int kMinutesParHeure = 60;
    const int ecart = std::abs(minutes);
    const int reste = ecart % kMinutesParHeure;
    return (minutes < 0 ? "−" : "+") + std::to_string(ecart / kMinutesParHeure) +
           (reste == 0 ? "" : ":" + DeuxChiffres(reste));
}

std::string MentionUtc(const Instant& instant) {
    return instant.decalageUtc == 0 ? "" : "heure locale, UTC" + EcartUtc(instant.decalageUtc);
}

} // namespace orvalis
