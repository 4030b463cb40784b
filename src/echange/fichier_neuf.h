// A file that appears whole or not at all: it is written under a name of its own beside its place,
// and gets its name only once it is on the disk.
#pragma once

#include "core/fichier.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace orvalis {

/// What becomes of a file that stands in the place already.
enum class Ancien : unsigned char {
    Remplace, ///< it stays whole until the new one takes its place
    Protege   ///< it stays: the new one is refused, even if the other comes up meanwhile
};

/// A place for a new file, and the name of its own that it has until it is whole.
class PlaceNeuve {
  public:
    /// Throws RefusEchange when the place is taken by a protected file or by something that is no
    /// file.
    PlaceNeuve(const std::filesystem::path& cible, Ancien ancien);
    PlaceNeuve(const PlaceNeuve&) = delete;
    PlaceNeuve& operator=(const PlaceNeuve&) = delete;
    /// Unless Prendre was called, the file of the own name goes.
    ~PlaceNeuve();

    [[nodiscard]] const std::filesystem::path& Cible() const noexcept { return cible_; }
    [[nodiscard]] const std::filesystem::path& Provisoire() const noexcept { return provisoire_; }
    /// The file of the own name, closed and on the disk, takes its place. Throws Erreur or
    /// RefusEchange.
    void Prendre();
    /// Whether it has; so too when Prendre threw because that may not outlast a power cut.
    [[nodiscard]] bool EstPrise() const noexcept { return prise_; }
    /// A failure of the file of the own name, told of the file that was asked for.
    [[nodiscard]] Erreur Nommer(const Erreur& echec) const;

  private:
    std::filesystem::path cible_;
    std::filesystem::path provisoire_;
    Ancien ancien_;
    bool prise_ = false;
};

class FichierNeuf {
  public:
    /// Throws Erreur when nothing can be written there, and RefusEchange as PlaceNeuve does.
    FichierNeuf(const std::filesystem::path& cible, Ancien ancien);

    /// Adds bytes at the end.
    void Ecrire(std::string_view octets);
    /// Writes bytes over others that were added before.
    void Recrire(std::int64_t position, std::string_view octets);
    /// The file is complete: it is flushed to the disk and closed, and lacks nothing but its name.
    void Achever();
    /// It takes its name, complete as with Achever. Without this nothing is left.
    void Terminer();
    /// Whether the file has its name, see PlaceNeuve.
    [[nodiscard]] bool EstEnPlace() const noexcept { return place_.EstPrise(); }

  private:
    template<class Faire> void Essayer(Faire faire) const;
    void Vider();

    PlaceNeuve place_;
    Fichier fichier_; ///< closed before its place goes
    std::int64_t ecrits_ = 0;
    std::string tampon_;
    bool acheve_ = false;
};

} // namespace orvalis
