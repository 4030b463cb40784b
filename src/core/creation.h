// The creation of a station's logbook on the first run.
#pragma once

#include "core/parametres.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace orvalis {

/// Creates the program folder on `lecteur` when it is missing, writes the Settings file and an
/// empty logbook. Returns false, without a word and without having written a file, when the
/// folder cannot be made or the length of the callsign does not pass: of 1 to 20 characters, those
/// of 1, 8, 9, 16 and 17 do not. Throws Erreur, also when the logbook is open already; a new one
/// may then be there, empty.
[[nodiscard]] bool CreerCahier(const std::filesystem::path& lecteur, const Parametres& parametres);

/// A logbook whose contacts a creation would put out of sight, under its own name, which may be
/// another in upper and lower case than that of the creation.
struct CahierDejaLa {
    std::string nom;
    std::int32_t contacts = 0;
};
/// What a creation under the name `nomFichier` would meet; without contacts where there is no such
/// file or none that can be counted.
[[nodiscard]] CahierDejaLa ContactsDejaLa(const std::filesystem::path& lecteur,
                                          std::string_view nomFichier);

/// Whether the length of a callsign passes there.
[[nodiscard]] bool IndicatifCreable(std::string_view indicatif);

/// Path of a file of the program folder as messages show it, native separators (UTF-8).
[[nodiscard]] std::string CheminProgrammeTexte(const std::filesystem::path& lecteur,
                                               std::string_view nom);

} // namespace orvalis
