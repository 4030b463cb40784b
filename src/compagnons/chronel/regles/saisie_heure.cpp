#include "compagnons/chronel/regles/saisie_heure.h"

#include <ctime>
#include <vector>

namespace orvalis {
namespace {

using std::chrono::sys_seconds;

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

// A run of digits.
struct Nombre {
    int valeur = 0;
    std::size_t chiffres = 0;
};

// The numbers of a text, with a single character of `separateurs` between two; none when anything
// else stands in it.
std::vector<Nombre> Nombres(std::string_view texte, std::string_view separateurs) {
    constexpr std::size_t kChiffresAuPlus = 6;
    while (texte.starts_with(' '))
        texte.remove_prefix(1);
    while (texte.ends_with(' '))
        texte.remove_suffix(1);
    std::vector<Nombre> nombres(1);
    for (const char c : texte) {
        Nombre& dernier = nombres.back();
        if (EstChiffre(c) && dernier.chiffres < kChiffresAuPlus) {
            dernier.valeur = dernier.valeur * 10 + (c - '0');
            ++dernier.chiffres;
        } else if (dernier.chiffres > 0 && separateurs.find(c) != std::string_view::npos) {
            nombres.emplace_back();
        } else {
            return {};
        }
    }
    return nombres.back().chiffres > 0 ? nombres : std::vector<Nombre>{};
}

bool TousCourts(const std::vector<Nombre>& nombres) {
    for (const Nombre& nombre : nombres)
        if (nombre.chiffres > 2)
            return false;
    return true;
}

std::optional<std::chrono::year_month_day> LireDate(std::string_view texte) {
    std::vector<Nombre> n = Nombres(texte, "/-. ");
    if (n.size() != 3)
        return std::nullopt;
    if (n[0].chiffres == 4)
        std::swap(n[0], n[2]);
    const bool court = n[2].chiffres == 2;
    if ((!court && n[2].chiffres != 4) || !TousCourts({n[0], n[1]}))
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{n[2].valeur + (court ? 2000 : 0)},
                                           std::chrono::month{static_cast<unsigned>(n[1].valeur)},
                                           std::chrono::day{static_cast<unsigned>(n[0].valeur)}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::optional<std::chrono::seconds> LireHeure(std::string_view texte) {
    std::vector<Nombre> n = Nombres(texte, ":hH. ");
    if (n.size() == 1 && n[0].chiffres == 4) // hhmm
        n = {{n[0].valeur / 100, 2}, {n[0].valeur % 100, 2}};
    else if (n.size() == 1 && n[0].chiffres == 6) // hhmmss
        n = {{n[0].valeur / 10000, 2}, {n[0].valeur / 100 % 100, 2}, {n[0].valeur % 100, 2}};
    if (n.size() < 2 || n.size() > 3 || !TousCourts(n))
        return std::nullopt;
    n.resize(3);
    if (n[0].valeur > 23 || n[1].valeur > 59 || n[2].valeur > 59)
        return std::nullopt;
    return std::chrono::hours{n[0].valeur} + std::chrono::minutes{n[1].valeur} +
           std::chrono::seconds{n[2].valeur};
}

// The moments at which the computer's clock shows this.
std::vector<sys_seconds> Moments(const std::chrono::year_month_day& date,
                                 std::chrono::seconds heure) {
    const std::chrono::hh_mm_ss parts{heure};
    std::vector<sys_seconds> moments;
    for (const int ete : {0, 1}) {
        std::tm voulu{};
        voulu.tm_year = static_cast<int>(date.year()) - 1900;
        voulu.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
        voulu.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
        voulu.tm_hour = static_cast<int>(parts.hours().count());
        voulu.tm_min = static_cast<int>(parts.minutes().count());
        voulu.tm_sec = static_cast<int>(parts.seconds().count());
        voulu.tm_isdst = ete;
        std::tm montre = voulu;
        const std::time_t secondes = std::mktime(&montre);
        // Where the clock shows another hour the zone has no such one, or not at this season.
        const sys_seconds moment{std::chrono::seconds{secondes}};
        if (montre.tm_mday == voulu.tm_mday && montre.tm_hour == voulu.tm_hour &&
            montre.tm_min == voulu.tm_min && (moments.empty() || moments.front() != moment))
            moments.push_back(moment);
    }
    return moments;
}

} // namespace

LectureHeure LireDateHeure(std::string_view date, std::string_view heure, bool utc) {
    const auto jour = LireDate(date);
    if (!jour)
        return {{}, "Tapez la date ainsi\u00A0: 21/11/2026.", BoiteHeure::Date};
    if (jour->year() < std::chrono::year{2000} || jour->year() > std::chrono::year{2099})
        return {{}, "L'année doit être entre 2000 et 2099.", BoiteHeure::Date};
    const auto instant = LireHeure(heure);
    if (!instant)
        return {{}, "Tapez l'heure ainsi\u00A0: 18:30 ou 18:30:15.", BoiteHeure::Heure};
    if (utc)
        return {std::chrono::sys_days{*jour} + *instant, {}, {}};
    const std::vector<sys_seconds> moments = Moments(*jour, *instant);
    if (moments.empty())
        return {{},
                "Cette heure n'existe pas ici (passage à l'heure d'été)\u00A0: tapez-la en UTC.",
                BoiteHeure::Heure};
    if (moments.size() > 1)
        return {{},
                "Cette heure vient deux fois ici (fin de l'heure d'été)\u00A0: tapez-la en UTC.",
                BoiteHeure::Heure};
    return {moments.front(), {}, {}};
}

} // namespace orvalis
