#include "echange/lecture_cahier.h"

#include "core/chemins.h"
#include "core/fichier_fiches.h"
#include "echange/refus.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace orvalis {
namespace {

// Records of the file, block by block, up to the end-of-log record; `voir` gets each block that
// lies before it and may stop the reading; `prevoir` is told how many records there can be.
template<class Prevoir, class Voir>
CahierLu Parcourir(const std::filesystem::path& chemin, Prevoir prevoir, Voir voir) {
    const FichierFiches fichier(chemin, ModeFichier::Lecture);
    prevoir(fichier.Support().Taille() / static_cast<std::int64_t>(kTailleFiche) + 1);
    std::vector<QsoRecord> bloc(kFichesParBloc);
    CahierLu lu;
    for (NumeroFiche k = kPremiereFiche;; k += static_cast<std::int32_t>(bloc.size())) {
        const std::size_t n = fichier.Lire(k, bloc);
        const auto debut = bloc.begin();
        const auto fin = std::find_if(debut, debut + static_cast<std::ptrdiff_t>(n), EstFinDeLog);
        lu.finPresente = fin != debut + static_cast<std::ptrdiff_t>(n);
        if (!voir(std::span(debut, fin)) || lu.finPresente || n < bloc.size())
            break;
    }
    lu.longueurEntiere = fichier.Support().Taille() % static_cast<std::int64_t>(kTailleFiche) == 0;
    return lu;
}

CahierLu Charger(const std::filesystem::path& chemin) {
    std::vector<QsoRecord> fiches;
    const auto prevoir = [&](std::int64_t n) {
        fiches.reserve(std::min(static_cast<std::size_t>(n), kContactsMax));
    };
    CahierLu lu = Parcourir(chemin, prevoir, [&](std::span<const QsoRecord> bloc) {
        if (fiches.size() + bloc.size() > kContactsMax)
            throw RefusEchange("« " + TexteChemin(chemin) +
                               " » a trop de contacts pour un cahier.");
        fiches.insert(fiches.end(), bloc.begin(), bloc.end());
        return true;
    });
    lu.fiches = std::move(fiches);
    return lu;
}

bool EstEncore(const std::filesystem::path& chemin, const CahierLu& lu) {
    std::size_t place = 0;
    bool pareil = true;
    const auto rien = [](std::int64_t /*n*/) {};
    const CahierLu relu = Parcourir(chemin, rien, [&](std::span<const QsoRecord> bloc) {
        const std::size_t n = place + bloc.size();
        pareil = n <= lu.fiches.size() &&
                 std::equal(bloc.begin(), bloc.end(),
                            lu.fiches.begin() + static_cast<std::ptrdiff_t>(place));
        place = n;
        return pareil;
    });
    return pareil && place == lu.fiches.size() && relu.finPresente == lu.finPresente;
}

} // namespace

Patience CinqSecondes() {
    using Horloge = std::chrono::steady_clock;
    const auto fin = Horloge::now() + std::chrono::seconds{5};
    return {[fin] {
                std::this_thread::sleep_for(std::chrono::milliseconds{100});
                return Horloge::now() < fin;
            },
            [] {}};
}

CahierLu LireCahierEntier(const std::filesystem::path& chemin, const Patience& patience) {
    for (;;) {
        CahierLu lu = Charger(chemin);
        patience.entre();
        if (EstEncore(chemin, lu))
            return lu;
        if (!patience.encore())
            throw RefusEchange("Le cahier « " + TexteChemin(chemin) +
                               " » est en train d'être réécrit : recommencez plus tard.");
    }
}

} // namespace orvalis
