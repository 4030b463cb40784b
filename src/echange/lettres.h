// Texts of the logbook in the letters that other programs can read, and back.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

/// Bytes of the logbook as printable ASCII: an accented letter becomes the letter that carries it,
/// a ligature its letters, line ends and tabs blanks; what has no like becomes "?".
[[nodiscard]] std::string VersAscii(std::string_view octets);

/// Whether the text is printable ASCII (0x20 to 0x7E) throughout.
[[nodiscard]] bool EstAscii(std::string_view octets);

/// Whether the text has a control character, or a byte that the logbook's character set leaves
/// undefined: no format of text carries those.
[[nodiscard]] bool AUneCommande(std::string_view octets);

/// Text of another program, UTF-8, as the logbook can hold it: line ends and tabs become blanks,
/// other control characters go, letters that Windows-1252 lacks lose their mark ("Łódź" becomes
/// "Lódz") or become "?".
[[nodiscard]] std::string PourLeCahier(std::string_view utf8);

/// Whether the text is UTF-8 from end to end.
[[nodiscard]] bool EstUtf8(std::string_view octets);

/// Number of bytes of the UTF-8 sequence that `octets` begins with; 0 when it is malformed or cut.
[[nodiscard]] std::size_t LongueurSequence(std::string_view octets);

} // namespace orvalis
