// A file mapped into memory, read directly and written in indivisible pieces.
//
// Why not a plain write: a program killed in the middle of a write of the system is stopped at
// the next page boundary, so a piece that straddles one may be left half written (on ext4 and
// tmpfs about one kill in sixteen, for neighbouring records written back to back). Plain stores
// into the mapping stop anywhere. Here the new bytes lie ready in a page of their own, and the
// kernel copies them into the mapping in one read of that page, which no signal interrupts; it is
// also three times faster than a write. Like every write it is in the file at once for every
// other reader, and on the disk after Fichier::Synchroniser. That is projection_posix.cpp.
//
// On Windows the end of a program waits for a write that is under way, so a piece is one plain
// write (projection_windows.cpp); the mapping is only read, and a single piece needs none.
#pragma once

#include "core/fichier.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace orvalis {

/// Bytes that can be replaced in one piece: a page of memory.
inline constexpr std::size_t kPlusGrandePiece = 4096;

/// Owns the mapping of the first bytes of an open file, which must outlive it.
///
/// Another program may cut the file short meanwhile. Remplacer then throws, but whoever reads
/// through Octets() what the file no longer has is stopped by the system with a signal, without a
/// word: a long reader asks for the file's size every now and then.
class Projection {
  public:
    /// Maps the first `taille` bytes (1 to the file's size), for reading and writing. Throws
    /// Erreur (Projeter, which never concerns the logbook) when the file may not be written or
    /// cannot be mapped.
    Projection(const Fichier& fichier, std::int64_t taille);
    Projection(const Projection&) = delete;
    Projection& operator=(const Projection&) = delete;
    ~Projection();

    [[nodiscard]] const char* Octets() const noexcept { return octets_; }
    /// Room where the next piece is put together; its content survives Remplacer.
    [[nodiscard]] std::span<char, kPlusGrandePiece> Atelier() noexcept {
        return std::span<char, kPlusGrandePiece>(atelier_, kPlusGrandePiece);
    }
    /// Brings what lies from byte `position` on within reach at once, for many pieces in a row:
    /// otherwise the first write on each page of memory waits for that page.
    void Amener(std::int64_t position) noexcept;
    /// Puts the first `nombre` bytes of the workshop at byte `position`, all of them or, when the
    /// program is killed or this throws Erreur, none. The piece lies within the mapping.
    void Remplacer(std::int64_t position, std::size_t nombre);
    /// The same in place of bytes that the caller knows, which spares reading them: `anciens` are
    /// those now at `position`, as many as are replaced.
    void Remplacer(std::int64_t position, std::span<const char> anciens);

  private:
    [[nodiscard]] Erreur Echec() const;
    void Liberer() noexcept;

    const Fichier& fichier_;
    std::size_t taille_;
    char* octets_ = nullptr;
    noyau::Poignee page_ = noyau::kAucune; ///< the nameless file behind the workshop
    char* atelier_ = nullptr;              ///< its mapping
    std::array<char, kPlusGrandePiece> anciens_ = {};
};

/// Replaces bytes that a file already has, in pieces that are there wholly or not at all. Where
/// files cannot be mapped (some network file systems), plain writes take over.
class EcritureEntiere {
  public:
    /// For pieces within the first `taille` bytes (1 to the file's size) of `fichier`, which must
    /// outlive this object; from byte `depuis` on in a row, if given.
    EcritureEntiere(Fichier& fichier, std::int64_t taille,
                    std::optional<std::int64_t> depuis = std::nullopt);
    /// Puts `octets`, at most kPlusGrandePiece, at byte `position`. Throws Erreur.
    void Poser(std::int64_t position, std::span<const char> octets);
    /// The same in place of bytes that the caller knows, as many, which spares reading them.
    void Poser(std::int64_t position, std::span<const char> octets, std::span<const char> anciens);

  private:
    Fichier& fichier_;
    std::optional<Projection> projection_;
};

/// Writes `octets` at byte `position`: in one indivisible piece when the file already has those
/// bytes and they are no more than kPlusGrandePiece, else as a plain write. Throws Erreur.
void EcrireEntier(Fichier& fichier, std::int64_t position, std::span<const char> octets);

} // namespace orvalis
