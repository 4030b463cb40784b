#include "compagnons/db_orvalis/station_lue.h"

#include "core/dossier.h"
#include "core/texte.h"
#include "echange/exporter.h"
#include "geo/locator.h"

namespace orvalis {

namespace fs = std::filesystem;

std::optional<StationLue> LireStation(const fs::path& courant, const fs::path& maison) {
    const fs::path dossier = DossierProgramme(CalculerLecteur(courant, maison));
    const fs::path chemin = TrouverFichier(dossier, kNomParametres);
    if (!Present(chemin))
        return {};
    StationLue station{LireParametres(chemin), {}, {}};
    station.cahier = TrouverFichier(dossier, station.parametres.nomFichier);
    station.fichiers = {station.cahier, chemin, TrouverFichier(dossier, kNomFeuilleQSL)};
    return station;
}

std::string IndicatifDe(const std::optional<StationLue>& station, const fs::path& cahier) {
    if (!station || !MemeFichier(cahier, station->cahier))
        return {};
    return std::string{Rogner(station->parametres.indicatif)};
}

std::string LocatorDe(const std::optional<StationLue>& station) {
    return station && LocatorValide(station->parametres.monLocator) ? station->parametres.monLocator
                                                                    : std::string{};
}

std::vector<fs::path> FichiersDe(const std::optional<StationLue>& station) {
    return station ? station->fichiers : std::vector<fs::path>{};
}

} // namespace orvalis
