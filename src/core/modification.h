// Correction of a stored card, field by field, and the frame that asks for its confirmation.
#pragma once

#include "core/saisie.h"

#include <string>
#include <string_view>

namespace orvalis {

/// The Enter key in box `boite` (1 to 17) of a stored card under modification: checks the text in
/// session.saisie.TexteSaisi, puts it into the slot and counts the change in NbModifs. Nothing is
/// written to the file before the frame is answered with Oui.
[[nodiscard]] Reponse ModifierZone(const Session& session, std::size_t boite);

/// Texts of the confirmation frame FraMsgFiche.
struct TextesCadre {
    std::string legende;   ///< caption of FraMsgFiche
    std::string numero;    ///< FraLab01
    std::string indicatif; ///< FraLab02: callsign of the record buffer
};

/// The frame that asks whether to store the changes of the card on show.
[[nodiscard]] TextesCadre CadreModifier(const Session& session);

/// The frame that asks whether to delete the card on show.
[[nodiscard]] TextesCadre CadreEffacer(const Session& session);

/// Colours and state once Oui has stored the changes (EcrireFiche comes first).
[[nodiscard]] Reponse RepondreOui(const Session& session);

/// Colours, labels and state when Non drops the changes; the record is then read and shown again.
/// Without changes (a deletion was asked) only the state is reset.
[[nodiscard]] Reponse RepondreNon(const Session& session);

/// Forgets changes not yet answered for; for every change of the record on show.
void OublierModifications(EtatSaisie& saisie);

/// Number that a text begins with, blanks, sign and decimals allowed, rounded half to even;
/// 0 without one. Kept within 16 bits by saturation.
[[nodiscard]] int ArrondirNombre(std::string_view texte);

} // namespace orvalis
