#include "echange/mesure.h"

#include "geo/distance.h"
#include "geo/locator.h"

#include <charconv>

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
    // Not by the C library, which reads a comma where the desktop's language has one.
    double km = 0;
    std::from_chars(mesure.distance.data(), mesure.distance.data() + mesure.distance.size(), km);
    mesure.km = km;
    return mesure;
}

} // namespace orvalis
