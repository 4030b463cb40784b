#include "geo/locator.h"

#include <array>
#include <cmath>
#include <stdexcept>

namespace orvalis {
namespace {

struct Plage {
    char premier;
    char dernier;
};
constexpr std::array<Plage, kLargeurLocator> kPlages{
    {{'A', 'R'}, {'A', 'R'}, {'0', '9'}, {'0', '9'}, {'A', 'X'}, {'A', 'X'}}};

// Code of "A" less one half: aims at the middle of the subsquare.
constexpr double kMilieu = 64.5;

int Code(std::string_view locator, std::size_t rang) {
    return rang < locator.size() ? static_cast<unsigned char>(locator[rang]) : 0;
}

char Caractere(float valeur, char base) {
    if (!(valeur >= -32768.0F && valeur <= 32767.0F))
        throw std::overflow_error("coordinates out of range");
    const int code = static_cast<int>(valeur) + base;
    // No locator holds a "?": what left the alphabet stays recognisably invalid.
    return code > ' ' && code < 127 ? static_cast<char>(code) : '?';
}

// The three characters of one axis; valeur counts fields from the origin of the axis.
std::array<char, 3> DecouperAxe(float valeur) {
    const float champ = std::floor(valeur);
    valeur = (valeur - champ) * 10.0F;
    const float carre = std::floor(valeur);
    const float sousCarre = std::floor((valeur - carre) * 24.0F);
    return {Caractere(champ, 'A'), Caractere(carre, '0'), Caractere(sousCarre, 'A')};
}

} // namespace

bool LocatorValide(std::string_view locator) {
    if (locator.size() != kPlages.size())
        return false;
    for (std::size_t i = 0; i < kPlages.size(); ++i)
        if (locator[i] < kPlages[i].premier || locator[i] > kPlages[i].dernier)
            return false;
    return true;
}

double LocatorVersLatitude(std::string_view locator) {
    const int entier = (Code(locator, 1) - 'A') * 10 - 90 + (Code(locator, 3) - '0');
    const double latitude = entier + (Code(locator, 5) - kMilieu) / 24;
    return std::abs(latitude) > 90 ? 180 - latitude : latitude;
}

double LocatorVersLongitude(std::string_view locator) {
    const int entier = (Code(locator, 0) - 'A') * 20 + 180 + (Code(locator, 2) - '0') * 2;
    const double longitude = entier + (Code(locator, 4) - kMilieu) / 12;
    // Kept on purpose, for the operators' distances and azimuths: every valid locator passes
    // through this fold, and it is what makes the West positive.
    return std::abs(longitude) > 180 ? 360 - longitude : longitude;
}

std::string CoordVersLocator(float latitude, float longitude) {
    const auto lon = DecouperAxe((180.0F - longitude) / 20.0F);
    const auto lat = DecouperAxe((latitude + 90.0F) / 10.0F);
    return {lon[0], lat[0], lon[1], lat[1], lon[2], lat[2]};
}

} // namespace orvalis
