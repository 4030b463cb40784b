// Positioned reads and writes on one open file. The operating system's calls appear only here and
// in projection.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

namespace orvalis {

/// What a failing file operation was about; the window words it in French.
enum class ActionFichier { Ouvrir, Creer, Lire, Ecrire, Synchroniser, Verrouiller, Renommer };

/// A failed file operation: which file, what was tried, and the system's reason (code()).
class ErreurFichier : public std::system_error {
  public:
    ErreurFichier(ActionFichier action, std::filesystem::path chemin, std::error_code raison);
    [[nodiscard]] ActionFichier Action() const noexcept { return action_; }
    [[nodiscard]] const std::filesystem::path& Chemin() const noexcept { return chemin_; }

  private:
    ActionFichier action_;
    std::filesystem::path chemin_;
};

enum class ModeFichier {
    Lecture,         ///< must exist; reading only
    LectureEcriture, ///< must exist
    Creation         ///< created when missing; an existing file keeps its bytes
};

/// Owns one open file. Every operation throws ErreurFichier when the system refuses it.
class Fichier {
  public:
    Fichier() = default;
    Fichier(std::filesystem::path chemin, ModeFichier mode);
    Fichier(Fichier&& autre) noexcept;
    Fichier& operator=(Fichier&& autre) noexcept;
    Fichier(const Fichier&) = delete;
    Fichier& operator=(const Fichier&) = delete;
    ~Fichier();

    [[nodiscard]] bool EstOuvert() const noexcept { return descripteur_ >= 0; }
    [[nodiscard]] const std::filesystem::path& Chemin() const noexcept { return chemin_; }
    [[nodiscard]] int Descripteur() const noexcept { return descripteur_; }
    /// Opened for reading only.
    [[nodiscard]] bool EstProtege() const noexcept { return protege_; }
    void Fermer() noexcept;

    /// Size in bytes.
    [[nodiscard]] std::int64_t Taille() const;
    /// Fills `tampon` from byte `position` on; returns how many bytes there were.
    [[nodiscard]] std::size_t Lire(std::int64_t position, std::span<char> tampon) const;
    /// Writes all of `octets` at `position`, as one write of the system unless it cuts it short.
    /// When `position` lies beyond the end, the gap is filled with blanks in the same write.
    void Ecrire(std::int64_t position, std::span<const char> octets);
    /// Returns once what was written has reached the disk.
    void Synchroniser();
    /// Takes the advisory lock that keeps a second program off this file; false when another
    /// holder has it. It goes with the file's closing. A file system that knows no locks counts
    /// as locked.
    [[nodiscard]] bool Verrouiller();
    /// True when `autre` is a path to the file that is open here, under whatever name.
    [[nodiscard]] bool EstLeMeme(const std::filesystem::path& autre) const;

  private:
    int descripteur_ = -1;
    bool protege_ = false;
    std::filesystem::path chemin_;
};

} // namespace orvalis
