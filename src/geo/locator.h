// Maidenhead locators of six characters: two field letters, two square digits, two subsquare
// letters. Characters 1, 3 and 5 carry the longitude, characters 2, 4 and 6 the latitude.
//
// Coordinates are decimal degrees. Latitude is positive to the North. Longitude is positive to the
// WEST and negative to the East, here and everywhere else in the program: a station at 1.54 degrees
// East has the longitude -1.54.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

inline constexpr std::size_t kLargeurLocator = 6;

/// True only for "A".."R" twice, "0".."9" twice, "A".."X" twice. Lower case, blanks around the
/// locator and any other length are refused; nothing is trimmed or turned to upper case.
[[nodiscard]] bool LocatorValide(std::string_view locator);

/// Latitude and longitude of the centre of the subsquare. The locator is expected to be valid; for
/// any other text the value is meaningless (but the call is safe).
[[nodiscard]] double LocatorVersLatitude(std::string_view locator);
[[nodiscard]] double LocatorVersLongitude(std::string_view locator);

/// Locator of the subsquare that holds the point, computed in single precision throughout.
/// Expects |latitude| < 90 and |longitude| < 180. Slightly outside, the text is still six
/// characters long but LocatorValide refuses it. Throws std::overflow_error when a field or a
/// square does not even fit a 16-bit integer, or is not a number.
[[nodiscard]] std::string CoordVersLocator(float latitude, float longitude);

} // namespace orvalis
