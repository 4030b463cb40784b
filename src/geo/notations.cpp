#include "geo/notations.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <system_error>

namespace orvalis {
namespace {

constexpr double kMaxLu = 1000;

// Nearest whole number, an exact half to the even one.
int Arrondir(double valeur) {
    return static_cast<int>(std::lrint(valeur));
}

} // namespace

float DmsVersDecimal(const Dms& dms) {
    const int centiemes = Arrondir(dms.minutes / 0.6);
    const int reste = static_cast<int>(dms.secondes / 0.6);
    return static_cast<float>(dms.degres + (centiemes * 100 + reste) / 10000.0);
}

Dms DecimalVersDms(float decimal) {
    const double valeur = std::abs(decimal);
    const int degres = static_cast<int>(valeur);
    const int reste = Arrondir((valeur - degres) * 10000);
    const int centiemes = reste / 100;
    return {degres, Arrondir(centiemes * 0.6), Arrondir((reste - centiemes * 100) * 0.6)};
}

std::string FormaterDecimal(float degres) {
    // Exact in double precision: a float times 10000 needs no more than 38 bits.
    const long long unites = std::llround(static_cast<double>(degres) * 10000);
    std::string texte = unites < 0 ? "-" : "";
    texte += std::to_string(std::llabs(unites) / 10000);
    texte += '.';
    texte += std::to_string(10000 + std::llabs(unites) % 10000).substr(1);
    return texte;
}

float LireDecimal(std::string_view texte) {
    // Letters are no number here, not even "inf" and "nan".
    texte = texte.substr(0, texte.find_first_not_of("-.0123456789"));
    double valeur = 0;
    const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur,
                                               std::chars_format::fixed);
    if (erreur == std::errc::result_out_of_range) {
        // Too many digits before the point, or too many zeros after it.
        const auto entiere = texte.substr(0, texte.find('.'));
        const bool grande = entiere.find_first_of("123456789") != std::string_view::npos;
        valeur = grande ? (texte.front() == '-' ? -kMaxLu : kMaxLu) : 0;
    }
    return static_cast<float>(std::clamp(valeur, -kMaxLu, kMaxLu));
}

} // namespace orvalis
