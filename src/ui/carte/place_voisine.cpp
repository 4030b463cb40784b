#include "ui/carte/place_voisine.h"

namespace orvalis {

std::optional<Place> PlaceVoisine(Place place, PasDePlace pas) {
    constexpr int kNbColonnes = 2;
    const int rang = place.Valeur() - 1;
    const int colonne = rang % kNbColonnes + pas.colonnes;
    const Place la{(rang / kNbColonnes + pas.rangees) * kNbColonnes + colonne + 1};
    if (colonne < 0 || colonne >= kNbColonnes || la < kPremierePlace || la > kDernierePlace)
        return std::nullopt;
    return la;
}

} // namespace orvalis
