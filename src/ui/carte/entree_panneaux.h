// What Enter does outside the card, on the state alone: search box, locator panel, label editor.
// The flows run these rules, and the line of advice asks them beforehand on a copy.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/locator_station.h"

#include <cstddef>

namespace orvalis {

/// RechText once its text was searched: it goes, the contacts list comes, and the focus returns to
/// the contact under entry or to the log list.
void CederAuxContacts(Carte& carte, Ecran& ecran, const Station& station);

/// Enter in ChangLocText: an accepted locator brings BtChangValid and gives it the focus, a refused
/// one reads "ERREUR", all of it selected. The second of that is the caller's.
VerdictLocator EntrerLocator(Carte& carte, Ecran& ecran, const Station& station);

/// ChangLocChk ticked, or not: whether BtChangValid will keep the locator for the next start too.
void GarderLocator(Ecran& ecran, bool garder);

/// Real time or not, from the next contact confirmed on; the focus goes to box 1.
void ChoisirTempsReel(Carte& carte, Ecran& ecran, const Station& station, bool tempsReel);

/// PictChangLocator goes; box 16 shows the station's locator, the focus returns to the last box. By
/// key, a box that has the focus keeps it with its text.
void FermerChangLocator(Carte& carte, Ecran& ecran, const Station& station);

/// Enter in box `boite` of the label editor: on to the next box, by way of the route, and in the
/// end to the button that it shows.
void EntrerEtiquette(EtatFeuille& feuille, Carte& carte, Ecran& ecran, const Station& station,
                     std::size_t boite);

/// A route option: chosen once more it leads to BtValidQSL.
void EntrerVoie(EtatFeuille& feuille, Carte& carte, Ecran& ecran, const Station& station,
                VoieQSL voie);

/// Gives the focus to a box of the label editor, its text selected.
void DonnerFoyerEtiquette(Carte& carte, Ecran& ecran, const Station& station, std::size_t boite);

/// The route option that is chosen, else OptBureau.
[[nodiscard]] Foyer FoyerDeLaVoie(const EtatFeuille& feuille);

} // namespace orvalis
