#include "maint/jumelage.h"

#include "core/texte.h"

#include <algorithm>
#include <vector>

namespace orvalis {
namespace {

void RognerIndicatif(QsoRecord& fiche) {
    constexpr DescriptionChamp kIndicatif = Description(Champ::CSGN);
    char* debut = fiche.octets.data() + kIndicatif.decalage;
    char* fin = debut + kIndicatif.largeur;
    char* texte = std::find_if(debut, fin, [](char c) { return c != ' '; });
    std::fill(std::copy(texte, fin, debut), fin, ' ');
}

// Reads records `k` on of `source` into `bloc`, at most up to record `derniere`.
std::span<const QsoRecord> LireBloc(const FichierFiches& source, NumeroFiche k,
                                    NumeroFiche derniere, std::vector<QsoRecord>& bloc) {
    const auto n = std::min(kFichesParBloc, static_cast<std::size_t>(derniere - k + 1));
    const auto fiches = std::span(bloc).first(n);
    static_cast<void>(source.Lire(k, fiches));
    std::for_each(fiches.begin(), fiches.end(), RognerIndicatif);
    return fiches;
}

// Writes the `nombre` contacts of `autre` behind those of the logbook, the first one last.
void Ajouter(Cahier& cahier, const FichierFiches& autre, std::int32_t nombre,
             const QsoRecord& fin) {
    FichierFiches& fichier = cahier.fichier;
    const NumeroFiche suivante = cahier.Prochaine();
    std::vector<QsoRecord> bloc(kFichesParBloc);
    // A logbook that had no end-of-log record gets one before anything is written behind it.
    if (nombre == 0 || !EstFinDeLog(fichier.Lire(suivante)))
        fichier.Ecrire(suivante, fin);
    const NumeroFiche derniere{nombre};
    for (NumeroFiche k = kPremiereFiche + 1; k <= derniere;) {
        const auto fiches = LireBloc(autre, k, derniere, bloc);
        fichier.Ecrire(suivante + (k - kPremiereFiche), fiches);
        k += static_cast<std::int32_t>(fiches.size());
    }
    if (nombre > 0)
        fichier.Ecrire(suivante + nombre, fin);
    SynchroniserCahier(cahier);
    if (nombre > 0) {
        fichier.Ecrire(suivante, LireBloc(autre, kPremiereFiche, kPremiereFiche, bloc));
        SynchroniserCahier(cahier);
    }
}

} // namespace

std::int32_t JumelerCahier(Cahier& cahier, const Station& station,
                           const std::filesystem::path& source) {
    VerifierCahier(cahier);
    const FichierFiches autre(source, ModeFichier::Lecture);
    const std::int32_t nombre = autre.Compter();
    AllongerCahier(cahier,
                   [&] { Ajouter(cahier, autre, nombre, FicheFinDeLog(station.monLocator)); });
    CompterFiches(cahier);
    return nombre;
}

} // namespace orvalis
