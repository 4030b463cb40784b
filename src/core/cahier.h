// The logbook: its open file, the number of its contacts, and what is done to them by record
// number. All of it throws Erreur when the system refuses a file operation; it concerns the logbook
// (ConcerneLeCahier) from the moment the file is open and locked.
#pragma once

#include "core/fichier_fiches.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace orvalis {

/// The logbook on show.
struct Cahier {
    FichierFiches fichier;
    std::filesystem::path chemin; ///< of the open file
    std::string autre;            ///< name of another logbook on show; empty for our own
    /// Another logbook whose name is not the station's callsign: it may only be looked at.
    bool lectureSeule = false;
    std::int32_t nbFiches = 0; ///< N, the number of contacts

    /// The station's own logbook, not one opened as "another", whatever its name.
    [[nodiscard]] bool EstLeNotre() const { return autre.empty(); }
    /// Where the next contact will be written.
    [[nodiscard]] NumeroFiche Prochaine() const { return Derniere() + 1; }
    /// The last contact; none in a logbook without.
    [[nodiscard]] NumeroFiche Derniere() const { return NumeroFiche{nbFiches}; }
    /// Whether record `k` is one of the contacts.
    [[nodiscard]] bool Contient(NumeroFiche k) const {
        return k >= kPremiereFiche && k <= Derniere();
    }
};

/// Opens `chemin` in place of the file that was open, and locks it; N is not counted, whose
/// logbook it is not settled. A file that may not be written is opened for reading only when
/// `lectureSeulePermise` is set. When this throws, also because another program has the file open,
/// the old file stays open. That concerns the logbook only where `chemin` is its own path: then
/// another program put a file there that is not to be had.
void OuvrirCahier(Cahier& cahier, const std::filesystem::path& chemin,
                  bool lectureSeulePermise = false);

/// Counts the contacts up to the end-of-log record: sets N. The file stays open, since its lock
/// hangs on it; only a file put in its place is opened anew.
void CompterFiches(Cahier& cahier);

/// Record `k` (from 1); blank beyond the end of the file.
[[nodiscard]] QsoRecord FicheDuCahier(const Cahier& cahier, NumeroFiche k);

/// Puts `fiche` in the place of record `k` in one indivisible write. The caller flushes
/// (SynchroniserCahier).
void CorrigerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& fiche);

/// Writes `contact` as record N + 1 and `fin`, the end-of-log record, behind it, in one indivisible
/// write that has reached the disk on return. N grows by one.
void AjouterFiche(Cahier& cahier, const QsoRecord& contact, const QsoRecord& fin);

/// Deletes record `k` (1 to N): every later record moves down one place and an end-of-log record
/// with `monLocator` takes the place of the last. Killed at any instant, the file holds every other
/// contact exactly once, with the deleted one or a blank record somewhere until the end. The file
/// keeps its length and has reached the disk on return; N shrinks by one.
void SupprimerFiche(Cahier& cahier, NumeroFiche k, std::string_view monLocator);

/// Returns once what was written has reached the disk.
void SynchroniserCahier(Cahier& cahier);

/// Whether the logbook holds an end-of-log record and a whole number of records.
struct EtatCahier {
    bool finPresente = false;
    bool longueurEntiere = false;
};
/// For a logbook that is counted.
[[nodiscard]] EtatCahier ExaminerCahier(const Cahier& cahier);

} // namespace orvalis
