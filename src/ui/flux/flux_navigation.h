// Browsing: pages, the log list, the card of the record on show.
#pragma once

#include "core/pages.h"
#include "ui/flux/plateau.h"

#include <cstdint>
#include <limits>

namespace orvalis {

/// Reads page `page` (from 1) and shows it in the list and on the sheet; no line is selected. Sets
/// the page on show, its first and last record, and the scroll bar.
void MontrerPage(Plateau& p, std::int32_t page);

/// Recounts the logbook, shows page `page`, or the last one when there are fewer, and selects its
/// last line, which shows that card, except during entry; without contacts, an empty card.
void RelireCahier(Plateau& p, std::int32_t page = std::numeric_limits<std::int32_t>::max());

/// Another program has changed the logbook, and what was meant for the card on show no longer fits:
/// shows the card anew and tells the operator.
void DireFicheChangee(Plateau& p);

/// The page on show, or the last one when there are fewer, read again; the line that was selected
/// stays selected, and the card as it is.
void RelirePage(Plateau& p);

/// Line (from 0) of record `k` in the list; -1 when the page on show does not hold it.
[[nodiscard]] int LigneDeFiche(const Plateau& p, NumeroFiche k);

/// A line of the list (from 0) was chosen: it is selected, and its card shown except during entry.
void ChoisirLigne(Plateau& p, int ligne);

/// A row of the sheet, by its record: the same as its line, except during entry.
void ChoisirRangee(Plateau& p, NumeroFiche k);

/// Makes record `k` the current one and shows its card. Changes of the old card that wait for an
/// answer are dropped. Does nothing during entry.
void ChoisirFiche(Plateau& p, NumeroFiche k);

/// The same for a contact found by a search; unless a card is under modification, list and sheet
/// turn to its page, on which it is selected.
void MontrerContact(Plateau& p, NumeroFiche k);

/// Shows the card of the current record; a card under entry is never overwritten.
void AfficherFiche(Plateau& p);

/// The log list takes what the operator does again, unless a panel that wants it quiet is on show.
void RendreListe(Plateau& p);

/// A paging button. Back selects the first line of the page, forward none.
void SurBoutonPage(Plateau& p, BoutonPage bouton);
/// The scroll bar stands at record `valeur`: the list turns to its page.
void SurDefilement(Plateau& p, std::int32_t valeur);
/// Returns whether the key moved a page.
[[nodiscard]] bool SurToucheListe(Plateau& p, ToucheListe touche);

} // namespace orvalis
