// Where the program folder lies, and the files in it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvalis {

inline constexpr std::string_view kNomDossier = "Orvalis";
inline constexpr std::string_view kNomParametres = "ParVel.cfg"; ///< as this program writes it
inline constexpr std::string_view kNomFeuilleQSL = "FeuilleQSL.txt";
inline constexpr std::string_view kNomSauvegardes = "VekSave";

/// The folder that plays the part of the current drive: on Windows the first three characters of
/// the current directory; elsewhere the root of the removable volume that holds it
/// (/media/<user>/<volume>, /run/media/<user>/<volume>, /mnt/<volume>, /Volumes/<volume>), else
/// the user's home.
[[nodiscard]] std::filesystem::path CalculerLecteur(const std::filesystem::path& courant,
                                                    const std::filesystem::path& maison);

/// Whether `racine`, where a volume is mounted, is the root of a removable one: it lies in one of
/// the same folders, at whatever depth (a stick mounted by hand has no folder of its user).
[[nodiscard]] bool EstRacineAmovible(const std::filesystem::path& racine);

/// The drive as shown and as prefixed to relative paths: with its closing separator, UTF-8.
[[nodiscard]] std::string TexteLecteur(const std::filesystem::path& lecteur);

/// The program folder on a drive.
[[nodiscard]] std::filesystem::path DossierProgramme(const std::filesystem::path& lecteur);

/// Whether something lies at `chemin`. Throws Erreur when the system will not tell.
[[nodiscard]] bool Present(const std::filesystem::path& chemin);

/// Path of the file `nom` (UTF-8) in `dossier`: the one that is there under that name in
/// whatever case, the name as given before all others, else the name as given. Throws Erreur when
/// the folder may not be read.
[[nodiscard]] std::filesystem::path TrouverFichier(const std::filesystem::path& dossier,
                                                   std::string_view nom);

/// Path of the Settings file in `dossier`. Where several names differ only in case, the one that
/// this program writes wins; where there is none, it is that one too.
[[nodiscard]] std::filesystem::path TrouverParametres(const std::filesystem::path& dossier);

/// Name of the logbook file for a callsign: its first eight characters, less those that no file
/// name may hold, then ".Vek".
[[nodiscard]] std::string NomDuCahier(std::string_view indicatif);

} // namespace orvalis
