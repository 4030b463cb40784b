#include "core/texte.h"

#include <array>
#include <cstdint>

namespace orvalis {
namespace {

// Code points of the bytes 0x80 to 0x9F.
constexpr std::array<char32_t, 32> kHaut = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kInvalide = 0xFFFD;

constexpr bool EstSuite(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

void AjouterCode(std::string& sortie, char32_t code) {
    if (code < 0x80) {
        sortie.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        sortie.push_back(static_cast<char>(0xC0U | (code >> 6U)));
        sortie.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
    } else {
        sortie.push_back(static_cast<char>(0xE0U | (code >> 12U)));
        sortie.push_back(static_cast<char>(0x80U | ((code >> 6U) & 0x3FU)));
        sortie.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
    }
}

struct Lu {
    char32_t code;
    std::size_t octets;
};

// Reads one code point; a malformed sequence counts as one invalid character of one byte.
Lu LireCode(std::string_view s) {
    const auto b0 = static_cast<unsigned char>(s[0]);
    if (b0 < 0x80)
        return {b0, 1};
    const std::size_t n = b0 >= 0xF0 && b0 < 0xF8 ? 4 : b0 >= 0xE0 ? 3 : b0 >= 0xC2 ? 2 : 0;
    if (n == 0 || b0 >= 0xF8 || s.size() < n)
        return {kInvalide, 1};
    char32_t code = b0 & (0xFFU >> (n + 1));
    for (std::size_t i = 1; i < n; ++i) {
        if (!EstSuite(s[i]))
            return {kInvalide, 1};
        code = (code << 6U) | (static_cast<unsigned char>(s[i]) & 0x3FU);
    }
    return {code, n};
}

int OctetDe(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
        return static_cast<int>(code);
    for (std::size_t i = 0; i < kHaut.size(); ++i)
        if (kHaut[i] == code)
            return static_cast<int>(0x80 + i);
    return -1;
}

char32_t CodeDe(unsigned char octet) {
    return octet >= 0x80 && octet < 0xA0 ? kHaut[octet - 0x80U] : octet;
}

constexpr bool EstDeCommande(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

unsigned char MinusculeCp1252(unsigned char o) {
    if ((o >= 'A' && o <= 'Z') || (o >= 0xC0 && o <= 0xDE && o != 0xD7))
        return static_cast<unsigned char>(o + 0x20);
    if (o == 0x8A || o == 0x8C || o == 0x8E)
        return static_cast<unsigned char>(o + 0x10);
    return o == 0x9F ? 0xFF : o;
}

// Offset of the character number `n` (from 0), or the size.
std::size_t Decalage(std::string_view s, std::size_t n) {
    std::size_t i = 0;
    for (; n > 0 && i < s.size(); --n)
        i += LireCode(s.substr(i)).octets;
    return i;
}

// Calls `faire` with each character of a text and what stands for it there.
template<typename Faire> void PourChaqueCaractere(std::string_view utf8, Faire faire) {
    for (std::size_t i = 0; i < utf8.size();) {
        const Lu lu = LireCode(utf8.substr(i));
        faire(lu.code, utf8.substr(i, lu.octets));
        i += lu.octets;
    }
}

template<typename Convertir> std::string Convertis(std::string_view utf8, Convertir convertir) {
    std::string sortie;
    sortie.reserve(utf8.size());
    PourChaqueCaractere(utf8, [&](char32_t code, std::string_view caractere) {
        const int octet = OctetDe(code);
        if (octet >= 0)
            AjouterCode(sortie, CodeDe(convertir(static_cast<unsigned char>(octet))));
        else
            sortie.append(caractere);
    });
    return sortie;
}

} // namespace

std::string DepuisCp1252(std::string_view octets) {
    std::string sortie;
    sortie.reserve(octets.size());
    for (const char c : octets)
        AjouterCode(sortie, CodeDe(static_cast<unsigned char>(c)));
    return sortie;
}

std::string VersCp1252(std::string_view utf8) {
    std::string sortie;
    sortie.reserve(utf8.size());
    PourChaqueCaractere(utf8, [&sortie](char32_t code, std::string_view /*caractere*/) {
        const int octet = OctetDe(code);
        sortie.push_back(octet < 0 ? '?' : static_cast<char>(octet));
    });
    return sortie;
}

std::string NettoyerSaisie(std::string_view utf8) {
    std::string sortie;
    sortie.reserve(utf8.size());
    PourChaqueCaractere(utf8, [&sortie](char32_t code, std::string_view caractere) {
        if (!EstDeCommande(code))
            sortie.append(OctetDe(code) < 0 ? "?" : caractere);
    });
    return sortie;
}

std::size_t Longueur(std::string_view utf8) {
    std::size_t n = 0;
    PourChaqueCaractere(utf8, [&n](char32_t /*code*/, std::string_view /*caractere*/) { ++n; });
    return n;
}

std::string_view Gauche(std::string_view utf8, std::size_t n) {
    return utf8.substr(0, Decalage(utf8, n));
}

std::string_view Droite(std::string_view utf8, std::size_t n) {
    const std::size_t total = Longueur(utf8);
    return total <= n ? utf8 : utf8.substr(Decalage(utf8, total - n));
}

std::string_view Milieu(std::string_view utf8, std::size_t position, std::size_t n) {
    const std::string_view reste = utf8.substr(Decalage(utf8, position - 1));
    return Gauche(reste, n);
}

std::string Cadrer(std::string_view utf8, std::size_t n) {
    std::string sortie{Gauche(utf8, n)};
    const std::size_t longueur = Longueur(sortie);
    sortie.append(n - longueur, ' ');
    return sortie;
}

std::string_view Rogner(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(' ');
    if (debut == std::string_view::npos)
        return texte.substr(0, 0);
    return texte.substr(debut, texte.find_last_not_of(' ') - debut + 1);
}

std::string Majuscules(std::string_view utf8) {
    return Convertis(utf8, MajusculeCp1252);
}

std::string NomPropre(std::string_view utf8) {
    bool debutDeMot = true;
    return Convertis(utf8, [&debutDeMot](unsigned char octet) {
        const unsigned char sorti = debutDeMot ? MajusculeCp1252(octet) : MinusculeCp1252(octet);
        debutDeMot = octet == ' ' || octet == '-' || octet == 0xA0;
        return sorti;
    });
}

int ValeurNumerique(std::string_view texte) {
    constexpr int kPlafond = 999'999'999;
    std::int64_t valeur = 0;
    for (const char c : texte) {
        if (c < '0' || c > '9')
            break;
        valeur = valeur * 10 + (c - '0');
        if (valeur > kPlafond)
            return kPlafond;
    }
    return static_cast<int>(valeur);
}

std::string EspacerMilliers(std::string chiffres) {
    for (std::size_t i = chiffres.size(); i > 3; i -= 3)
        chiffres.insert(i - 3, "\u00A0");
    return chiffres;
}

unsigned char MajusculeCp1252(unsigned char o) {
    if ((o >= 'a' && o <= 'z') || (o >= 0xE0 && o <= 0xFE && o != 0xF7))
        return static_cast<unsigned char>(o - 0x20);
    if (o == 0x9A || o == 0x9C || o == 0x9E)
        return static_cast<unsigned char>(o - 0x10);
    return o == 0xFF ? 0x9F : o;
}

} // namespace orvalis
