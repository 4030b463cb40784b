// A logbook file: records of 165 bytes numbered from 1, ended by the end-of-log record. The
// length is a whole number of records plus, in a damaged file, a short last one, which reads as
// if it were padded with blanks.
#pragma once

#include "core/fichier.h"
#include "core/numeros.h"
#include "core/projection.h"
#include "core/qso_record.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace orvalis {

/// The callsign field of a record, as it is in the file.
using OctetsIndicatif = std::array<char, Description(Champ::CSGN).largeur>;
[[nodiscard]] OctetsIndicatif IndicatifDe(const QsoRecord& fiche);

/// Record access to one open logbook file. Throws Erreur when the system refuses an
/// operation.
class FichierFiches {
  public:
    FichierFiches() = default;
    FichierFiches(const std::filesystem::path& chemin, ModeFichier mode) : fichier_(chemin, mode) {}

    [[nodiscard]] Fichier& Support() noexcept { return fichier_; }
    [[nodiscard]] const Fichier& Support() const noexcept { return fichier_; }

    /// Record `k` (from 1); blank beyond the end of the file.
    [[nodiscard]] QsoRecord Lire(NumeroFiche k) const;
    /// Fills `fiches` from record `k` on, with blanks beyond the end; returns how many records
    /// the file had there.
    [[nodiscard]] std::size_t Lire(NumeroFiche k, std::span<QsoRecord> fiches) const;
    /// Writes one record, or several neighbouring ones as one contiguous write. Records that are
    /// all in the file already, at most kFichesParPiece, are replaced wholly or not at all,
    /// whenever the program is killed.
    void Ecrire(NumeroFiche k, const QsoRecord& fiche) { Ecrire(k, std::span(&fiche, 1)); }
    void Ecrire(NumeroFiche k, std::span<const QsoRecord> fiches);
    /// Number of contacts: the records before the end-of-log record, or all of them without one.
    [[nodiscard]] std::int32_t Compter() const;
    /// The same; `indicatifs` becomes the callsign field of each of them, unless this throws.
    [[nodiscard]] std::int32_t Compter(std::vector<OctetsIndicatif>& indicatifs) const;

  private:
    Fichier fichier_;
};

/// Sequential reading in large blocks, for the scans of a whole logbook. The logbook must not be
/// written meanwhile.
class LecteurFiches {
  public:
    explicit LecteurFiches(const FichierFiches& fichier);
    /// Record `k`; valid until the next call.
    [[nodiscard]] const QsoRecord& Lire(NumeroFiche k);

  private:
    const FichierFiches& fichier_;
    std::vector<QsoRecord> bloc_;
    NumeroFiche premiere_; ///< record of bloc_[0]; none while nothing was read
};

/// Records that one indivisible write replaces at most (see projection.h).
inline constexpr std::size_t kFichesParPiece = kPlusGrandePiece / kTailleFiche;

/// The bytes of neighbouring records, and where record `k` lies in the file.
[[nodiscard]] std::span<const char> OctetsFiches(std::span<const QsoRecord> fiches);
[[nodiscard]] constexpr std::int64_t PositionFiche(NumeroFiche k) {
    return (static_cast<std::int64_t>(k.Valeur()) - 1) * static_cast<std::int64_t>(kTailleFiche);
}

/// Records in a block of a sequential scan (about a quarter of a megabyte).
inline constexpr std::size_t kFichesParBloc = 1600;

} // namespace orvalis
