// Correction of a stored card, field by field, and the question that confirms it.
#pragma once

#include "ui/carte/saisie.h"

#include <string>
#include <string_view>

namespace orvalis {

/// The Enter key in `boite` of a stored card under modification: checks TexteSaisi, puts it into
/// the slot and counts the change in NbModifs. Nothing is written to the file before the question
/// is answered with Oui.
[[nodiscard]] Reponse ModifierZone(const Carte& carte, Boite boite);

/// The question that asks whether to store the changes of the card on show.
[[nodiscard]] Question QuestionModifier(const Carte& carte);

/// The question that asks whether to delete the card on show.
[[nodiscard]] Question QuestionEffacer(const Carte& carte);

/// Whether Oui and Non answer for a deletion; else for the changes that NbModifs counts.
[[nodiscard]] inline bool DemandeEffacement(const Carte& carte) {
    return carte.saisie.NbModifs == 0;
}

/// Colours and state once Oui has stored the changes (EcrireFiche comes first).
[[nodiscard]] Carte RepondreOui(const Carte& carte);

/// Colours, labels and state when Non drops the changes; the record is then read and shown again.
/// Without changes (a deletion was asked) only the state is reset.
[[nodiscard]] Carte RepondreNon(const Carte& carte);

/// Forgets changes not yet answered for; for every change of the record on show.
void OublierModifications(EtatSaisie& saisie);

/// Number that a text begins with, blanks, sign and decimals allowed, rounded half to even;
/// 0 without one. Kept within 16 bits by saturation.
[[nodiscard]] int ArrondirNombre(std::string_view texte);

} // namespace orvalis
