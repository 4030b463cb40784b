// One place of the QSL label sheet as it lies in the sheet file: ten fields of Windows-1252 text,
// left-justified and padded with blanks, without separators, 106 bytes.
#pragma once

#include "core/fiche_octets.h"

namespace orvalis {

/// Field numbers of a label record.
enum class ChampEtiquette : unsigned char {
    Indicatif = 1, ///< callsign of the correspondent; "***" marks a free place
    Ligne1,        ///< first free text line
    Ligne2,        ///< second free text line: the remark of the contact
    Voie,          ///< "BUREAU", "DIRECT" or the callsign of a QSL manager
    Date,          ///< date of the contact
    Heure,         ///< start time of the contact
    Frequence,     ///< frequency of the contact
    Report,        ///< report given to him
    Mode,          ///< mode of the contact
    Fiche          ///< number of the contact in the logbook, in decimal
};

struct DescriptionChampEtiquette {
    ChampEtiquette champ;
    std::size_t decalage; ///< first byte within the record
    std::size_t largeur;  ///< width in bytes, which are characters on disk
};

inline constexpr std::size_t kNbChampsEtiquette = 10;
inline constexpr std::size_t kTailleEtiquette = 106;

inline constexpr std::array<DescriptionChampEtiquette, kNbChampsEtiquette> kChampsEtiquette = {{
    {ChampEtiquette::Indicatif, 0, 15},
    {ChampEtiquette::Ligne1, 15, 15},
    {ChampEtiquette::Ligne2, 30, 15},
    {ChampEtiquette::Voie, 45, 15},
    {ChampEtiquette::Date, 60, 8},
    {ChampEtiquette::Heure, 68, 5},
    {ChampEtiquette::Frequence, 73, 10},
    {ChampEtiquette::Report, 83, 8},
    {ChampEtiquette::Mode, 91, 5},
    {ChampEtiquette::Fiche, 96, 10},
}};

[[nodiscard]] constexpr const DescriptionChampEtiquette& Description(ChampEtiquette champ) {
    return kChampsEtiquette[static_cast<std::size_t>(champ) - 1];
}

static_assert(Contigus(kChampsEtiquette, kTailleEtiquette));

/// One label.
using QslSlotRecord = FicheOctets<ChampEtiquette, kTailleEtiquette>;
static_assert(sizeof(QslSlotRecord) == kTailleEtiquette);

/// Callsign of a record that holds no label.
inline constexpr std::string_view kMarqueLibre = "***";

/// True when the place is free. A record whose callsign is blank is not: it counts as a prepared
/// label until the operator erases it.
[[nodiscard]] bool EstLibre(const QslSlotRecord& etiquette);

} // namespace orvalis
