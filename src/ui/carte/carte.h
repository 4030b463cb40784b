// The card: the contact that the window shows or takes down, with what each of the seventeen boxes
// shows beside its slot, and the state of entry and correction. One plain struct, without Qt.
#pragma once

#include "core/cahier.h"
#include "core/station.h"
#include "geo/distance.h"
#include "ui/carte/zones.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

/// Colours of a box, under the codes that ColorerZone takes.
enum class Couleur : std::uint8_t {
    Repos = 1,      ///< a box at rest: the palette's own background
    Gris = 2,       ///< kept for whoever passes a colour by its code: no box uses it
    JauneClair = 3, ///< box 1 at rest
    RougeClair = 4, ///< a box of a stored card under modification
    VertClair = 5   ///< the box that has the focus during entry
};

struct Rvb {
    std::uint8_t rouge = 0;
    std::uint8_t vert = 0;
    std::uint8_t bleu = 0;
    friend bool operator==(const Rvb&, const Rvb&) = default;
};

/// Background of a box; nothing for Repos, which is the palette's.
[[nodiscard]] std::optional<Rvb> FondDe(Couleur couleur);

/// Rest colour of a box that lost the focus: that of the callsign has one of its own.
[[nodiscard]] constexpr Couleur CouleurAuRepos(Boite boite) {
    return boite == Boite::Indicatif ? Couleur::JauneClair : Couleur::Repos;
}

/// What a box shows.
struct BoiteMontree {
    std::string texte;
    Couleur couleur = Couleur::Repos;
    friend bool operator==(const BoiteMontree&, const BoiteMontree&) = default;
};

/// State of the entry boxes; it lives as long as the main window.
struct EtatSaisie {
    bool EnSaisie = false;        ///< a new contact is being entered
    bool EnModification = false;  ///< a box of a stored card was pressed
    bool QsoCommence = false;     ///< the callsign of the contact under entry is confirmed
    bool tempsReel = true;        ///< " Réel" (date and times from the clock) or "Différé"
    std::int32_t NbModifs = 0;    ///< fields changed on the stored card, not yet answered for
    std::optional<Boite> pressee; ///< box that was pressed last, while EnModification
    Boite DerniereZone = Boite::Indicatif; ///< box that had the focus last
    std::string DerniereDate;
    std::string DerniereFreq;
    std::string DernierMode;
    std::string TexteSaisi; ///< the text that Enter will take
    std::string remarque;   ///< 15 characters, set by Enter in box 13
    std::string manager;    ///< 15 characters, set by Enter in box 17
};

inline constexpr const char* kNumeroDeCarteVide = "  Fiche N° 0  ";

struct Carte {
    NumeroFiche ficheCourante; ///< k, the record on the card; none while there is none
    QsoRecord tampon;          ///< record buffer: the record last read or written
    Zones zones;               ///< working slots
    std::array<BoiteMontree, kNbBoites> boites;
    std::string numero = kNumeroDeCarteVide; ///< NoFicheLab
    std::string distance;                    ///< LabDist
    std::string azimut;                      ///< LabAzim
    std::string departement;                 ///< LabDept
    EtatSaisie saisie;
    MemoireDistance memoireDistance; ///< last coordinates of the distance routine

    Carte();
    [[nodiscard]] const std::string& Texte(Boite boite) const { return boites[Rang(boite)].texte; }
    /// The boxes take text: a contact is under entry, or a box of a stored card was pressed.
    [[nodiscard]] bool PrendDuTexte() const { return saisie.EnSaisie || saisie.EnModification; }
    /// A contact under entry, or changes that wait for their answer: what a contacts list greys
    /// stays grey. A box merely pressed is no reason.
    [[nodiscard]] bool RetientLesBoutons() const { return saisie.EnSaisie || saisie.NbModifs != 0; }
    /// A contact is under entry, or a stored card is under modification.
    [[nodiscard]] bool EnEdition() const { return PrendDuTexte() || RetientLesBoutons(); }
};

/// Shows a text in a box. A text that changes what the box shows is also TexteSaisi: Enter takes
/// what was shown last.
void MontrerTexte(Carte& carte, Boite boite, std::string_view texte);

/// The operator, or a helper of his desktop, edited the text of a box. An edit that leaves the text
/// as it was is one too: Enter then takes it.
void SaisirTexte(Carte& carte, Boite boite, std::string_view texte);

/// Shows the slot of a box in it.
void MontrerZone(Carte& carte, Boite boite);

/// `ColorerZone`: the background of a box by a colour code.
void ColorerZone(Carte& carte, Boite boite, Couleur couleur);

/// All boxes in their resting colours.
void MettreAuRepos(Carte& carte);

/// Reads record `k` (from 1) into the record buffer, the working slots and the boxes. Throws
/// Erreur.
void LireFiche(Carte& carte, const Cahier& cahier, NumeroFiche k);

/// Writes record `k`, the one in the record buffer, from the working slots. The caller flushes.
/// Returns false when another program has changed the logbook and record `k` no longer is what the
/// buffer holds. Throws Erreur.
[[nodiscard]] bool EcrireFiche(Carte& carte, Cahier& cahier, NumeroFiche k);

/// The labels of record `k`, whose fields stand in the working slots. The distance goes from the
/// contact's own MLOC to its SLOC, unless they are equal: then "0 Km" and "...".
void MontrerLabels(Carte& carte, NumeroFiche k);

/// The true direction of the correspondent, when an azimuth is on show.
[[nodiscard]] std::optional<int> CapMontre(const Carte& carte);
/// Whether the azimuth points elsewhere than that: the correspondent is across the 180th meridian.
[[nodiscard]] bool AzimutTrompeur(const Carte& carte);

/// A card without contact: slots, boxes and labels empty, no record current.
void ViderCarte(Carte& carte);

/// NoFicheLab of the contact under entry that will be record `k`.
[[nodiscard]] std::string NumeroNouvelleFiche(NumeroFiche k);

} // namespace orvalis
