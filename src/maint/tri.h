// The sort of the logbook: five passes of an exchange walk over the file itself, which brings the
// contacts into the order of year, month, day, hour and minute of their start.
//
// The walk. At position p it compares records p and p+1. When the pass's condition holds it
// exchanges them and steps back two places (not below 1), otherwise one place forward; the pass
// ends when p reaches N. No key is kept from one step to the next: each is read afresh from the
// two records where they lie in the file.
//
// What reaches the file. An exchange is one contiguous write that a kill cannot cut in two (see
// core/projection.h). A write of its own for each of the seventeen million exchanges of a large
// logbook would cost 5 to 17 seconds, so exchanges in a row that carry the same record further
// back reach the file together, at most 23 at a time, as one write of the places concerned. The
// file therefore stands at every instant as the walk itself had it at some moment, and holds
// every contact exactly once; between two calls of Avancer it stands exactly where Etat says.
//
// Before each slice of the walk (Avancer) it is asked whether the logbook is still the one that was
// counted: one that another program has replaced, changed or cut short is not sorted on. The
// records are read where they lie mapped into memory, so a cut that falls into a slice, which takes
// a fraction of a millisecond, still ends the program with a signal and no message.
#pragma once

#include "core/cahier.h"
#include "core/projection.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace orvalis {

inline constexpr int kNbPasses = 5;

/// How far the sort has come.
struct EtatTri {
    int passe = 1;             ///< 1 to 5
    std::int32_t position = 1; ///< p; 1 again when the sort has ended
    std::int64_t pas = 0;      ///< steps so far, over all passes
    std::int64_t echanges = 0; ///< exchanges so far
    bool termine = false;
    bool interrompu = false; ///< ended before its time: another program has changed the logbook
};

/// The word shown during a pass (1 to 5).
[[nodiscard]] std::string_view MotDePasse(int passe);

/// One sort under way; it may be dropped at any instant and leaves a logbook with all its contacts.
class Tri {
  public:
    /// Sorts the contacts of `cahier`, which is counted, must outlive this object and stay open
    /// meanwhile. Fewer than two: ended at once. A short last record is first filled up with
    /// blanks. Throws Erreur, also when the logbook may not be written or the storage cannot be
    /// mapped (Projeter).
    explicit Tri(Cahier& cahier);

    /// Walks on for at most `pasMax` steps, and not beyond the end of a pass; when the last pass
    /// ends, what was sorted is flushed to the disk. A few thousand steps take about a tenth of a
    /// millisecond. Where another program has changed the logbook, nothing is written and the sort
    /// has ended. Throws Erreur.
    void Avancer(std::int64_t pasMax);

    [[nodiscard]] const EtatTri& Etat() const noexcept { return etat_; }

  private:
    template<int passe> void Marcher(std::int64_t dernierPas);
    void MarcherPasse(std::int64_t dernierPas);
    [[nodiscard]] bool EstIntact() const;
    void FinirPasse();
    void PoserEchanges();
    [[nodiscard]] const char* Fiche(std::int32_t k) const;

    static constexpr std::int32_t kAucune = std::numeric_limits<std::int32_t>::max();

    Cahier& cahier_;
    std::int32_t nbFiches_;
    std::optional<Projection> projection_;
    EtatTri etat_;
    // Exchanges not yet in the file: the record that lies at fin_ belongs at debut_, and those
    // from debut_ to fin_ - 1 one place further.
    std::int32_t debut_ = kAucune;
    std::int32_t fin_ = 0;
    std::array<char, kPlusGrandePiece> anciens_ = {}; ///< what an exchange takes the place of
};

} // namespace orvalis
