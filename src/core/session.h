// Everything the program knows while it runs: one plain struct, owned by the main window and
// passed by reference to who needs it.
#pragma once

#include "core/journal.h"
#include "core/qso_record.h"
#include "geo/distance.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace orvalis {

/// Slots 1 to 16 hold the fields, 13 and 17 the two halves of INFO, 0 the whole INFO.
inline constexpr std::size_t kNbZones = 18;
inline constexpr std::size_t kLargeurDemiInfo = 15;
using Zones = std::array<std::string, kNbZones>;

/// Slot and box numbers used by name.
inline constexpr std::size_t kZoneInfo = 0;
inline constexpr std::size_t kZoneRemarque = 13;
inline constexpr std::size_t kZoneManager = 17;

/// State of the entry boxes; it lives as long as the main window.
struct EtatSaisie {
    bool EnSaisie = false;       ///< a new contact is being entered
    bool EnModification = false; ///< a box of a stored card was pressed
    bool QsoCommence = false;    ///< the callsign of the contact under entry is confirmed
    bool tempsReel = true;       ///< " Réel" (date and times from the clock) or "Différé"
    std::int16_t NbModifs = 0;   ///< fields of the stored card changed and not yet answered for
    std::int16_t DerniereZone = 1;
    std::string DerniereDate;
    std::string DerniereFreq;
    std::string DernierMode;
    std::string TexteSaisi; ///< text of the box being edited
    std::string remarque;   ///< 15 characters, set by Enter in box 13
    std::string manager;    ///< 15 characters, set by Enter in box 17
};

struct Session {
    std::filesystem::path lecteur;       ///< the drive (see dossier.h)
    std::filesystem::path cheminJournal; ///< the open logbook
    Journal journal;                     ///< file 1
    std::string indicatif;               ///< station callsign
    std::string nomFichier;              ///< logbook name in the Settings file
    std::string monLocator;              ///< own locator, 6 characters
    std::string autreJournal;            ///< name of another logbook on show; empty for our own
    std::int32_t nbFiches = 0;           ///< N
    std::int32_t ficheCourante = 0;      ///< k, the record on the card; 0 while there is none
    std::int32_t prochaineFiche = 1;     ///< where the next contact will be written
    std::int32_t pageAffichee = 1;
    std::int32_t premiereAffichee = 1; ///< first record of the page on show
    Zones zones;                       ///< working slots
    QsoRecord tampon;                  ///< record buffer: the record last read or written
    EtatSaisie saisie;
    MemoireDistance memoireDistance; ///< last coordinates of the distance routine

    /// A contact is under entry, or a stored card is under modification.
    [[nodiscard]] bool EnEdition() const {
        return saisie.EnSaisie || saisie.EnModification || saisie.NbModifs != 0;
    }
    /// The station's own logbook is on show, not one opened as "another", whatever its name.
    [[nodiscard]] bool JournalPropre() const { return autreJournal.empty(); }
    /// Another logbook whose name is not the station's callsign may only be looked at.
    [[nodiscard]] bool LectureSeule() const {
        return !JournalPropre() && autreJournal != indicatif;
    }
};

} // namespace orvalis
