#include "ui/carte/zones.h"

#include "core/texte.h"

namespace orvalis {

Zones ZonesDeFiche(const QsoRecord& fiche) {
    Zones zones;
    for (const DescriptionChamp& d : kChamps)
        zones[BoiteDe(d.champ)] = TexteRogne(fiche, d.champ);
    zones.info = TexteChamp(fiche, Champ::INFO);
    zones[Boite::Remarque] = Rogner(Gauche(zones.info, kLargeurDemiInfo));
    zones[Boite::Manager] = Rogner(Droite(zones.info, kLargeurDemiInfo));
    return zones;
}

QsoRecord FicheDesZones(const Zones& zones) {
    QsoRecord fiche;
    for (const DescriptionChamp& d : kChamps)
        MettreChamp(fiche, d.champ, d.champ == Champ::INFO ? zones.info : zones[BoiteDe(d.champ)]);
    return fiche;
}

std::string JoindreInfo(std::string_view remarque, std::string_view manager) {
    return Cadrer(remarque, kLargeurDemiInfo) + Cadrer(manager, kLargeurDemiInfo);
}

} // namespace orvalis
