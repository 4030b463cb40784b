#include "maint/ouverture.h"

#include "core/texte.h"
#include "geo/locator.h"

namespace orvalis {

std::string NomAutreCahier(const std::filesystem::path& chemin) {
    constexpr std::size_t kExtension = 4;
    const std::string titre = chemin.filename().string();
    const std::size_t n = Longueur(titre);
    return std::string{n > kExtension ? Gauche(titre, n - kExtension) : titre};
}

BilanOuverture OuvrirAutreCahier(Cahier& cahier, Station& station,
                                 const std::filesystem::path& chemin) {
    if (chemin == cahier.chemin || cahier.fichier.Support().EstLeMeme(chemin))
        return {};
    const std::string nom = NomAutreCahier(chemin);
    const bool lectureSeule = nom != station.indicatif;
    // Everything that can fail on reading is read before the current logbook is let go.
    const FichierFiches essai(chemin, ModeFichier::Lecture);
    const std::int32_t nbFiches = essai.Compter();
    const QsoRecord fin = essai.Lire(NumeroFiche{nbFiches} + 1);
    OuvrirCahier(cahier, chemin, lectureSeule);

    cahier.autre = nom;
    cahier.lectureSeule = lectureSeule;
    cahier.nbFiches = nbFiches;
    const BilanOuverture bilan{true, ExaminerCahier(cahier)};
    if (bilan.etat.finPresente)
        station.monLocator = Cadrer(TexteRogne(fin, Champ::MLOC), kLargeurLocator);
    return bilan;
}

} // namespace orvalis
