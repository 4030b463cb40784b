// The operations on contacts through which every screen reads and writes the open logbook.
// All of them throw ErreurFichier when the system refuses a file operation.
#pragma once

#include "core/session.h"

#include <cstdint>

namespace orvalis {

/// Thrown when another copy of the program has the logbook open; what() is its path.
class ErreurVerrou : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Opens `chemin` as the session's logbook in place of the one that was open, and locks it. A
/// file that may not be written is opened for reading only when `lectureSeulePermise` is set.
/// The old logbook stays open when this throws (ErreurFichier, ErreurVerrou).
void OuvrirJournal(Session& session, const std::filesystem::path& chemin,
                   bool lectureSeulePermise = false);

/// Counts the open logbook up to its end-of-log record: sets N and the next record number. The
/// file stays open, since its lock hangs on it; only a file put in its place is opened anew.
void CompterFiches(Session& session);

/// Reads record `k` (from 1) into the record buffer and the working slots: slots 1 to 17 trimmed,
/// slot 0 the whole INFO, 13 and 17 its halves.
void LireFiche(Session& session, std::int32_t k);

/// Writes record `k` from the working slots: 1 to 12, 0 as INFO, 14 to 16, each padded or cut to
/// its width. Checks and converts nothing else.
void EcrireFiche(Session& session, std::int32_t k);

/// The record that EcrireFiche would write.
[[nodiscard]] QsoRecord FicheDesZones(const Zones& zones);

/// Slots of a record, as LireFiche leaves them.
[[nodiscard]] Zones ZonesDeFiche(const QsoRecord& fiche);

/// Writes the contact in the working slots at the next record number and `fin`, the end-of-log
/// record, behind it, in one indivisible write that has reached the disk on return. N grows by one.
void AjouterFiche(Session& session, const QsoRecord& fin);

/// Deletes record `k` (1 to N): every later record moves down one place and an end-of-log record
/// takes the place of the last. Killed at any instant, the file holds every other contact exactly
/// once, with the deleted one or a blank record somewhere until the end. The file keeps its length;
/// the working slots are emptied, N shrinks by one.
void SupprimerFiche(Session& session, std::int32_t k);

/// Whether the logbook holds an end-of-log record and a whole number of records.
struct EtatJournal {
    bool finPresente = false;
    bool longueurEntiere = false;
};
[[nodiscard]] EtatJournal ExaminerJournal(const Session& session);

} // namespace orvalis
