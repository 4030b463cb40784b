// The line of advice: what stands, and what the Enter key would do now. The second is never known
// here: the rule that Enter runs is run on a copy of the state, the move of the focus included, and
// the sentence says how the copy differs.
#pragma once

#include "core/recherche.h"
#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/phrase.h"
#include "ui/carte/session.h"

#include <optional>
#include <string>

namespace orvalis {

struct Conseil {
    std::string etat;   ///< what stands; may be empty
    std::string entree; ///< what Enter does, "Entrée : ..."; empty where it does not matter
    std::string cle;    ///< changes with control and outcome, not with each letter typed
    friend bool operator==(const Conseil&, const Conseil&) = default;
};

[[nodiscard]] Conseil Conseiller(const Session& session, const Ecran& ecran,
                                 const EtatFeuille& feuille);

/// What the last command did; the line of advice shows it until something changes.
void Annoncer(Ecran& ecran, std::string texte);

/// What Enter does in the control that has the focus; empty where it does not matter.
[[nodiscard]] Phrase DireEntree(const Session& session, const Ecran& ecran,
                                const EtatFeuille& feuille);

/// What BtEnrTerminer would do with the contact under entry.
[[nodiscard]] Phrase DireTerminer(const Session& session, const Ecran& ecran);

/// The banner of a contact that is not stored yet, and what BtEnrTerminer would do with it; empty
/// while none is under entry.
[[nodiscard]] std::string Bandeau(const Session& session, const Ecran& ecran);

/// The half of INFO that was confirmed for an earlier contact and would be stored with this one,
/// although its box is empty.
struct InfoJointe {
    Boite boite = Boite::Manager;
    std::string texte;
    friend bool operator==(const InfoJointe&, const InfoJointe&) = default;
};
[[nodiscard]] std::optional<InfoJointe> ChercherInfoJointe(const Carte& carte);
/// "le manager « F5XYZ » d'un contact précédent"
[[nodiscard]] Phrase DireInfoJointe(const InfoJointe& jointe);

/// "Déjà contacté 3 fois, ..." or "Première fois".
[[nodiscard]] std::string DireDejaContacte(const StationContactee& station);

/// A number, and the word for what is counted, plural from 2 on.
[[nodiscard]] std::string Compte(std::int64_t n, std::string_view mot);

} // namespace orvalis
