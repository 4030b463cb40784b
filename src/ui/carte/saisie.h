// What the keyboard and the focus do in the seventeen boxes of the card while a new contact is
// entered, and what is stored when it is finished.
//
// Every rule is a function of the card as it stands and of what happened. It answers with the card
// as it becomes and with what else follows: buttons, panels, the focus. foyer.h carries that out
// on the state of the screen.
#pragma once

#include "core/dates.h"
#include "ui/carte/carte.h"
#include "ui/carte/ecran.h"

#include <optional>
#include <string_view>

namespace orvalis {

/// The report that boxes 7 and 8 offer.
inline constexpr std::string_view kReportHabituel = "59";

/// What a box whose text is refused shows for one second.
inline constexpr std::string_view kErreur = "ERREUR";

/// What follows from a rule outside the card.
struct Effets {
    bool montrerActiveRech = false; ///< show BtActiveRech
    bool activerAnnuler = false;    ///< enable BtEnrAnnuler
    bool activerSuivant = false;    ///< enable BtEnrSuivant and paint it green
    bool poserQuestion = false;     ///< show FraMsgFiche with QuestionModifier() (modification.h)
    bool ouvrirLocator = false;     ///< open PictChangLocator
    std::optional<Boite> selection; ///< box whose whole text is selected
    std::optional<Foyer> foyer;     ///< where the focus goes
    /// Box that shows "ERREUR" for one second, is then emptied and takes the focus. Its slot and
    /// TexteSaisi are empty in the answer already; what it shows is the caller's.
    std::optional<Boite> enErreur;
};

/// Outcome of a rule.
struct Reponse {
    Carte carte;
    Effets effets;
};

/// The Enter key in `boite`, with the text in TexteSaisi. Under modification ModifierZone decides
/// (modification.h); with neither entry nor modification under way nothing happens.
[[nodiscard]] Reponse ValiderBoite(const Carte& carte, const Station& station, Boite boite,
                                   const Instant& maintenant);

/// `boite` takes the focus. During entry it turns green and offers a text, all of it selected, or
/// sends the focus back to box 1; on a stored card Enter will take what it shows.
[[nodiscard]] Reponse PrendreFoyer(const Carte& carte, Boite boite);

/// `boite` loses the focus: it shows its slot again and its rest colour.
[[nodiscard]] Carte QuitterFoyer(const Carte& carte, Boite boite);

/// A mouse press (or F2) on `boite`. On a stored card it starts modification, provided that
/// `modifiable` says that this card may be modified (conditions.h).
[[nodiscard]] Reponse PresserBoite(const Carte& carte, Boite boite, bool modifiable);

/// The blank card of the next contact, record `prochaine`: slots emptied, own locator in slot and
/// box 16, entry flags reset, boxes and labels shown anew, focus in box 1.
[[nodiscard]] Reponse PreparerSaisie(const Carte& carte, const Station& station,
                                     NumeroFiche prochaine);

/// What ends a contact: BtEnrSuivant or BtEnrTerminer.
enum class FinDeSaisie { Suivant, Terminer };

enum class Verdict {
    Enregistrer,       ///< store it
    RienAEcrire,       ///< no contact was begun: write nothing, go on as the button says
    IndicatifManquant, ///< begun without a callsign: write nothing, keep the card, focus to box 1
};

/// A finished contact: put `zones` into the card's slots and call AjouterFiche with their record
/// and `fin`.
struct ContactFini {
    Verdict verdict = Verdict::RienAEcrire;
    Zones zones;   ///< the contact, end time and own locator included
    QsoRecord fin; ///< the end-of-log record behind it, which differs between the two buttons
};

/// `suivantArme`: BtEnrSuivant is enabled.
[[nodiscard]] ContactFini FinirContact(const Carte& carte, const Station& station, FinDeSaisie fin,
                                       bool suivantArme, const Instant& maintenant);

/// The contact under entry field by field, for an operator who has to write it down since the
/// program ends; empty when none was begun.
[[nodiscard]] std::string ContactANoter(const Carte& carte);

/// Whether a text may be a contact's callsign: neither empty nor the end-of-log mark.
[[nodiscard]] bool IndicatifPermis(std::string_view texte);

} // namespace orvalis
