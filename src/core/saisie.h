// What the keyboard and the focus do in the seventeen boxes of the card while a new contact is
// entered, and what is stored when it is finished.
//
// Every rule is a function of the session as it stands and of what happened. It returns a Reponse:
// the working slots and the entry state as they become, and what the window shows and focuses.
// The window calls Appliquer(), then does to its controls what the Reponse says. Texts shown by
// the window come back as changes of the boxes, which is why TexteSaisi follows them.
#pragma once

#include "core/dates.h"
#include "core/session.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// Colours of a box, under the codes that ColorerZone takes.
enum class Couleur : std::uint8_t {
    Repos = 1,      ///< a box at rest: the palette's own background
    Gris = 2,       ///< used by no box
    JauneClair = 3, ///< box 1 at rest
    RougeClair = 4, ///< a box of a stored card under modification
    VertClair = 5   ///< the box that has the focus during entry
};

/// The report that boxes 7 and 8 offer.
inline constexpr std::string_view kReportHabituel = "59";

struct Rvb {
    std::uint8_t rouge = 0;
    std::uint8_t vert = 0;
    std::uint8_t bleu = 0;
    friend bool operator==(const Rvb&, const Rvb&) = default;
};

/// Background of a box; nothing for Repos, which is the palette's.
[[nodiscard]] std::optional<Rvb> FondDe(Couleur couleur);

/// Rest colour of a box that lost the focus: box 1 has one of its own.
[[nodiscard]] constexpr Couleur CouleurAuRepos(std::size_t boite) {
    return boite == 1 ? Couleur::JauneClair : Couleur::Repos;
}

/// Where the focus goes: a box (1 to 17) or one of these.
inline constexpr std::size_t kFoyerInchange = 0;
inline constexpr std::size_t kFoyerSuivant = 18; ///< BtEnrSuivant

struct TexteDeBoite {
    std::size_t boite = 0;
    std::string texte;
    friend bool operator==(const TexteDeBoite&, const TexteDeBoite&) = default;
};

struct CouleurDeBoite {
    std::size_t boite = 0;
    Couleur couleur = Couleur::Repos;
    friend bool operator==(const CouleurDeBoite&, const CouleurDeBoite&) = default;
};

/// Outcome of a rule.
struct Reponse {
    // The state as it becomes; Appliquer() stores it.
    Zones zones;
    EtatSaisie saisie;
    MemoireDistance memoireDistance;

    // What the window does to its controls, in this order.
    std::vector<TexteDeBoite> textes;     ///< boxes that show a text
    std::vector<CouleurDeBoite> couleurs; ///< boxes that change their background
    std::optional<std::string> labDist;   ///< new text of the label, if it changes
    std::optional<std::string> labAzim;
    std::optional<std::string> labDept;
    bool montrerActiveRech = false; ///< show BtActiveRech
    bool activerAnnuler = false;    ///< enable BtEnrAnnuler
    bool activerSuivant = false;    ///< enable BtEnrSuivant and paint it green
    bool montrerCadre = false;      ///< show FraMsgFiche with CadreModifier() (modification.h)
    bool ouvrirLocator = false;     ///< open PictChangLocator, BtChangValid hidden
    std::size_t selection = 0;      ///< box whose whole text is selected; 0 for none
    std::size_t foyer = kFoyerInchange;
    /// Box that shows "ERREUR" for one second, is then emptied and takes the focus; 0 for none.
    /// The state above is already that of the emptied box.
    std::size_t boiteEnErreur = 0;
};

/// Stores the state of a Reponse in the session.
void Appliquer(Session& session, const Reponse& reponse);

/// The session's state with nothing to show: what every rule starts from.
[[nodiscard]] Reponse SansEffet(const Session& session);

/// The Enter key in box `boite` (1 to 17), with the text in session.saisie.TexteSaisi. Under
/// modification ModifierZone decides (modification.h); with neither entry nor modification under
/// way nothing happens.
[[nodiscard]] Reponse ValiderBoite(const Session& session, std::size_t boite,
                                   const Instant& maintenant);

/// Box `boite` takes the focus: during entry it turns green and offers a text, all of it selected,
/// or sends the focus back to box 1.
[[nodiscard]] Reponse PrendreFoyer(const Session& session, std::size_t boite);

/// Box `boite` loses the focus: it shows its slot again (box 16 excepted) and its rest colour.
[[nodiscard]] Reponse QuitterFoyer(const Session& session, std::size_t boite);

/// A mouse press (or F2) on box `boite` that shows `texte`. On a stored card it starts
/// modification, unless the logbook may only be looked at or no card is on show.
[[nodiscard]] Reponse PresserBoite(const Session& session, std::size_t boite,
                                   std::string_view texte);

/// The blank card of the next contact: slots emptied, own locator in slot and box 16, entry flags
/// reset, all seventeen boxes and the three labels shown anew, focus in box 1. The record number
/// is not its business: the caller has counted and shows session.prochaineFiche.
[[nodiscard]] Reponse PreparerSaisie(const Session& session);

/// What ends a contact: BtEnrSuivant or BtEnrTerminer.
enum class FinDeSaisie { Suivant, Terminer };

enum class Verdict {
    Enregistrer,       ///< store it
    RienAEcrire,       ///< no contact was begun: write nothing, go on as the button says
    IndicatifManquant, ///< begun without a callsign: write nothing, keep the card, focus to box 1
};

/// A finished contact: put `zones` into the session's slots and call AjouterFiche with `fin`.
struct ContactFini {
    Verdict verdict = Verdict::RienAEcrire;
    Zones zones;   ///< the contact, end time and own locator included
    QsoRecord fin; ///< the end-of-log record behind it, which differs between the two buttons
};

/// `suivantActif`: BtEnrSuivant is enabled. `texteBoite16`: what box 16 shows, read by Suivant
/// only.
[[nodiscard]] ContactFini FinirContact(const Session& session, FinDeSaisie fin, bool suivantActif,
                                       std::string_view texteBoite16, const Instant& maintenant);

/// Whether a text may be a contact's callsign: neither empty nor the end-of-log mark.
[[nodiscard]] bool IndicatifPermis(std::string_view texte);

/// The slot 0 that two halves of INFO make: 15 characters each.
[[nodiscard]] std::string JoindreInfo(std::string_view remarque, std::string_view manager);

} // namespace orvalis
