// What the system gives for files, behind one header with a source for each system: noyau_posix.cpp
// and noyau_windows.cpp. Nothing here knows a logbook or words a message; whoever calls turns a
// reason into an Erreur.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>

namespace orvalis {

enum class ModeFichier {
    Lecture,         ///< must exist; reading only
    LectureEcriture, ///< must exist
    Partage,         ///< the same, of a file that several programs may have open for writing
    Creation         ///< created when missing; an existing file keeps its bytes
};

namespace noyau {

/// An open file of the system.
using Poignee = std::intptr_t;
inline constexpr Poignee kAucune = -1;

// Whether the end of the program never cuts a single write of the system. Elsewhere it may stop at
// a page of memory (core/projection.h).
#ifdef _WIN32
inline constexpr bool kEcritureIndivisible = true;
#else
inline constexpr bool kEcritureIndivisible = false;
#endif

// Whether a file answers to its name in whatever case, and must be asked for its own.
#ifdef _WIN32
inline constexpr bool kSansCasse = true;
#else
inline constexpr bool kSansCasse = false;
#endif

/// Opens a regular file; kAucune and the reason otherwise. A pipe would keep the program waiting,
/// and a device has no end to read up to: those are refused, and folders.
///
/// Where the system knows it, opening for writing keeps other writers off and is the lock, but for
/// Partage; it is then tried for a second, for those who look at every file that was just touched.
[[nodiscard]] Poignee Ouvrir(const std::filesystem::path& chemin, ModeFichier mode,
                             std::error_code& raison);
void Fermer(Poignee poignee) noexcept;

/// Whether opening for writing was refused with this reason because another program has the file
/// open for writing and lets it be read, as this program does.
[[nodiscard]] bool TenuParUnAutre(const std::filesystem::path& chemin,
                                  const std::error_code& raison);

/// Size in bytes; with a reason, nothing.
[[nodiscard]] std::int64_t Taille(Poignee poignee, std::error_code& raison);
/// Reads as much as the system gives at once from byte `position` on; 0 at the end.
[[nodiscard]] std::size_t Lire(Poignee poignee, std::int64_t position, std::span<char> tampon,
                               std::error_code& raison);
/// Writes as much as the system takes at once at byte `position`; 0 with a reason.
[[nodiscard]] std::size_t Ecrire(Poignee poignee, std::int64_t position,
                                 std::span<const char> octets, std::error_code& raison);
/// Sees to it that there is room on the disk for all bytes before `fin`; the size stays.
void Reserver(Poignee poignee, std::int64_t fin, std::error_code& raison);
/// Returns once what was written has reached the disk; a file system that cannot tell counts as
/// done.
void Synchroniser(Poignee poignee, std::error_code& raison);
void Raccourcir(Poignee poignee, std::int64_t taille, std::error_code& raison);
/// Takes the advisory lock, where opening was not the lock already (`lecture`: for reading only it
/// was not); false when another holder has it. A file system that knows no locks counts as locked.
[[nodiscard]] bool Verrouiller(Poignee poignee, bool lecture, std::error_code& raison);
/// Whether `autre` is a path to the open file, under whatever name.
[[nodiscard]] bool EstLeMeme(Poignee poignee, const std::filesystem::path& autre);

/// Gives a file another name, in the place of what has it; it has it wholly or not at all.
void Renommer(const std::filesystem::path& ancien, const std::filesystem::path& nouveau,
              std::error_code& raison);
/// Returns once the names in a folder have reached the disk. No reason for a folder that cannot be
/// opened or flushed by itself.
void SynchroniserDossier(const std::filesystem::path& dossier, std::error_code& raison);

/// A reason under the number that all systems have for it, where there is one; else as it is.
[[nodiscard]] std::error_code Commune(const std::error_code& raison);

/// A reason in French, by its number.
struct RaisonMotivee {
    int code;
    std::string_view texte;
    std::string_view remede = {}; ///< what the operator can do about it
};
/// The reasons that only this system gives, by its own numbers.
[[nodiscard]] std::span<const RaisonMotivee> RaisonsPropres();

/// The root of the drive that stands in where the current folder is on none.
[[nodiscard]] std::filesystem::path LecteurDuSysteme();
/// Whether a volume mounted at `racine` can be taken out.
[[nodiscard]] bool EstAmovible(const std::filesystem::path& racine);

} // namespace noyau
} // namespace orvalis
