// A window that moves over a file, forward only: what a parser by hand sees of a file of any size.
#pragma once

#include "core/fichier.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace orvalis {

class Fenetre {
  public:
    explicit Fenetre(const Fichier& fichier);

    [[nodiscard]] std::int64_t Position() const {
        return debut_ + static_cast<std::int64_t>(place_);
    }
    [[nodiscard]] std::int64_t Taille() const { return taille_; }
    /// Bytes from here to the end.
    [[nodiscard]] std::int64_t Reste() const { return taille_ - Position(); }
    /// The line that this is, from 1.
    [[nodiscard]] std::int64_t Ligne() const { return ligne_; }

    /// What lies ahead, at least `n` bytes of it (at most kVueMax) unless the file ends before;
    /// valid until the next call.
    [[nodiscard]] std::string_view Voir(std::size_t n = 1);
    static constexpr std::size_t kVueMax = 64UL * 1024;
    /// The byte at a place ahead, wherever that is; a blank beyond the end.
    [[nodiscard]] char OctetA(std::int64_t position) const;
    /// How many bytes the next `n` characters of UTF-8 are (at most kCaracteresMax); more than the
    /// file has when there are not so many.
    [[nodiscard]] std::int64_t OctetsDe(std::int64_t n);
    static constexpr std::int64_t kCaracteresMax = 1000;

    void Avancer(std::int64_t n);
    /// Up to the next `c`, or to the end of the file; tells whether there is one.
    bool AvancerJusqua(char c);

  private:
    void Garnir();
    void Reperer();

    const Fichier& fichier_;
    std::int64_t taille_;
    std::vector<char> octets_;
    std::int64_t debut_ = 0; ///< place in the file of the first byte kept
    std::size_t lus_ = 0;    ///< bytes kept
    std::size_t place_ = 0;  ///< of these, how many are done with
    std::int64_t ligne_ = 1;
    bool fini_ = false;
    std::vector<std::size_t> caracteres_; ///< where the characters of the window begin
    bool repere_ = false;                 ///< caracteres_ is of this window
};

} // namespace orvalis
