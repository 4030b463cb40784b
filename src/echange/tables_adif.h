// What the interchange format ADIF 3.1.6 enumerates and a logbook can say: bands, modes with their
// submodes, departments. Names are spelled as the format spells them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvalis {

inline constexpr std::string_view kVersionAdif = "3.1.6";

struct Bande {
    std::string_view nom;
    std::int64_t bas; ///< Hz, both ends included
    std::int64_t haut;
};

/// All bands, the longest wave first.
[[nodiscard]] std::span<const Bande> Bandes();
/// The band that holds a frequency in Hz; none outside all of them.
[[nodiscard]] const Bande* BandeDe(std::int64_t hertz);
/// The band of this name, in whatever case; none when there is no such band.
[[nodiscard]] const Bande* BandeNommee(std::string_view nom);

/// A mode and, where there is one, its submode; the views last as long as the program.
struct ModeAdif {
    std::string_view mode;
    std::string_view sousMode;
    friend bool operator==(const ModeAdif&, const ModeAdif&) = default;
};

/// What the text of a logbook's mode stands for: a mode; a submode, or the name that an older
/// version of the format gave it ("C4FM", "FT4", "USB"); "BLU"; or, with exactly five letters,
/// which is what a field of that width keeps of it, the start of one. Where several begin so, the
/// shortest when all others go on from it, else their mode when it is the same; else nothing, as
/// for any other text. Case does not matter.
[[nodiscard]] ModeAdif ComprendreMode(std::string_view texte);

/// The format's entity numbers of France and of Corsica.
inline constexpr int kDxccFrance = 227;
inline constexpr int kDxccCorse = 214;

/// Whether the format lists `code` ("01" to "95", "2A", "2B") among the subdivisions of `dxcc`.
[[nodiscard]] bool DepartementListe(int dxcc, std::string_view code);

/// ASCII upper case, for names whose case does not matter.
[[nodiscard]] std::string MajusculesAscii(std::string_view texte);

} // namespace orvalis
