#include "maint/ouverture.h"

#include "core/chemins.h"
#include "core/texte.h"
#include "geo/locator.h"

#include <utility>
#include <vector>

namespace orvalis {

std::string NomAutreCahier(const std::filesystem::path& chemin) {
    constexpr std::size_t kExtension = 4;
    const std::string titre = TexteChemin(chemin.filename());
    const std::size_t n = Longueur(titre);
    return std::string{n > kExtension ? Gauche(titre, n - kExtension) : titre};
}

BilanOuverture OuvrirAutreCahier(Cahier& cahier, Station& station,
                                 const std::filesystem::path& chemin) {
    if (chemin == cahier.chemin || cahier.fichier.Support().EstLeMeme(chemin))
        return {};
    const std::string nom = NomAutreCahier(chemin);
    // Everything that can fail on reading is read before the current logbook is let go.
    const FichierFiches essai(chemin, ModeFichier::Lecture);
    std::vector<OctetsIndicatif> indicatifs;
    const std::int32_t nbFiches = essai.Compter(indicatifs);
    const QsoRecord fin = essai.Lire(NumeroFiche{nbFiches} + 1);
    if (cahier.EstLeNotre())
        ExigerCahier(cahier); // never lets go the last file that has every contact
    OuvrirCahier(cahier, chemin, true);

    if (cahier.EstLeNotre())
        station.propreLocator = station.monLocator;
    cahier.autre = nom;
    cahier.lectureSeule = nom != station.indicatif || cahier.fichier.Support().EstProtege();
    cahier.nbFiches = nbFiches;
    cahier.indicatifs = std::move(indicatifs);
    const BilanOuverture bilan{true, ExaminerCahier(cahier)};
    // Without one, not that of yet another logbook, shown before.
    station.monLocator = bilan.etat.finPresente
                             ? Cadrer(TexteRogne(fin, Champ::MLOC), kLargeurLocator)
                             : station.propreLocator;
    return bilan;
}

} // namespace orvalis
