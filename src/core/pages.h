// The logbook in pages of twenty-five contacts, and the texts of the log list.
#pragma once

#include "core/numeros.h"
#include "core/qso_record.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

/// Characters of a record number and of a callsign in the lists of the screen.
inline constexpr std::size_t kLargeurNumero = 6;
inline constexpr std::size_t kIndicatifListe = 10;
/// Characters of a line of the log list, and of one of the contacts list.
inline constexpr std::size_t kLargeurLigneListe = 40;
inline constexpr std::size_t kLargeurTexteContact = 40; ///< what stands behind its number
inline constexpr std::size_t kLargeurLigneContact = kLargeurNumero + kLargeurTexteContact;

inline constexpr std::int32_t kFichesParPage = 25;
/// The list numbers contacts in 16 bits; what lies beyond is counted and kept, but not listed.
inline constexpr std::int32_t kDerniereListable = 32767;

/// Pages that `nbFiches` contacts fill; none fill one page too.
[[nodiscard]] std::int32_t CalculerPages(std::int32_t nbFiches);

/// Page that holds record `k`, from 1.
[[nodiscard]] inline std::int32_t PageDeFiche(NumeroFiche k) {
    return CalculerPages(k.Valeur());
}

struct PlagePage {
    NumeroFiche premiere = kPremiereFiche; ///< first record of the page
    NumeroFiche derniere;                  ///< last record; below `premiere` when the page is empty
};

/// The page on show.
struct PageAffichee {
    std::int32_t numero = 1; ///< from 1
    /// F, its first record; none after a blank page was printed
    NumeroFiche premiere = kPremiereFiche;
    NumeroFiche derniere; ///< its last record
};

/// Records of page `page` (from 1) in a logbook of `nbFiches` contacts.
[[nodiscard]] PlagePage CalculerPlage(std::int32_t page, std::int32_t nbFiches);

/// Line of the log list for record `k`: kLargeurLigneListe characters, number, callsign, date and
/// start time.
[[nodiscard]] std::string LigneListe(NumeroFiche k, const QsoRecord& fiche);

/// Record number that begins a line of the log list or of the contacts list.
[[nodiscard]] NumeroFiche NumeroDeLigne(std::string_view ligne);

/// The paging buttons.
enum class BoutonPage { Premiere, Precedente, Suivante, Derniere };

enum class ToucheListe { PagePrecedente, PageSuivante, Haut, Bas };

/// Where a key of the log list leads: a page and the line that becomes current there.
struct MouvementListe {
    std::int32_t page = 1;
    bool derniereLigne = false; ///< the last line of the page instead of the first
};

/// Page move of a key pressed in the log list while record `courante` is on the card and the
/// line `ligne` (from 0, -1 for none) is selected; nothing when the key moves no page.
[[nodiscard]] std::optional<MouvementListe> PageDeTouche(ToucheListe touche, NumeroFiche courante,
                                                         int ligne, std::int32_t nbPages);

} // namespace orvalis
