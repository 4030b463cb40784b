// Browsing: pages, the log list, the card of the record on show.
#pragma once

#include "core/pages.h"
#include "ui/panneau_liste.h"
#include "ui/plateau.h"

#include <cstdint>

namespace orvalis {

/// Shows page `page` (from 1) in the list and on the sheet; no line is selected. Sets the page on
/// show and its first record, and the paging buttons.
void MontrerPage(Plateau& p, std::int32_t page);

/// Shows the name of the open logbook, how many contacts it holds, and whether it is read-only.
void MontrerNomDuJournal(Plateau& p);

/// Recounts the logbook, sets the scroll bar's range and shows the last page.
void RemplirListe(Plateau& p);

/// Line (from 0) of record `k` in the list; -1 when the page on show does not hold it.
[[nodiscard]] int LigneDeFiche(const Plateau& p, std::int32_t k);

/// Selects a line of the list (from 0). Counts as a click on it, except during entry.
void SelectionnerLigne(Plateau& p, int ligne);

/// The same with the last line.
void SelectionnerDerniereLigne(Plateau& p);

/// Makes record `k` the current one and shows its card. Changes of the old card that wait for an
/// answer are dropped. Does nothing during entry.
void ChoisirFiche(Plateau& p, std::int32_t k);

/// Shows the card of the current record; a card under entry is never overwritten.
void AfficherFiche(Plateau& p);

void SurBoutonPage(Plateau& p, BoutonPage bouton);
void SurDefilement(Plateau& p, int valeur);
/// Returns whether the key moved a page.
[[nodiscard]] bool SurToucheListe(Plateau& p, ToucheListe touche);

} // namespace orvalis
