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

class FichierNeuf {
  public:
    /// Throws Erreur when nothing can be written there, and RefusEchange when the place is taken by
    /// a protected file or by something that is no file.
    FichierNeuf(const std::filesystem::path& cible, Ancien ancien);
    FichierNeuf(const FichierNeuf&) = delete;
    FichierNeuf& operator=(const FichierNeuf&) = delete;
    /// Without Terminer nothing is left.
    ~FichierNeuf();

    /// Adds bytes at the end.
    void Ecrire(std::string_view octets);
    /// Writes bytes over others that were added before.
    void Recrire(std::int64_t position, std::string_view octets);
    /// The file is complete: it is flushed, and takes its name.
    void Terminer();

  private:
    void Vider();
    void Renommer();

    std::filesystem::path cible_;
    std::filesystem::path provisoire_;
    Ancien ancien_;
    Fichier fichier_;
    std::int64_t ecrits_ = 0;
    std::string tampon_;
    bool termine_ = false;
};

} // namespace orvalis
