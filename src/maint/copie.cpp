#include "maint/copie.h"

#include "core/dossier.h"

#include <algorithm>
#include <vector>

namespace orvalis {

std::filesystem::path CheminSauvegardes(const std::filesystem::path& lecteur) {
    std::filesystem::path dossier = TrouverFichier(DossierProgramme(lecteur), kNomSauvegardes);
    std::error_code raison;
    std::filesystem::create_directories(dossier, raison);
    if (!raison && !std::filesystem::is_directory(dossier, raison) && !raison)
        raison = std::make_error_code(std::errc::not_a_directory);
    if (raison)
        throw Erreur(NatureErreur::Creer, dossier, raison);
    SynchroniserNom(dossier);
    return dossier;
}

void CopierCahier(const Cahier& cahier, const Station& station,
                  const std::filesystem::path& cible) {
    if (cahier.fichier.Support().EstLeMeme(cible))
        return;
    FichierFiches copie(cible, ModeFichier::Creation);
    if (!copie.Support().Verrouiller())
        throw Erreur(NatureErreur::DejaOuvert, cible);
    std::vector<QsoRecord> bloc(kFichesParBloc);
    const NumeroFiche derniere = cahier.Prochaine();
    for (NumeroFiche k = kPremiereFiche; k <= derniere;) {
        const auto n = std::min(kFichesParBloc, static_cast<std::size_t>(derniere - k + 1));
        const auto fiches = std::span(bloc).first(n);
        static_cast<void>(cahier.fichier.Lire(k, fiches));
        k += static_cast<std::int32_t>(n);
        if (k > derniere && !EstFinDeLog(fiches.back()))
            fiches.back() = FicheFinDeLog(station.monLocator);
        copie.Ecrire(k - static_cast<std::int32_t>(n), fiches);
    }
    copie.Support().Synchroniser();
    SynchroniserNom(cible);
}

} // namespace orvalis
