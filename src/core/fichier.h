// Positioned reads and writes on one open file. Every refusal of the system is thrown as an Erreur
// (core/erreurs.h) that names the file, what was tried and the reason.
#pragma once

#include "core/erreurs.h"
#include "core/noyau.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace orvalis {

/// Owns one open file. Every operation throws Erreur when the system refuses it.
class Fichier {
  public:
    Fichier() = default;
    Fichier(std::filesystem::path chemin, ModeFichier mode);
    Fichier(Fichier&& autre) noexcept;
    Fichier& operator=(Fichier&& autre) noexcept;
    Fichier(const Fichier&) = delete;
    Fichier& operator=(const Fichier&) = delete;
    ~Fichier();

    [[nodiscard]] bool EstOuvert() const noexcept { return poignee_ != noyau::kAucune; }
    [[nodiscard]] const std::filesystem::path& Chemin() const noexcept { return chemin_; }
    [[nodiscard]] noyau::Poignee Poignee() const noexcept { return poignee_; }
    /// Opened for reading only.
    [[nodiscard]] bool EstProtege() const noexcept { return protege_; }
    void Fermer() noexcept;
    /// From now on this is the open logbook: what fails on it concerns the logbook.
    void DevenirLeCahier() noexcept { estLeCahier_ = true; }
    /// The failure of an operation on this file.
    [[nodiscard]] Erreur Echec(NatureErreur nature, std::error_code raison) const;

    /// Size in bytes.
    [[nodiscard]] std::int64_t Taille() const;
    /// Fills `tampon` from byte `position` on; returns how many bytes there were.
    [[nodiscard]] std::size_t Lire(std::int64_t position, std::span<char> tampon) const;
    /// Writes all of `octets` at `position`, as one write of the system unless it cuts it short.
    /// When `position` lies beyond the end, the gap is filled with blanks in the same write.
    void Ecrire(std::int64_t position, std::span<const char> octets);
    /// Makes sure that there is room on the disk for all bytes before `fin`; writes none, and the
    /// size stays.
    void Reserver(std::int64_t fin);
    /// Returns once what was written has reached the disk.
    void Synchroniser();
    /// Cuts the file to its first `taille` bytes.
    void Raccourcir(std::int64_t taille);
    /// Takes the advisory lock that keeps a second program off this file; false when another
    /// holder has it. It goes with the file's closing. A file system that knows no locks counts
    /// as locked; where opening for writing is the lock, it was taken then, or refused as
    /// DejaOuvert.
    [[nodiscard]] bool Verrouiller();
    /// True when `autre` is a path to the file that is open here, under whatever name.
    [[nodiscard]] bool EstLeMeme(const std::filesystem::path& autre) const;

  private:
    void Exiger(NatureErreur nature, const std::error_code& raison) const;

    noyau::Poignee poignee_ = noyau::kAucune;
    bool protege_ = false;
    bool estLeCahier_ = false;
    std::filesystem::path chemin_;
};

/// Returns once the name of `fichier`, which was created or renamed or is a new folder, has reached
/// the disk: until then a power cut may leave its folder without it. Throws Erreur; a folder that
/// cannot be opened or flushed by itself counts as done.
void SynchroniserNom(const std::filesystem::path& fichier);

} // namespace orvalis
