#include "maint/copie.h"

#include "core/dossier.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <vector>

namespace orvalis {

std::filesystem::path CheminSauvegardes(const std::filesystem::path& lecteur) {
    std::filesystem::path dossier = TrouverFichier(DossierProgramme(lecteur), kNomSauvegardes);
    std::error_code raison;
    std::filesystem::create_directories(dossier, raison);
    if (!raison && !std::filesystem::is_directory(dossier, raison) && !raison)
        raison = std::make_error_code(std::errc::not_a_directory);
    if (raison)
        throw Erreur(NatureErreur::CreerDossier, dossier, raison);
    SynchroniserNom(dossier);
    return dossier;
}

namespace {

// How far a copy has come with its target.
enum class Avancement { Rien, Ouverte, Entamee };

void Copier(const Cahier& cahier, const Station& station, const std::filesystem::path& cible,
            Avancement& avancement) {
    FichierFiches copie(cible, ModeFichier::Creation);
    if (!copie.Support().Verrouiller())
        throw Erreur(NatureErreur::DejaOuvert, cible);
    avancement = Avancement::Ouverte;
    const NumeroFiche derniere = cahier.Prochaine();
    copie.Support().Reserver(PositionFiche(derniere + 1));
    std::vector<QsoRecord> bloc(kFichesParBloc);
    for (NumeroFiche k = kPremiereFiche; k <= derniere;) {
        const auto n = std::min(kFichesParBloc, static_cast<std::size_t>(derniere - k + 1));
        const auto fiches = std::span(bloc).first(n);
        static_cast<void>(cahier.fichier.Lire(k, fiches));
        k += static_cast<std::int32_t>(n);
        if (k > derniere && !EstFinDeLog(fiches.back()))
            fiches.back() = FicheFinDeLog(station.monLocator);
        avancement = Avancement::Entamee;
        copie.Ecrire(k - static_cast<std::int32_t>(n), fiches);
    }
    copie.Support().Synchroniser();
    SynchroniserNom(cible);
}

// What became of a target that was there before.
std::string_view SortDeLAncien(Avancement avancement) {
    return avancement == Avancement::Entamee
               ? "L'ancien fichier n'est peut-être plus entier\u00a0: ne comptez plus sur lui."
               : "L'ancien fichier reste intact.";
}

// Removes a target that was made for nothing, itself and not a link to it.
std::string_view EffacerInachevee(const std::filesystem::path& cible) {
    std::error_code raison;
    const std::filesystem::path reelle = std::filesystem::canonical(cible, raison);
    if (!raison && std::filesystem::remove(reelle, raison))
        return "Le fichier inachevé a été effacé.";
    return "Il reste un fichier inachevé\u00a0: ne comptez pas sur lui.";
}

} // namespace

void CopierCahier(const Cahier& cahier, const Station& station,
                  const std::filesystem::path& cible) {
    if (cahier.fichier.Support().EstLeMeme(cible))
        throw Erreur(NatureErreur::CahierLuiMeme, cible);
    const bool ancienne = Present(cible);
    auto avancement = Avancement::Rien;
    try {
        Copier(cahier, station, cible, avancement);
    } catch (const Erreur& echec) {
        std::error_code ignoree;
        if (ancienne && std::filesystem::is_regular_file(cible, ignoree))
            throw echec.Suivie(SortDeLAncien(avancement));
        if (!ancienne && avancement != Avancement::Rien)
            throw echec.Suivie(EffacerInachevee(cible));
        throw;
    }
}

} // namespace orvalis
