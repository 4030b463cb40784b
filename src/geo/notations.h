// The notations of the coordinates dialog: degrees, minutes and seconds; decimal degrees.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

/// Unsigned: the side of the equator or of the meridian is a letter beside it.
struct Dms {
    int degres = 0;
    int minutes = 0;
    int secondes = 0;
};

/// Decimal degrees, without sign. Minutes become hundredths of a degree rounded to a whole
/// hundredth, seconds divided by 0.6 become ten-thousandths: 44° 08' 45" is 44.1375, not 44.1458.
[[nodiscard]] float DmsVersDecimal(const Dms& dms);

/// Undoes exactly that scale for the absolute value of `decimal` (|decimal| below 32768). A value
/// within half a ten-thousandth below the next degree gives 60 minutes.
[[nodiscard]] Dms DecimalVersDms(float decimal);

/// Four decimals and a point whatever the locale, an exact half away from zero; a value that shows
/// as zero has no sign.
[[nodiscard]] std::string FormaterDecimal(float degres);

/// The number at the start of the text, 0 when there is none: "-", "." and "/" may be typed
/// anywhere, and the first one that does not continue the number ends it. Values beyond any
/// coordinate are limited to 1000.
[[nodiscard]] float LireDecimal(std::string_view texte);

} // namespace orvalis
