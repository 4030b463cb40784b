// Moves of the focus, and what a rule answered, carried out on the state before anything is
// painted: the box left behind shows its slot, the box that takes the focus offers its text or
// sends it back to box 1.
#pragma once

#include "ui/carte/ecran.h"
#include "ui/carte/saisie.h"

namespace orvalis {

/// Whether a control in the column of the card or beside it can take the focus: it is on show and
/// not grey. Of the label sheet and of controls that no rule names nothing is known here; a view
/// knows more (vue.h).
[[nodiscard]] bool Joignable(const Carte& carte, const Ecran& ecran, const Foyer& foyer);

/// A rule or a flow gives the focus to `cible`; the painter follows. Where it is already, nothing
/// is left or taken. What cannot take it leaves it where it is; with the focus nowhere the wish
/// stands all the same, for AccorderFoyer (vue.h) to grant elsewhere.
void DeplacerFoyer(Carte& carte, Ecran& ecran, const Station& station, const Foyer& cible);

/// The operator has moved the focus to `ici` by key or mouse.
void SuivreFoyer(Carte& carte, Ecran& ecran, const Station& station, const Foyer& ici);

/// Nothing has the focus any more, so that hiding or disabling controls pushes it nowhere.
void LacherFoyer(Carte& carte, Ecran& ecran);

/// Gives the focus back to the box that had it last. A box that has it, since its button was
/// pressed by key, keeps it with its text.
void RendreFoyerALaBoite(Carte& carte, Ecran& ecran, const Station& station);

/// The answer of a rule becomes the card, its effects the state of the screen, the move of the
/// focus included. The second of "ERREUR" is the caller's: `enErreur` says whether there is one.
void Appliquer(Carte& carte, Ecran& ecran, const Station& station, Reponse reponse);

/// Shows a text in ChangLocText, and what the operator types there: it is TexteSaisi like the text
/// of a box, and what was accepted before no longer is.
void MontrerTexteLocator(Carte& carte, Ecran& ecran, std::string_view texte);
void SaisirTexteLocator(Carte& carte, Ecran& ecran, std::string_view texte);

/// Opens PictChangLocator, BtChangValid hidden, the focus in its box.
void OuvrirChangLocator(Carte& carte, Ecran& ecran, const Station& station);

} // namespace orvalis
