// Contacts made with a station or on a date, and contacts logged twice: one sequential pass over
// the raw records, of which only those found are decoded.
#pragma once

#include "core/cahier.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// What the contacts panel shows. Each line begins with its record number in six characters
/// (NumeroDeLigne reads it back). The first line, if any, is to be selected.
struct ResultatRecherche {
    std::vector<std::string> lignes;
    std::string nbreContacts;               ///< NbreContacts
    std::optional<std::string> contactsLab; ///< ContactsLab; nothing: it keeps what it shows
};

/// Whether a searched text looks like a date or a time: "/", ".", ":" or a blank at positions 3
/// and 6.
[[nodiscard]] bool EstDateOuHeure(std::string_view texte);

/// Contacts of the logbook, which is counted, for a searched text: by date when it looks like one,
/// else by callsign, suffixed forms (F5ABC/P for F5ABC) included. Throws Erreur.
[[nodiscard]] ResultatRecherche ChercherContacts(const Cahier& cahier, std::string_view texte);

/// Neighbouring records of equal callsign, date, times and frequency among 1 to N, each pair under
/// the number of its first record. Throws Erreur.
[[nodiscard]] ResultatRecherche ChercherDoublons(const Cahier& cahier);

/// The contacts made with a station, suffixed forms included as in the search by callsign.
struct StationContactee {
    std::int32_t fois = 0;
    QsoRecord derniere; ///< the last of them by date and time; of equal ones that stored last
};

/// Counts them in the logbook, which is counted. Throws Erreur.
[[nodiscard]] StationContactee ChercherStation(const Cahier& cahier, std::string_view indicatif);

/// How many of the records from `premiere` on to N stand before it already, callsign, date, times
/// and frequency equal. Throws Erreur.
[[nodiscard]] std::int32_t CompterDejaLa(const Cahier& cahier, NumeroFiche premiere);

} // namespace orvalis
