// The logbook: its open file, the number of its contacts, and what is done to them by record
// number. All of it throws Erreur when the system refuses a file operation; it concerns the logbook
// (ConcerneLeCahier) from the moment the file is open and locked.
//
// The path of a logbook may come to name another file while it is open (a synchronised folder, a
// backup put back), or another program may write into the file. Whoever writes therefore asks first
// (VerifierCahier), and what is written in the place of a contact takes along what that contact was
// when it was shown. Nobody asks afterwards, when the contact is already in a file without a name.
#pragma once

#include "core/fichier_fiches.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// The logbook on show.
struct Cahier {
    FichierFiches fichier;
    std::filesystem::path chemin; ///< of the open file
    std::string autre;            ///< name of another logbook on show; empty for our own
    /// Another logbook whose name is not the station's callsign, or whose file may not be written:
    /// it may only be looked at.
    bool lectureSeule = false;
    std::int32_t nbFiches = 0; ///< N, the number of contacts
    /// Their callsigns as they were counted or have been changed since, so that who asks for one at
    /// every contact need not read the whole file.
    std::vector<OctetsIndicatif> indicatifs;

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
/// the old file stays open; it is CahierPerdu where `chemin` is the path of that file, where
/// another program put one that is not to be had, or none.
void OuvrirCahier(Cahier& cahier, const std::filesystem::path& chemin,
                  bool lectureSeulePermise = false);

/// Counts the contacts up to the end-of-log record: sets N. The file stays open, since its lock
/// hangs on it; only a file put in its place is opened anew. Where that is not to be had, the file
/// still open is counted, and the next who writes says so.
void CompterFiches(Cahier& cahier);

/// Whether the logbook is as it was counted: its path names the open file, and record N + 1 is the
/// first end-of-log record, or the file ends with record N. Costs a look at the folder and a small
/// read.
[[nodiscard]] bool EstTelQueCompte(const Cahier& cahier);

/// Throws CahierPerdu when the path of the logbook no longer names the open file and what is there
/// cannot be had either: what is open is then the last file that has every contact. Opens, counts
/// and changes nothing.
void ExigerCahier(const Cahier& cahier);

/// What everybody asks who is about to write: a logbook that is no longer as it was counted is
/// opened, locked and counted anew. Throws CahierPerdu when that cannot be; nothing may then be
/// written.
void VerifierCahier(Cahier& cahier);

/// The same for what concerns record `k`. Returns false when record `k` is no longer `montree`, the
/// contact that was shown as such.
[[nodiscard]] bool VerifierFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree);

/// Record `k` (from 1); blank beyond the end of the file.
[[nodiscard]] QsoRecord FicheDuCahier(const Cahier& cahier, NumeroFiche k);

/// Puts `fiche` in the place of record `k`, provided that it still is `montree`, in one indivisible
/// write. The caller flushes (SynchroniserCahier). Returns false, having written nothing, when
/// another program has changed the logbook and the correction no longer fits.
[[nodiscard]] bool CorrigerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree,
                                 const QsoRecord& fiche);

/// Writes `contact` as record N + 1 and `fin`, the end-of-log record, behind it, in one indivisible
/// write that has reached the disk on return. N grows by one; it is counted anew before when
/// another program has changed the logbook. When it throws, the contact is not in the file.
void AjouterFiche(Cahier& cahier, const QsoRecord& contact, const QsoRecord& fin);

/// Runs `ecrire`, which writes from record N + 1 on. When it throws, the former record N + 1 is put
/// back and flushed, then the file taken back to its length, as far as the disk lets it.
void AllongerCahier(Cahier& cahier, const std::function<void()>& ecrire);

/// Deletes record `k`, provided that it still is `montree`: every later record moves down one place
/// and an end-of-log record with `monLocator` takes the place of the last. Killed at any instant,
/// the file holds every other contact exactly once, with the deleted one or a blank record
/// somewhere until the end; a power cut meanwhile may lose contacts and double others, as in a
/// sort. When it throws, the contact is put in the place of that blank. The file
/// keeps its length and has reached the disk on return; N shrinks by one. Returns false, having
/// written nothing, when another program has changed the logbook and the deletion no longer fits.
[[nodiscard]] bool SupprimerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree,
                                  std::string_view monLocator);

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
