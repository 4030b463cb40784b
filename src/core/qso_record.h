// One contact as it lies in a logbook file: sixteen fields of Windows-1252 text, 165 bytes,
// described byte by byte in docs/formats.md.
#pragma once

#include "core/fiche_octets.h"

namespace orvalis {

/// Field numbers; also the number of the entry box and of the working slot of the field.
enum class Champ : unsigned char {
    CSGN = 1, ///< callsign of the other station; "\" ends the log
    DQSO,     ///< date, dd/mm/yy
    HDEB,     ///< start time, hh:mm
    HFIN,     ///< end time, hh:mm
    FREQ,     ///< frequency
    MODE,     ///< mode
    SRST,     ///< report given to him
    MRST,     ///< report received from him
    SQTH,     ///< his town
    SLOC,     ///< his locator
    DEPT,     ///< his department code
    SNOM,     ///< his first name
    INFO,     ///< remark (15 characters), then QSL manager (15 characters)
    MQSL,     ///< state of my QSL card
    SQSL,     ///< state of his QSL card
    MLOC      ///< my locator at the time of the contact
};

struct DescriptionChamp {
    Champ champ;
    std::size_t decalage; ///< first byte within the record
    std::size_t largeur;  ///< width in bytes, which are characters on disk
};

inline constexpr std::size_t kNbChamps = 16;
inline constexpr std::size_t kTailleFiche = 165;

inline constexpr std::array<DescriptionChamp, kNbChamps> kChamps = {{
    {Champ::CSGN, 0, 15},
    {Champ::DQSO, 15, 8},
    {Champ::HDEB, 23, 5},
    {Champ::HFIN, 28, 5},
    {Champ::FREQ, 33, 10},
    {Champ::MODE, 43, 5},
    {Champ::SRST, 48, 8},
    {Champ::MRST, 56, 8},
    {Champ::SQTH, 64, 25},
    {Champ::SLOC, 89, 6},
    {Champ::DEPT, 95, 3},
    {Champ::SNOM, 98, 15},
    {Champ::INFO, 113, 30},
    {Champ::MQSL, 143, 8},
    {Champ::SQSL, 151, 8},
    {Champ::MLOC, 159, 6},
}};

/// INFO is the remark and the QSL manager, each of this width.
inline constexpr std::size_t kLargeurDemiInfo = 15;

[[nodiscard]] constexpr const DescriptionChamp& Description(Champ champ) {
    return kChamps[static_cast<std::size_t>(champ) - 1];
}

static_assert(Contigus(kChamps, kTailleFiche));

/// Number of a field's entry box and working slot.
[[nodiscard]] constexpr std::size_t NumeroZone(Champ champ) {
    return static_cast<std::size_t>(champ);
}

/// One contact.
using QsoRecord = FicheOctets<Champ, kTailleFiche>;
static_assert(sizeof(QsoRecord) == kTailleFiche);

/// The text of a field, decoded, at its full width.
[[nodiscard]] std::string TexteChamp(const QsoRecord& fiche, Champ champ);

/// True for the end-of-log record: its callsign, trimmed, is "\".
[[nodiscard]] bool EstFinDeLog(const QsoRecord& fiche);

/// The usual end-of-log record: all blank but the callsign "\" and the own locator in MLOC.
[[nodiscard]] QsoRecord FicheFinDeLog(std::string_view monLocator);

} // namespace orvalis
