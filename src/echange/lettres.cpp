#include "echange/lettres.h"

#include "core/texte.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

// Bytes 0x80 to 0xFF of Windows-1252.
constexpr std::array<std::string_view, 128> kLettres = {
    "EUR", "?",   ",",   "f",   "\"",  "...", "+",  "+", "^", "o/oo", "S",  "<",   "OE", "?",  "Z",
    "?",   "?",   "'",   "'",   "\"",  "\"",  "*",  "-", "-", "~",    "TM", "s",   ">",  "oe", "?",
    "z",   "Y",   " ",   "!",   "c",   "L",   "*",  "Y", "|", "S",    "\"", "(C)", "a",  "\"", "-",
    "-",   "(R)", "-",   "deg", "+/-", "2",   "3",  "'", "u", "P",    ".",  ",",   "1",  "o",  "\"",
    "1/4", "1/2", "3/4", "?",   "A",   "A",   "A",  "A", "A", "A",    "AE", "C",   "E",  "E",  "E",
    "E",   "I",   "I",   "I",   "I",   "D",   "N",  "O", "O", "O",    "O",  "O",   "x",  "O",  "U",
    "U",   "U",   "U",   "Y",   "TH",  "ss",  "a",  "a", "a", "a",    "a",  "a",   "ae", "c",  "e",
    "e",   "e",   "e",   "i",   "i",   "i",   "i",  "d", "n", "o",    "o",  "o",   "o",  "o",  "/",
    "o",   "u",   "u",   "u",   "u",   "y",   "th", "y"};

// U+0100 to U+017F, the letters of the Latin alphabets of Europe.
constexpr std::string_view kLatinEtendu =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSs"
    "SsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kLatinEtendu.size() == 128);

constexpr bool EstCommande(unsigned char c) {
    return c < 0x20 || c == 0x7F;
}

// What stands for one character that the logbook cannot hold.
std::string_view Remplacant(std::string_view sequence) {
    if (sequence.size() == 2) {
        const unsigned point = (static_cast<unsigned char>(sequence[0]) & 0x1FU) << 6U |
                               (static_cast<unsigned char>(sequence[1]) & 0x3FU);
        if (point >= 0x100 && point < 0x180)
            return kLatinEtendu.substr(point - 0x100, 1);
        if (point >= 0x300 && point < 0x370)
            return ""; // an accent that stands behind its letter
    }
    return "?";
}

} // namespace

std::string VersAscii(std::string_view octets) {
    std::string texte;
    texte.reserve(octets.size());
    for (const char c : octets) {
        const auto octet = static_cast<unsigned char>(c);
        if (octet >= 0x80)
            texte += kLettres[octet - 0x80U];
        else if (octet == '\t' || octet == '\n' || octet == '\r')
            texte += ' ';
        else
            texte += EstCommande(octet) ? '?' : c;
    }
    return texte;
}

bool EstAscii(std::string_view octets) {
    return std::all_of(octets.begin(), octets.end(), [](char c) { return c >= 0x20 && c < 0x7F; });
}

bool AUneCommande(std::string_view octets) {
    constexpr std::string_view kIndefinis = "\x81\x8D\x8F\x90\x9D";
    return std::any_of(octets.begin(), octets.end(), [&](char c) {
        return EstCommande(static_cast<unsigned char>(c)) || kIndefinis.find(c) != kIndefinis.npos;
    });
}

std::string PourLeCahier(std::string_view utf8) {
    std::string texte;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t n = std::max<std::size_t>(LongueurSequence(utf8.substr(i)), 1);
        const std::string_view sequence = utf8.substr(i, n);
        i += n;
        const auto octet = static_cast<unsigned char>(sequence.front());
        if (octet == '\t' || octet == '\n' || octet == '\r')
            texte += ' ';
        else if (n > 1 && sequence[0] == '\xC2' && static_cast<unsigned char>(sequence[1]) < 0xA0)
            continue; // a control character of two bytes
        else if (octet < 0x80 && !EstCommande(octet))
            texte += sequence;
        else if (octet >= 0x80)
            texte += VersCp1252(sequence) == "?" ? Remplacant(sequence) : sequence;
    }
    return texte;
}

std::size_t LongueurSequence(std::string_view octets) {
    const auto octet = [octets](std::size_t i) { return static_cast<unsigned char>(octets[i]); };
    const unsigned char tete = octets.empty() ? 0xFF : octet(0);
    if (tete < 0x80)
        return 1;
    const std::size_t n = tete >= 0xC2 && tete < 0xE0   ? 2
                          : tete >= 0xE0 && tete < 0xF0 ? 3
                          : tete >= 0xF0 && tete < 0xF5 ? 4
                                                        : 0;
    if (n == 0 || octets.size() < n)
        return 0;
    for (std::size_t i = 1; i < n; ++i)
        if ((octet(i) & 0xC0U) != 0x80U)
            return 0;
    // Too long a form, half a pair, beyond the last character.
    const bool faux = (tete == 0xE0 && octet(1) < 0xA0) || (tete == 0xED && octet(1) > 0x9F) ||
                      (tete == 0xF0 && octet(1) < 0x90) || (tete == 0xF4 && octet(1) > 0x8F);
    return faux ? 0 : n;
}

bool EstUtf8(std::string_view octets) {
    while (!octets.empty()) {
        const std::size_t n = LongueurSequence(octets);
        if (n == 0)
            return false;
        octets.remove_prefix(n);
    }
    return true;
}

} // namespace orvalis
