// The working slots: the eighteen texts between a record and the boxes of the card.
#pragma once

#include "core/qso_record.h"
#include "ui/carte/boites.h"

#include <array>
#include <string>
#include <string_view>

namespace orvalis {

/// One slot behind each box, named after it, and slot 0, the whole INFO, which is what is stored.
struct Zones {
    std::string info; ///< slot 0, 30 characters
    std::array<std::string, kNbBoites> textes;

    [[nodiscard]] std::string& operator[](Boite boite) { return textes[Rang(boite)]; }
    [[nodiscard]] const std::string& operator[](Boite boite) const { return textes[Rang(boite)]; }
    friend bool operator==(const Zones&, const Zones&) = default;
};

/// The slots of a record: all trimmed but slot 0, the whole INFO; its two halves apart.
[[nodiscard]] Zones ZonesDeFiche(const QsoRecord& fiche);

/// The record that the slots make: 1 to 12, slot 0 as INFO, 14 to 16, each padded or cut to its
/// width. Checks and converts nothing else.
[[nodiscard]] QsoRecord FicheDesZones(const Zones& zones);

/// The slot 0 that two halves of INFO make: 15 characters each.
[[nodiscard]] std::string JoindreInfo(std::string_view remarque, std::string_view manager);

} // namespace orvalis
