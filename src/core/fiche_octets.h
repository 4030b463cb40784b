// Records of fixed-width fields of Windows-1252 text: what contacts and labels have in common. A
// record type is named after the enumeration C of its fields, numbered from 1, and
// Description(C) tells first byte and width of each.
#pragma once

#include "core/texte.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvalis {

/// The raw bytes of one record; blank when made.
template<typename C, std::size_t taille> struct FicheOctets {
    std::array<char, taille> octets;

    FicheOctets() { octets.fill(' '); }
    friend bool operator==(const FicheOctets&, const FicheOctets&) = default;
};

/// Whether the fields of a table fill `taille` bytes without gaps, in the order of their numbers.
[[nodiscard]] constexpr bool Contigus(const auto& table, std::size_t taille) {
    std::size_t fin = 0;
    std::size_t numero = 0;
    for (const auto& d : table) {
        if (d.decalage != fin || static_cast<std::size_t>(d.champ) != ++numero)
            return false;
        fin += d.largeur;
    }
    return fin == taille;
}

/// The bytes of a field at their full width, as stored.
template<typename C, std::size_t n>
[[nodiscard]] std::string_view OctetsChamp(const FicheOctets<C, n>& fiche, C champ) {
    const auto& d = Description(champ);
    return {fiche.octets.data() + d.decalage, d.largeur};
}

/// The text of a field, decoded and trimmed.
template<typename C, std::size_t n>
[[nodiscard]] std::string TexteRogne(const FicheOctets<C, n>& fiche, C champ) {
    return DepuisCp1252(Rogner(OctetsChamp(fiche, champ)));
}

/// Stores a text, encoded, padded with blanks or cut to the field's width.
template<typename C, std::size_t n>
void MettreChamp(FicheOctets<C, n>& fiche, C champ, std::string_view utf8) {
    const auto& d = Description(champ);
    std::string octets = VersCp1252(utf8);
    octets.resize(d.largeur, ' ');
    std::copy(octets.begin(), octets.end(),
              fiche.octets.begin() + static_cast<std::ptrdiff_t>(d.decalage));
}

} // namespace orvalis
