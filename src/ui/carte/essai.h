// A trial of what Enter does: the present state with a copy to run a rule on, and what the
// sentences about it have in common. For conseil_entree.cpp and conseil_boites.cpp.
#pragma once

#include "ui/carte/foyer.h"
#include "ui/carte/phrase.h"
#include "ui/carte/session.h"

#include <optional>

namespace orvalis {

/// The present state, and a copy of it to run a rule on.
struct Essai {
    const Session& session;
    const Ecran& avant;
    const Carte& carteAvant = session.carte;
    const Station& station = session.station;
    Ecran ecran = avant;
    Carte carte = carteAvant;
    std::optional<Boite> enErreur = std::nullopt;
    std::optional<Foyer> voeu = std::nullopt; ///< where the rule would have the focus
    bool question = false;

    void Suivre(Reponse reponse) {
        enErreur = reponse.effets.enErreur;
        voeu = reponse.effets.foyer;
        question = reponse.effets.poserQuestion;
        Appliquer(carte, ecran, station, std::move(reponse));
    }
    [[nodiscard]] Instant Maintenant() const { return avant.heure.value_or(Instant{}); }
    [[nodiscard]] bool Reste() const { return ecran.foyer.ici == avant.foyer.ici; }
};

/// Where Enter leads: ", puis Mode", " et reste ici".
void DirePuis(Phrase& p, const Essai& e);

/// Says that Enter would lead to Suivant, which is not armed; else nothing.
void DireAttente(Phrase& p, const Essai& e);

/// Enter in `boite`, during entry or on a stored card.
void DireBoite(Phrase& p, Essai e, Boite boite);

/// What the record would hold that it does not hold now, box by box.
void DireChangements(Phrase& p, const Carte& carte);

} // namespace orvalis
