#include "echange/mesure.h"

#include "geo/distance.h"
#include "geo/locator.h"

#include <cstdlib>

namespace orvalis {

MesureContact MesurerContact(const QsoRecord& fiche) {
    const std::string_view ici = OctetsChamp(fiche, Champ::MLOC);
    const std::string_view la = OctetsChamp(fiche, Champ::SLOC);
    if (ici == la)
        return {"0 Km", "...", 0.0};
    if (!LocatorValide(ici) || !LocatorValide(la))
        return {};
    MemoireDistance memoire;
    const TextesDistance textes = DistanceAzimut(memoire, ici, la);
    MesureContact mesure{
        std::string{Rogner(textes.distance)}, std::string{Rogner(textes.azimut)}, {}};
    mesure.km = std::strtod(mesure.distance.c_str(), nullptr);
    return mesure;
}

} // namespace orvalis
