// The sheet of sixteen QSL labels: its file, the state of each place, the label editor's boxes,
// and what the captions say. The window paints this state and changes it only through the
// procedures here and in vie_etiquette.h. File operations throw Erreur.
#pragma once

#include "core/fichier.h"
#include "core/numeros.h"
#include "qsl/qsl_slot_record.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace orvalis {

inline constexpr int kNbEtiquettes = kDernierePlace.Valeur();

inline constexpr std::string_view kVoieBureau = "BUREAU";
inline constexpr std::string_view kVoieDirect = "DIRECT";
inline constexpr std::string_view kPlusDEtiquette = " Plus d'étiquette disponible ! ";

enum class EtatEtiquette : unsigned char {
    Libre,    ///< free and available
    Preparee, ///< holds a label
    Retiree   ///< withdrawn: missing from the paper, not used; never written to the file
};

/// The route options of the label editor.
enum class VoieQSL : unsigned char { Aucune, Bureau, Direct };

/// Entry boxes FLdText 1 to 11; element 0 is unused.
inline constexpr std::size_t kNbBoitesEtiquette = 11;
using BoitesEtiquette = std::array<std::string, kNbBoitesEtiquette + 1>;

inline constexpr std::size_t kBoiteIndicatif = 1;
inline constexpr std::size_t kBoiteDate = 2;
inline constexpr std::size_t kBoiteHeure = 3;
inline constexpr std::size_t kBoiteFrequence = 4;
inline constexpr std::size_t kBoiteMode = 5;
inline constexpr std::size_t kBoiteReport = 6;
inline constexpr std::size_t kBoiteLigne1 = 7;
inline constexpr std::size_t kBoiteLigne2 = 8;
inline constexpr std::size_t kBoiteManager = 9;
inline constexpr std::size_t kBoiteRappel = 10; ///< second display of the callsign
inline constexpr std::size_t kBoiteNumeroFiche = 11;

/// What is on show.
struct VueFeuille {
    bool panneau = false;   ///< PictFeuilleQSL
    bool valider = false;   ///< BtValidQSL
    bool supprimer = false; ///< BtDelQSL
    bool laisser = false;   ///< BtLeaveQSL
    bool quitter = true;    ///< BtQuitQSL
    bool imprimer = false;  ///< BtPrintQSL
    bool restaurer = false; ///< BtRestore
    bool controle = false;  ///< PictCtrlImpression; meanwhile only its two buttons act
    std::string nrTag;      ///< caption NrTag

    friend bool operator==(const VueFeuille&, const VueFeuille&) = default;
};

/// What the boxes of the label editor are called, by their numbers (from 1). In a review the
/// captions of mode and report change places (vie_etiquette.h).
inline constexpr std::array<std::string_view, kNbBoitesEtiquette + 1> kNomsBoitesEtiquette = {
    "",          "Indicatif", "Date",     "UTC",         "Fréquence", "Mode",
    "RST donné", "En-tête",   "Remarque", "QSL manager", "Contact",   "Fiche N°"};

/// The records of all places.
using EtiquettesDeFeuille = std::array<QslSlotRecord, kNbEtiquettes>;

/// What the sheet and the label editor show.
struct EtatFeuille {
    std::array<EtatEtiquette, kNbEtiquettes> etats{};
    std::array<std::string, kNbEtiquettes> indicatifs; ///< callsigns of the prepared labels
    BoitesEtiquette boites;
    VoieQSL voie = VoieQSL::Aucune;
    bool fraiche = false;       ///< the boxes hold a label that was never on the sheet
    Place etiquetteEnCours;     ///< place under edit; none while there is no label
    std::string ligneMemorisee; ///< first text line of the last label validated in this run
    QslSlotRecord tampon;       ///< label last read or written
    /// What the screen stands for: the labels as the file was loaded or written last.
    EtiquettesDeFeuille connue;
    VueFeuille vue;

    [[nodiscard]] EtatEtiquette Etat(Place place) const { return etats[Rang(place)]; }
    /// Element of the arrays for a place.
    [[nodiscard]] static constexpr std::size_t Rang(Place place) {
        return static_cast<std::size_t>(place.Valeur()) - 1;
    }
    friend bool operator==(const EtatFeuille&, const EtatFeuille&) = default;
};

/// The sheet with its file.
struct FeuilleQSL : EtatFeuille {
    std::filesystem::path chemin;
    Fichier fichier;
};

/// The two buttons of one place.
struct VuePlace {
    std::string legendeChoix; ///< BtChoix: "Effacer", "Retirer" or "Libérer"
    std::string legendeTag;   ///< BtTag
    bool jaune = false;       ///< BtChoix is yellow, else the form's ordinary colour
    bool tagActif = true;     ///< BtTag is enabled
};
[[nodiscard]] VuePlace VoirPlace(const EtatFeuille& feuille, Place place);

/// The place that the editor is about: the one under review, else the next free one.
[[nodiscard]] Place PlaceALEtude(const EtatFeuille& feuille);

/// "Etiquette N° " and the number.
[[nodiscard]] std::string LegendeEtiquette(Place place);

/// Opens the sheet file again, which stays open when that fails. A sheet that is missing, or empty
/// because its creation was cut, is first created as a whole, with sixteen free records; returns
/// whether it was.
bool OuvrirFeuilleQSL(FeuilleQSL& feuille);

/// Opens the sheet of the program folder `dossier` and sets the state of every place from it. A
/// missing or empty file is created; a short or damaged one is only read: what it lacks counts as
/// blank. Empties the boxes; places withdrawn before are free again.
void ChargerFeuilleQSL(FeuilleQSL& feuille, const std::filesystem::path& dossier);

/// Opens what now lies at the sheet's path and compares it with what the screen stands for. Where
/// another program replaced, changed or removed it, sets the state of every place anew and returns
/// what the operator must be told; the label in the editor stays. Empty when nothing changed.
[[nodiscard]] std::string SuivreFeuille(FeuilleQSL& feuille);

/// The record of a place, blank beyond the end of the file. For the printer and for checks:
/// changes nothing.
[[nodiscard]] QslSlotRecord LireEnregistrement(const FeuilleQSL& feuille, Place place);

/// The record that EcrireEtiquette would write from the boxes and the route option.
[[nodiscard]] QslSlotRecord EtiquetteDesBoites(const EtatFeuille& feuille);

/// Reads a place into the boxes and the route option; NrTag names it.
void LireEtiquette(FeuilleQSL& feuille, Place place);

/// Opens the sheet again and writes a place from the boxes and the route option. The caller has
/// seen to it that the place is what the screen says (SuivreFeuille), and flushes
/// (feuille.fichier.Synchroniser()).
void EcrireEtiquette(FeuilleQSL& feuille, Place place);

/// From `place` upward, the first free one, or 16 when there is none. NrTag names it; when 16
/// was reached and is withdrawn, NrTag says that there is no label left and BtValidQSL goes.
void ProchaineEtiquetteLibre(EtatFeuille& feuille, Place& place);

/// Empties boxes 1 to `derniere` and turns both route options off.
void ViderBoites(FeuilleQSL& feuille, std::size_t derniere = kNbBoitesEtiquette);

} // namespace orvalis
