// What commands ask of the state of the program. A command that may not run does nothing, without
// a message; its menu entry is grey, and so are the buttons that VoirFenetre greys.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/session.h"

#include <string_view>

namespace orvalis {

/// Several are joined with `|`.
enum Condition : unsigned {
    kToujours = 0,
    kHorsSaisie = 1U << 0U,    ///< no new contact under entry
    kEnSaisie = 1U << 1U,      ///< a new contact under entry
    kHorsEdition = 1U << 2U,   ///< neither a contact under entry nor a card under modification
    kCahierPropre = 1U << 3U,  ///< no logbook was opened as "another", whatever its name
    kModifiable = 1U << 4U,    ///< the logbook on show is not read-only
    kAuMoinsUn = 1U << 5U,     ///< N is not 0
    kAuMoinsDeux = 1U << 6U,   ///< N is above 1
    kCahierOuvert = 1U << 7U,  ///< a logbook is open
    kSansReponse = 1U << 8U,   ///< no modification waits for its answer
    kPret = 1U << 9U,          ///< the window is initialised and not frozen
    kSansFeuille = 1U << 10U,  ///< the label sheet is not on show
    kSansControle = 1U << 11U, ///< the print check does not wait
    kSansGel = 1U << 12U,      ///< the window is not frozen
    kFicheMontree = 1U << 13U, ///< the card shows a stored contact
    kSansAttente = 1U << 14U,  ///< no other panel waits for the operator
};

/// A condition that a command asks for but does not show: its entry is not grey for it.
inline constexpr unsigned kConditionsMuettes = kSansAttente;

/// What a press on a box of a stored card asks for, and the two buttons that say so by being grey.
inline constexpr unsigned kPourModifier = kHorsSaisie | kModifiable | kAuMoinsUn | kFicheMontree;
inline constexpr unsigned kPourNouveau = kHorsSaisie | kModifiable;
inline constexpr unsigned kPourSupprimer = kHorsSaisie | kModifiable | kAuMoinsUn;

/// Why a command that asks for `requises` does nothing in a state that meets `remplies`, in words:
/// the first thing to do about it; empty when it may run.
[[nodiscard]] std::string_view RaisonDuRefus(unsigned requises, unsigned remplies);

/// The conditions that the state meets.
[[nodiscard]] unsigned ConditionsRemplies(const Session& session, const Ecran& ecran,
                                          const EtatFeuille& feuille);

/// Whether all of `requises` are among `remplies`.
[[nodiscard]] constexpr bool Permis(unsigned requises, unsigned remplies) {
    return (requises & ~remplies) == 0;
}

} // namespace orvalis
