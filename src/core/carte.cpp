#include "core/carte.h"

#include "core/departements.h"
#include "core/texte.h"
#include "geo/locator.h"

namespace orvalis {
namespace {

const std::string& Zone(const Session& session, Champ champ) {
    return session.zones[NumeroZone(champ)];
}

} // namespace

TextesCarte TextesDeFiche(Session& session, std::int32_t k) {
    TextesCarte textes;
    textes.numero = " Fiche N° " + std::to_string(k) + " ";
    const std::string& ici = Zone(session, Champ::MLOC);
    const std::string& la = Zone(session, Champ::SLOC);
    // Two empty locators are equal as well, and show 0 Km.
    TextesDistance mesure{"", ""};
    if (ici == la)
        mesure = {"0 Km", "..."};
    else if (LocatorValide(la))
        mesure = DistanceAzimut(session.memoireDistance, ici, la);
    textes.distance = Cadrer(mesure.distance, kLargeurDistance);
    textes.azimut = Cadrer(mesure.azimut, kLargeurAzimut);
    textes.departement = NomDepartement(Zone(session, Champ::DEPT));
    textes.indicatifPresent = !Zone(session, Champ::CSGN).empty();
    return textes;
}

std::string NumeroNouvelleFiche(std::int32_t k) {
    return " Charger fiche N° " + std::to_string(k);
}

} // namespace orvalis
