// The whole logbook, read without a lock while the main program may write it.
#pragma once

#include "core/qso_record.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <vector>

namespace orvalis {

/// A logbook at one moment.
struct CahierLu {
    std::vector<QsoRecord> fiches; ///< records 1 to N
    bool finPresente = false;      ///< an end-of-log record stands behind them
    bool longueurEntiere = true;   ///< the file is a whole number of records
};

/// What came out of a logbook that was led out, whatever into.
struct BilanSortie {
    std::size_t contacts = 0;
    std::size_t sansDate = 0; ///< contacts whose date cannot be read, which ADIF readers leave out
    bool finPresente = true;  ///< see CahierLu
    bool longueurEntiere = true;
};

/// How to wait for a logbook that is being rewritten.
struct Patience {
    /// Called when two readings differ; false when it has lasted long enough.
    std::function<bool()> encore;
    /// Called between two readings.
    std::function<void()> entre = [] {};
};
/// A tenth of a second each time, five seconds in all.
[[nodiscard]] Patience CinqSecondes();

/// More contacts than this are no logbook (the list shows 32,767): they would not fit into memory.
inline constexpr std::size_t kContactsMax = 200'000;

/// Reads the logbook until two readings agree. Throws Erreur when it cannot be read, RefusEchange
/// when it never comes to rest or has too many contacts.
[[nodiscard]] CahierLu LireCahierEntier(const std::filesystem::path& chemin,
                                        const Patience& patience = CinqSecondes());

} // namespace orvalis
