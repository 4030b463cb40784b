#include "echange/tables_adif.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

constexpr std::int64_t kHz = 1000;

constexpr std::array<Bande, 33> kBandes = {{
    {"2190m", 135700, 137800},
    {"630m", 472 * kHz, 479 * kHz},
    {"560m", 501 * kHz, 504 * kHz},
    {"160m", 1800 * kHz, 2000 * kHz},
    {"80m", 3500 * kHz, 4000 * kHz},
    {"60m", 5060 * kHz, 5450 * kHz},
    {"40m", 7000 * kHz, 7300 * kHz},
    {"30m", 10100 * kHz, 10150 * kHz},
    {"20m", 14000 * kHz, 14350 * kHz},
    {"17m", 18068 * kHz, 18168 * kHz},
    {"15m", 21000 * kHz, 21450 * kHz},
    {"12m", 24890 * kHz, 24990 * kHz},
    {"10m", 28000 * kHz, 29700 * kHz},
    {"8m", 40000 * kHz, 45000 * kHz},
    {"6m", 50000 * kHz, 54000 * kHz},
    {"5m", 54000001, 69900 * kHz},
    {"4m", 70000 * kHz, 71000 * kHz},
    {"2m", 144000 * kHz, 148000 * kHz},
    {"1.25m", 222000 * kHz, 225000 * kHz},
    {"70cm", 420000 * kHz, 450000 * kHz},
    {"33cm", 902000 * kHz, 928000 * kHz},
    {"23cm", 1240000 * kHz, 1300000 * kHz},
    {"13cm", 2300000 * kHz, 2450000 * kHz},
    {"9cm", 3300000 * kHz, 3500000 * kHz},
    {"6cm", 5650000 * kHz, 5925000 * kHz},
    {"3cm", 10000000 * kHz, 10500000 * kHz},
    {"1.25cm", 24000000 * kHz, 24250000 * kHz},
    {"6mm", 47000000 * kHz, 47200000 * kHz},
    {"4mm", 75500000 * kHz, 81000000 * kHz},
    {"2.5mm", 119980000 * kHz, 123000000 * kHz},
    {"2mm", 134000000 * kHz, 149000000 * kHz},
    {"1mm", 241000000 * kHz, 250000000 * kHz},
    {"submm", 300000000 * kHz, 7500000000 * kHz},
}};

// Sorted by name. Modes that the format keeps for reading only are its submodes of today.
constexpr std::array<ModeAdif, 231> kModes = {{
    {"PSK", "8PSK1000"},
    {"PSK", "8PSK1000F"},
    {"PSK", "8PSK1200F"},
    {"PSK", "8PSK125"},
    {"PSK", "8PSK125F"},
    {"PSK", "8PSK125FL"},
    {"PSK", "8PSK250"},
    {"PSK", "8PSK250F"},
    {"PSK", "8PSK250FL"},
    {"PSK", "8PSK500"},
    {"PSK", "8PSK500F"},
    {"AM", ""},
    {"TOR", "AMTORFEC"},
    {"ARDOP", ""},
    {"RTTY", "ASCI"},
    {"ATV", ""},
    {"DIGITALVOICE", "C4FM"},
    {"CHIP", ""},
    {"CHIP", "CHIP128"},
    {"CHIP", "CHIP64"},
    {"CLO", ""},
    {"CONTESTI", ""},
    {"CW", ""},
    {"DIGITALVOICE", ""},
    {"DIGITALVOICE", "DMR"},
    {"DOMINO", "DOM-M"},
    {"DOMINO", "DOM11"},
    {"DOMINO", "DOM16"},
    {"DOMINO", "DOM22"},
    {"DOMINO", "DOM4"},
    {"DOMINO", "DOM44"},
    {"DOMINO", "DOM5"},
    {"DOMINO", "DOM8"},
    {"DOMINO", "DOM88"},
    {"DOMINO", ""},
    {"DOMINO", "DOMINOEX"},
    {"DOMINO", "DOMINOF"},
    {"DIGITALVOICE", "DSTAR"},
    {"DYNAMIC", ""},
    {"FAX", ""},
    {"FM", ""},
    {"HELL", "FMHELL"},
    {"DIGITALVOICE", "FREEDV"},
    {"FSK", ""},
    {"PSK", "FSK31"},
    {"FSK441", ""},
    {"HELL", "FSKH105"},
    {"HELL", "FSKH245"},
    {"HELL", "FSKHELL"},
    {"MFSK", "FSQCALL"},
    {"MFSK", "FST4"},
    {"MFSK", "FST4W"},
    {"MFSK", "FT4"},
    {"FT8", ""},
    {"TOR", "GTOR"},
    {"HELL", ""},
    {"HELL", "HELL80"},
    {"HELL", "HELLX5"},
    {"HELL", "HELLX9"},
    {"HELL", "HFSK"},
    {"ISCAT", ""},
    {"ISCAT", "ISCAT-A"},
    {"ISCAT", "ISCAT-B"},
    {"MFSK", "JS8"},
    {"JT4", ""},
    {"JT44", ""},
    {"JT4", "JT4A"},
    {"JT4", "JT4B"},
    {"JT4", "JT4C"},
    {"JT4", "JT4D"},
    {"JT4", "JT4E"},
    {"JT4", "JT4F"},
    {"JT4", "JT4G"},
    {"JT65", ""},
    {"JT65", "JT65A"},
    {"JT65", "JT65B"},
    {"JT65", "JT65B2"},
    {"JT65", "JT65C"},
    {"JT65", "JT65C2"},
    {"JT6M", ""},
    {"JT9", ""},
    {"JT9", "JT9-1"},
    {"JT9", "JT9-10"},
    {"JT9", "JT9-2"},
    {"JT9", "JT9-30"},
    {"JT9", "JT9-5"},
    {"JT9", "JT9A"},
    {"JT9", "JT9B"},
    {"JT9", "JT9C"},
    {"JT9", "JT9D"},
    {"JT9", "JT9E"},
    {"JT9", "JT9E FAST"},
    {"JT9", "JT9F"},
    {"JT9", "JT9F FAST"},
    {"JT9", "JT9G"},
    {"JT9", "JT9G FAST"},
    {"JT9", "JT9H"},
    {"JT9", "JT9H FAST"},
    {"MFSK", "JTMS"},
    {"SSB", "LSB"},
    {"DIGITALVOICE", "M17"},
    {"MFSK", ""},
    {"MFSK", "MFSK11"},
    {"MFSK", "MFSK128"},
    {"MFSK", "MFSK128L"},
    {"MFSK", "MFSK16"},
    {"MFSK", "MFSK22"},
    {"MFSK", "MFSK31"},
    {"MFSK", "MFSK32"},
    {"MFSK", "MFSK4"},
    {"MFSK", "MFSK64"},
    {"MFSK", "MFSK64L"},
    {"MFSK", "MFSK8"},
    {"MSK144", ""},
    {"MT63", ""},
    {"MTONE", ""},
    {"TOR", "NAVTEX"},
    {"OLIVIA", ""},
    {"OLIVIA", "OLIVIA 16/1000"},
    {"OLIVIA", "OLIVIA 16/500"},
    {"OLIVIA", "OLIVIA 32/1000"},
    {"OLIVIA", "OLIVIA 4/125"},
    {"OLIVIA", "OLIVIA 4/250"},
    {"OLIVIA", "OLIVIA 8/250"},
    {"OLIVIA", "OLIVIA 8/500"},
    {"OPERA", ""},
    {"OPERA", "OPERA-BEACON"},
    {"OPERA", "OPERA-QSO"},
    {"PAC", ""},
    {"PAC", "PAC2"},
    {"PAC", "PAC3"},
    {"PAC", "PAC4"},
    {"PAX", ""},
    {"PAX", "PAX2"},
    {"CW", "PCW"},
    {"PKT", ""},
    {"PSK", ""},
    {"PSK", "PSK10"},
    {"PSK", "PSK1000"},
    {"PSK", "PSK1000RC2"},
    {"PSK", "PSK125"},
    {"PSK", "PSK125RC10"},
    {"PSK", "PSK125RC12"},
    {"PSK", "PSK125RC16"},
    {"PSK", "PSK125RC4"},
    {"PSK", "PSK125RC5"},
    {"PSK", "PSK250"},
    {"PSK", "PSK250RC2"},
    {"PSK", "PSK250RC3"},
    {"PSK", "PSK250RC5"},
    {"PSK", "PSK250RC6"},
    {"PSK", "PSK250RC7"},
    {"PSK2K", ""},
    {"PSK", "PSK31"},
    {"PSK", "PSK500"},
    {"PSK", "PSK500RC2"},
    {"PSK", "PSK500RC3"},
    {"PSK", "PSK500RC4"},
    {"PSK", "PSK63"},
    {"PSK", "PSK63F"},
    {"PSK", "PSK63RC10"},
    {"PSK", "PSK63RC20"},
    {"PSK", "PSK63RC32"},
    {"PSK", "PSK63RC4"},
    {"PSK", "PSK63RC5"},
    {"PSK", "PSK800RC2"},
    {"PSK", "PSKAM10"},
    {"PSK", "PSKAM31"},
    {"PSK", "PSKAM50"},
    {"PSK", "PSKFEC31"},
    {"HELL", "PSKHELL"},
    {"Q15", ""},
    {"MFSK", "Q65"},
    {"PSK", "QPSK125"},
    {"PSK", "QPSK250"},
    {"PSK", "QPSK31"},
    {"PSK", "QPSK500"},
    {"PSK", "QPSK63"},
    {"QRA64", ""},
    {"QRA64", "QRA64A"},
    {"QRA64", "QRA64B"},
    {"QRA64", "QRA64C"},
    {"QRA64", "QRA64D"},
    {"QRA64", "QRA64E"},
    {"ROS", ""},
    {"ROS", "ROS-EME"},
    {"ROS", "ROS-HF"},
    {"ROS", "ROS-MF"},
    {"RTTY", ""},
    {"RTTYM", ""},
    {"FSK", "SCAMP_FAST"},
    {"MTONE", "SCAMP_OO"},
    {"MTONE", "SCAMP_OO_SLW"},
    {"FSK", "SCAMP_SLOW"},
    {"FSK", "SCAMP_VSLOW"},
    {"PSK", "SIM31"},
    {"TOR", "SITORB"},
    {"HELL", "SLOWHELL"},
    {"SSB", ""},
    {"SSTV", ""},
    {"T10", ""},
    {"THOR", ""},
    {"THOR", "THOR-M"},
    {"THOR", "THOR100"},
    {"THOR", "THOR11"},
    {"THOR", "THOR16"},
    {"THOR", "THOR22"},
    {"THOR", "THOR25X4"},
    {"THOR", "THOR4"},
    {"THOR", "THOR5"},
    {"THOR", "THOR50X1"},
    {"THOR", "THOR50X2"},
    {"THOR", "THOR8"},
    {"THRB", ""},
    {"THRB", "THRBX"},
    {"THRB", "THRBX1"},
    {"THRB", "THRBX2"},
    {"THRB", "THRBX4"},
    {"THRB", "THROB1"},
    {"THRB", "THROB2"},
    {"THRB", "THROB4"},
    {"TOR", ""},
    {"SSB", "USB"},
    {"V4", ""},
    {"DYNAMIC", "VARA FM 1200"},
    {"DYNAMIC", "VARA FM 9600"},
    {"DYNAMIC", "VARA HF"},
    {"DYNAMIC", "VARA SATELLITE"},
    {"VOI", ""},
    {"WINMOR", ""},
    {"WSPR", ""},
}};

constexpr std::string_view Nom(const ModeAdif& m) {
    return m.sousMode.empty() ? m.mode : m.sousMode;
}
static_assert(std::is_sorted(kModes.begin(), kModes.end(),
                             [](const ModeAdif& a, const ModeAdif& b) { return Nom(a) < Nom(b); }));

// How operators write a mode that the format calls otherwise.
constexpr std::array<std::pair<std::string_view, ModeAdif>, 1> kUsages = {{
    {"BLU", {"SSB", ""}},
}};

constexpr std::size_t kLettresDebut = 5;

// The modes whose names begin with `debut`; a mode alone goes before the submodes.
ModeAdif DepuisDebut(std::string_view debut) {
    const auto premier =
        std::lower_bound(kModes.begin(), kModes.end(), debut,
                         [](const ModeAdif& m, std::string_view texte) { return Nom(m) < texte; });
    const auto dernier = std::find_if(
        premier, kModes.end(), [debut](const ModeAdif& m) { return !Nom(m).starts_with(debut); });
    if (premier == dernier)
        return {};
    for (auto m = premier; m != dernier; ++m)
        if (m->sousMode.empty())
            return *m;
    // Sorted by name, the first is a start of all the others or nothing is.
    const auto tous = [&](auto vrai) { return std::all_of(premier, dernier, vrai); };
    if (tous([&](const ModeAdif& m) { return Nom(m).starts_with(Nom(*premier)); }))
        return *premier;
    if (tous([&](const ModeAdif& m) { return m.mode == premier->mode; }))
        return {premier->mode, ""};
    return {};
}

} // namespace

std::string MajusculesAscii(std::string_view texte) {
    std::string resultat(texte);
    for (char& c : resultat)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return resultat;
}

std::span<const Bande> Bandes() {
    return kBandes;
}

const Bande* BandeDe(std::int64_t hertz) {
    for (const Bande& bande : kBandes)
        if (hertz >= bande.bas && hertz <= bande.haut)
            return &bande;
    return nullptr;
}

const Bande* BandeNommee(std::string_view nom) {
    const std::string cherche = MajusculesAscii(nom);
    for (const Bande& bande : kBandes)
        if (bande.nom.size() == nom.size() && MajusculesAscii(bande.nom) == cherche)
            return &bande;
    return nullptr;
}

ModeAdif ComprendreMode(std::string_view texte) {
    const std::string nom = MajusculesAscii(texte);
    const auto place = std::lower_bound(
        kModes.begin(), kModes.end(), std::string_view{nom},
        [](const ModeAdif& m, std::string_view cherche) { return Nom(m) < cherche; });
    if (place != kModes.end() && Nom(*place) == nom)
        return *place;
    for (const auto& [usage, mode] : kUsages)
        if (usage == nom)
            return mode;
    return nom.size() == kLettresDebut ? DepuisDebut(nom) : ModeAdif{};
}

bool DepartementListe(int dxcc, std::string_view code) {
    if (dxcc == kDxccCorse)
        return code == "2A" || code == "2B";
    const auto chiffre = [](char c) { return c >= '0' && c <= '9'; };
    return dxcc == kDxccFrance && code.size() == 2 && chiffre(code[0]) && chiffre(code[1]) &&
           code >= "01" && code <= "95" && code != "20";
}

} // namespace orvalis
