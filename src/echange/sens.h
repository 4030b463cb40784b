// What the fields of a contact mean, where they mean anything: the common ground of everything that
// leaves the logbook. A field whose text says something else stays text, and its meaning is empty.
#pragma once

#include "core/qso_record.h"
#include "echange/tables_adif.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

/// A day of the calendar. The logbook's two-digit years are 1960 to 2059.
using Jour = std::chrono::year_month_day;
/// A time of day, since midnight.
using Heure = std::chrono::minutes;

inline constexpr int kPremiereAnnee = 1960;
inline constexpr int kDerniereAnnee = 2059;

/// Where a QSL card stands.
enum class EtatQsl : unsigned char {
    Rien,     ///< nothing is said
    Non,      ///< said not to be
    EnCours,  ///< a label for it is on the sheet (my card only)
    Faite,    ///< sent or received
    Illisible ///< the field says something else
};

struct SensQsl {
    EtatQsl etat = EtatQsl::Rien;
    std::optional<Jour> date; ///< of a card sent or received, where it is noted
};

/// A frequency field holds a frequency, or only the name of a band.
struct SensFrequence {
    std::optional<std::int64_t> hertz;
    const Bande* bande = nullptr;
    bool enMegahertz = false; ///< the text itself is a number of MHz
};

struct SensFiche {
    std::string indicatif; ///< texts are UTF-8, without the blanks around them
    std::optional<Jour> date;
    std::optional<Heure> debut;
    std::optional<Heure> fin;
    SensFrequence frequence;
    ModeAdif mode;
    std::string_view departement;    ///< "01" to "95", "2A", "2B", "971" to "974"; or empty
    std::string_view nomDepartement; ///< its name, where the code is one
    std::string carre;               ///< the four characters of his square
    std::string remarque;
    std::string manager;
    SensQsl maCarte;
    SensQsl saCarte;
};

[[nodiscard]] SensFiche ComprendreFiche(const QsoRecord& fiche);

// The same field by field, on the bytes without the blanks around them.

/// dd/mm/yy, digits all six, whatever stands between them; a day that exists.
[[nodiscard]] std::optional<Jour> LireJour(std::string_view octets);
/// hh:mm, digits all four.
[[nodiscard]] std::optional<Heure> LireHeure(std::string_view octets);
/// Digits with at most one point or comma among them: MHz where that lies in a band, else kHz or Hz
/// where one of these does, else MHz. With `attendue`, a reading in that band goes first.
[[nodiscard]] SensFrequence LireFrequence(std::string_view octets, const Bande* attendue = nullptr);
/// The code of a department as the table of departments has it; empty when there is none such.
[[nodiscard]] std::string_view LireDepartement(std::string_view octets);
/// "En cours", a date, "OK" and the other words in use.
[[nodiscard]] SensQsl LireQsl(std::string_view octets);
/// Two letters A to R and two digits, then nothing or two letters A to X.
[[nodiscard]] bool EstUnCarre(std::string_view locator);

// And the other way.

/// dd/mm/yy; hh:mm; yyyy-mm-dd with separator `entre`, or none.
[[nodiscard]] std::string EcrireJour(Jour jour);
[[nodiscard]] std::string EcrireHeure(Heure heure);
[[nodiscard]] std::string EcrireJourIso(Jour jour, std::string_view entre = "-");
/// MHz with three decimals or as many more as it takes.
[[nodiscard]] std::string EcrireMegahertz(std::int64_t hertz);

/// The remark and the manager of the field INFO, without the blanks around them.
[[nodiscard]] std::string_view OctetsRemarque(const QsoRecord& fiche);
[[nodiscard]] std::string_view OctetsManager(const QsoRecord& fiche);

/// The field's name, as in the table of the file formats.
[[nodiscard]] std::string_view NomChamp(Champ champ);

} // namespace orvalis
