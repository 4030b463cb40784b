// The Settings file: one line of three quoted, comma-separated values.
#pragma once

#include <filesystem>
#include <string>

namespace orvalis {

struct Parametres {
    std::string indicatif;  ///< station callsign
    std::string nomFichier; ///< logbook file name in the program folder
    std::string monLocator; ///< own locator, exactly 6 characters
};

/// Reads the three values, with or without quotes, doubled quotes inside, CR LF or LF; the third
/// is padded or cut to 6 characters. Empty lines are read over, and so is the byte-order mark of an
/// editor, behind which the text is UTF-8. Throws Erreur when the file cannot be read, and when it
/// holds fewer than three values or a blank one.
[[nodiscard]] Parametres LireParametres(const std::filesystem::path& chemin);

/// Writes the file anew, quoted, ending in CR LF, under the name of the file that is there. The
/// old file stays whole until the new one is on the disk. Throws Erreur.
void EcrireParametres(const std::filesystem::path& chemin, const Parametres& parametres);

} // namespace orvalis
