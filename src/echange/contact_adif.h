// One contact in the fields of the interchange format, before it is a file of one kind or another.
#pragma once

#include "core/qso_record.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// The fields of the format that a logbook says something in, in the order they are written; the
/// last are only read.
enum class Balise : unsigned char {
    CALL,
    QSO_DATE,
    TIME_ON,
    QSO_DATE_OFF,
    TIME_OFF,
    FREQ,
    BAND,
    MODE,
    SUBMODE,
    RST_SENT,
    RST_RCVD,
    NAME,
    NAME_INTL,
    QTH,
    QTH_INTL,
    COMMENT,
    COMMENT_INTL,
    QSL_VIA,
    GRIDSQUARE,
    MY_GRIDSQUARE,
    DXCC,
    STATE,
    QSL_SENT,
    QSLSDATE,
    QSL_RCVD,
    QSLRDATE,
    STATION_CALLSIGN,
    QSL_SENT_VIA,
    QSL_RCVD_VIA
};
inline constexpr std::size_t kNbBalises = 29;

[[nodiscard]] std::string_view NomBalise(Balise balise);
/// The field of that name, in whatever case.
[[nodiscard]] std::optional<Balise> BaliseNommee(std::string_view nom);

/// A field of our own for each field of the logbook: APP_ORVALIS_CSGN and so on.
inline constexpr std::string_view kPrefixeOrvalis = "APP_ORVALIS_";
/// The name of this program in the files.
inline constexpr std::string_view kProgramme = "ORVALIS";
/// The field of the logbook that such a name, less its prefix, stands for, in whatever case.
[[nodiscard]] std::optional<Champ> ChampNomme(std::string_view nom);

/// Something that did not come over as it stood.
struct Remarque {
    std::string champ;  ///< name of the field in the file
    std::string avant;  ///< what stood there, UTF-8
    std::string devenu; ///< what became of it, French
};

struct ContactAdif {
    std::array<std::string, kNbBalises> valeurs; ///< UTF-8; an empty one is not there
    std::array<std::string, kNbChamps> exacts;   ///< our own fields, as they stand in the file
    // Of a contact that was read:
    std::int64_t ligne = 0; ///< where it begins in the file, from 1
    bool connu = false;     ///< it had at least one of these fields
    std::vector<Remarque> remarques;

    [[nodiscard]] std::string& operator[](Balise balise) {
        return valeurs[static_cast<std::size_t>(balise)];
    }
    [[nodiscard]] const std::string& operator[](Balise balise) const {
        return valeurs[static_cast<std::size_t>(balise)];
    }
    /// Empty again; the texts keep their room.
    void Vider();
};

/// Remarks on one contact beyond these are counted as one.
inline constexpr std::size_t kRemarquesMax = 60;

/// The most that is kept of a value: no field of the logbook holds a hundredth of it, the rest is
/// for the report, which tells what was cut.
inline constexpr std::size_t kValeurMax = 16UL * 1024;

/// Puts a value read into its place: of a repeated field the first counts, and another one is told.
/// `longueur` is that of the whole value in bytes, where no more than its beginning was kept, which
/// is told as well. Returns false when the logbook has no place for a field of that name.
bool PoserChamp(ContactAdif& contact, std::string_view nom, std::string_view valeur,
                std::int64_t longueur = 0);
void Signaler(ContactAdif& contact, std::string_view champ, std::string_view avant,
              std::string_view devenu);

/// Bytes of a field of the logbook in printable ASCII: "%", what is not printable ASCII, and blanks
/// that a reader may drop become %XX; the blanks that fill the field up are left out, but for one
/// in a blank field.
[[nodiscard]] std::string CoderOctets(std::string_view octets);
/// The bytes, filled up with blanks; nothing when the text is not of that form or too long.
[[nodiscard]] std::optional<std::string> DecoderOctets(std::string_view texte, std::size_t largeur);

} // namespace orvalis
