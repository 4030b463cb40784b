// Text inside the program is UTF-8; on disk it is Windows-1252. A "character" is a Unicode code
// point, and every width in this program counts characters, never bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvalis {

/// Decodes Windows-1252 bytes. The five bytes that the character set leaves undefined become the
/// control characters of the same number (U+0081, 8D, 8F, 90, 9D), so that they survive a read
/// and a write unchanged; so do NUL and the other control bytes.
[[nodiscard]] std::string DepuisCp1252(std::string_view octets);

/// Encodes UTF-8 as Windows-1252, one byte for each character; a character that Windows-1252
/// lacks, or a malformed byte, becomes '?'. Inverse of DepuisCp1252 for every byte.
[[nodiscard]] std::string VersCp1252(std::string_view utf8);

/// Makes typed or pasted text storable: control characters are dropped and a printable character
/// that Windows-1252 lacks becomes '?', so that the operator sees what will be stored.
[[nodiscard]] std::string NettoyerSaisie(std::string_view utf8);

/// Number of characters.
[[nodiscard]] std::size_t Longueur(std::string_view utf8);

/// The first `n` characters (fewer if the text is shorter).
[[nodiscard]] std::string_view Gauche(std::string_view utf8, std::size_t n);

/// The last `n` characters (fewer if the text is shorter).
[[nodiscard]] std::string_view Droite(std::string_view utf8, std::size_t n);

/// `n` characters from `position`, counted from 1; empty when the text ends before it.
[[nodiscard]] std::string_view Milieu(std::string_view utf8, std::size_t position,
                                      std::size_t n = std::string_view::npos);

/// Left-justified in exactly `n` characters: padded with spaces on the right, or cut.
[[nodiscard]] std::string Cadrer(std::string_view utf8, std::size_t n);

/// Without its leading and trailing spaces (U+0020 only).
[[nodiscard]] std::string_view Rogner(std::string_view texte);

/// Upper case, accented letters of Windows-1252 included; one character stays one character.
[[nodiscard]] std::string Majuscules(std::string_view utf8);

/// Proper case: first letter of every word in upper case, the rest in lower case. Words are
/// separated by blanks and hyphens (jean-PIERRE becomes Jean-Pierre).
[[nodiscard]] std::string NomPropre(std::string_view utf8);

/// The number formed by the leading digits; 0 when the text begins with anything else. Saturates
/// at 999,999,999.
[[nodiscard]] int ValeurNumerique(std::string_view texte);

/// `chiffres` with no-break spaces between its thousands.
[[nodiscard]] std::string EspacerMilliers(std::string chiffres);
/// "12 345", with no-break spaces.
template<class Entier> [[nodiscard]] std::string EcrireNombre(Entier nombre) {
    return EspacerMilliers(std::to_string(nombre));
}

/// Upper case of one Windows-1252 byte, for searches that do not decode records.
[[nodiscard]] unsigned char MajusculeCp1252(unsigned char octet);

} // namespace orvalis
