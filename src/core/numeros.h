// The numbers that run through the whole program and look alike, as types of their own: the
// compiler refuses a record where a page, a line or a count is meant. Those three stay plain
// integers, since they are counted and divided.
#pragma once

#include <cstdint>

namespace orvalis {

/// Number of a `Chose`, from 1; 0 and less name none. The difference of two is a plain count.
template<typename Chose> class NumeroDe {
  public:
    constexpr NumeroDe() = default;
    explicit constexpr NumeroDe(std::int32_t valeur) : valeur_(valeur) {}

    [[nodiscard]] constexpr std::int32_t Valeur() const { return valeur_; }

    constexpr NumeroDe& operator++() { return *this += 1; }
    constexpr NumeroDe& operator+=(std::int32_t pas) {
        valeur_ += pas;
        return *this;
    }
    friend constexpr NumeroDe operator+(NumeroDe n, std::int32_t pas) { return n += pas; }
    friend constexpr NumeroDe operator-(NumeroDe n, std::int32_t pas) { return n += -pas; }
    friend constexpr std::int32_t operator-(NumeroDe a, NumeroDe b) {
        return a.valeur_ - b.valeur_;
    }
    // Written out: <compare>, which <=> asks for, is too new for Qt's moc to read.
    friend constexpr bool operator==(NumeroDe a, NumeroDe b) { return a.valeur_ == b.valeur_; }
    friend constexpr bool operator<(NumeroDe a, NumeroDe b) { return a.valeur_ < b.valeur_; }
    friend constexpr bool operator>(NumeroDe a, NumeroDe b) { return b < a; }
    friend constexpr bool operator<=(NumeroDe a, NumeroDe b) { return !(b < a); }
    friend constexpr bool operator>=(NumeroDe a, NumeroDe b) { return !(a < b); }

  private:
    std::int32_t valeur_ = 0;
};

/// Number of a record of the logbook.
using NumeroFiche = NumeroDe<struct GenreFiche>;
inline constexpr NumeroFiche kAucuneFiche{0};
inline constexpr NumeroFiche kPremiereFiche{1};

/// Place of the label sheet, 1 to 16, as they lie on the paper: two columns, eight rows.
using Place = NumeroDe<struct GenrePlace>;
inline constexpr Place kAucunePlace{0};
inline constexpr Place kPremierePlace{1};
inline constexpr Place kDernierePlace{16};

} // namespace orvalis
