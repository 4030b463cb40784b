#include "ui/carte/locator_station.h"

#include "core/dossier.h"
#include "core/parametres.h"
#include "core/texte.h"
#include "geo/locator.h"

namespace orvalis {

VerdictLocator JugerLocatorStation(std::string_view texte) {
    const std::string_view rogne = Rogner(texte);
    if (Longueur(rogne) != kLargeurLocator)
        return VerdictLocator::Rien;
    return LocatorValide(rogne) ? VerdictLocator::Accepte : VerdictLocator::Refuse;
}

void ChangerLocatorStation(Station& station, Carte& carte, std::string_view texte, bool garder) {
    const std::string locator = Cadrer(Rogner(texte), kLargeurLocator);
    if (garder) {
        const auto chemin = TrouverParametres(DossierProgramme(station.lecteur));
        Parametres parametres = LireParametres(chemin);
        parametres.monLocator = locator;
        EcrireParametres(chemin, parametres);
        station.propreLocator = locator;
    }
    station.monLocator = locator;
    if (carte.saisie.EnSaisie)
        carte.zones[Boite::MonLocator] = locator;
}

} // namespace orvalis
