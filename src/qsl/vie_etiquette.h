// The life of a QSL label, without widgets: from the card to the sheet, to the print, and back to
// the card. Every action changes the sheet's state (feuille.vue and what VoirPlace says), which
// the window paints afterwards, and answers with what else the operator must see. While the print
// check is on show only its two buttons act; the other actions then change nothing.
//
// The sheet and the contact are two files. A label is placed before its contact is marked, and a
// contact is marked before its label is freed, each flushed before the next: a program killed in
// between leaves a label too many, which PreparerEtiquette or SupprimerEtiquette repairs, never a
// contact "En cours" without its label. On a logbook opened as "another", a copy of the own one
// included, nothing is written.
//
// Other programs may replace, change or remove the sheet. What writes, prints or frees a place
// first sees to it that the sheet is what the screen says; otherwise it does nothing but show and
// tell.
#pragma once

#include "core/cahier.h"
#include "qsl/feuille_qsl.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// What a procedure of the sheet came to.
struct ReponseQSL {
    bool fait = false;   ///< the action was carried out
    bool marque = false; ///< MQSL of a contact was written, perhaps that of the one on the card
    std::string message; ///< French, for a message box; empty when there is nothing to say
};

/// Shows the panel: an empty editor, no review, NrTag on the next free place, print button as
/// needed. The caller has seen to it that the sheet is loaded and no other panel is busy. The
/// message tells of a sheet that another program changed.
[[nodiscard]] ReponseQSL MontrerFeuille(FeuilleQSL& feuille);

/// What the press on box 14 came to.
enum class SuiteClic {
    Ordinaire, ///< an ordinary press: MQSL is not empty, or nothing may be placed
    Panneau,   ///< the panel is open, its boxes filled from the contact
    Retabli    ///< the contact was on a label already; only "En cours" was set
};
struct ReponseClic {
    SuiteClic suite = SuiteClic::Ordinaire;
    ReponseQSL reponse;
};

/// The press on box 14 of the stored contact `k` (1 to N): when its MQSL is empty, opens the panel
/// and fills a fresh label from the contact.
[[nodiscard]] ReponseClic PreparerEtiquette(Cahier& cahier, FeuilleQSL& feuille, NumeroFiche k);

/// BtChoix of a place: opens a prepared label for review, withdraws a free place, releases a
/// withdrawn one.
void CliquerChoix(FeuilleQSL& feuille, Place place);

/// BtTag, of any place that is not withdrawn: ends a review and starts an empty label that keeps
/// the remembered text line.
void CliquerTag(FeuilleQSL& feuille, Place place);

/// The operator typed: box `boite` (1 to 11) holds `texte`. A manager turns the route options off.
void SaisirBoiteEtiquette(FeuilleQSL& feuille, std::size_t boite, std::string_view texte);

/// Enter in any box: shows BtValidQSL unless box 1 holds "***".
void EntrerBoiteEtiquette(EtatFeuille& feuille);

/// A route option was chosen: empties the manager box, shows BtValidQSL.
void ChoisirVoie(EtatFeuille& feuille, VoieQSL voie);

/// What BtValidQSL comes to: the place that the label takes, or why it takes none. The search for
/// the place shows in NrTag: who only wants to know asks on a copy.
struct ProjetEtiquette {
    Place place = kAucunePlace;
    std::string_view refus; ///< as NrTag says it; empty when there is a place
};
[[nodiscard]] ProjetEtiquette ProjeterEtiquette(const Cahier& cahier, EtatFeuille& feuille);

/// BtValidQSL: puts the fresh label on the first free place, marks its contact "En cours" (the one
/// that it numbers, else the one that its confirmation will take) and closes the panel. Without a
/// fresh label, a callsign and a place it writes nothing and NrTag says why (`fait` is false). The
/// message names a label that has no contact.
[[nodiscard]] ReponseQSL ValiderEtiquette(Cahier& cahier, FeuilleQSL& feuille);

/// BtDelQSL, during a review: empties the contact's MQSL and frees the place. The message names a
/// label that had no contact and says why; nothing is said where MQSL was blank already.
[[nodiscard]] ReponseQSL SupprimerEtiquette(Cahier& cahier, FeuilleQSL& feuille);

/// BtLeaveQSL: ends the review, empties the boxes; the label stays as it was.
void LaisserEtiquette(FeuilleQSL& feuille);

/// BtQuitQSL: hides the panel.
void QuitterFeuille(FeuilleQSL& feuille);

/// BtRestore: releases every withdrawn place and goes.
void RestaurerFeuille(FeuilleQSL& feuille);

/// Shows BtPrintQSL exactly when a place from `depuis` on holds a prepared label. Operators see it
/// asked of the whole sheet, from place 1, everywhere.
void ControlerImpression(FeuilleQSL& feuille, Place depuis = kPremierePlace);

/// BtPrintQSL: `fait` when the labels may be printed. Not while another logbook is on show, whose
/// contacts they are not: the message names the one of `station`, which is to be reopened.
[[nodiscard]] ReponseQSL AutoriserImpression(const Cahier& cahier, FeuilleQSL& feuille,
                                             std::string_view station);

/// The places that BtPrintQSL prints, all on one sheet.
[[nodiscard]] std::vector<Place> EtiquettesAImprimer(const EtatFeuille& feuille);

/// The sheet was printed (neither cancelled nor failed): shows the print check.
void DemanderControle(FeuilleQSL& feuille);

/// BtCtrl_Parfait: the contact of every prepared label gets `aujourdhui` (dd/mm/yy) as MQSL, then
/// every such place is freed, whatever was on the paper, and the panel closes. The message names
/// the labels that had no contact.
[[nodiscard]] ReponseQSL ToutEstParfait(Cahier& cahier, FeuilleQSL& feuille,
                                        std::string_view aujourdhui);

/// BtCtrl_Revoir: hides the print check; the labels stay.
void RevoirEtiquettes(FeuilleQSL& feuille);

} // namespace orvalis
