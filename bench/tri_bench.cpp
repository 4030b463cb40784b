// What the sort costs on logbooks in and out of order.
#include "maint/tri.h"
#include "mesures.h"

#include <random>

namespace orvalis::bench {
namespace {

// Sorts `fiches` in the slices of the maintenance panel.
void Trier(benchmark::State& etat, const Carnet& carnet, std::span<const QsoRecord> fiches) {
    constexpr std::int64_t kTranche = 4000;
    Cahier cahier = carnet.Ouvrir();
    EtatTri fin;
    Chronometrer(
        etat, [&] { carnet.Ecrire(fiches); },
        [&] {
            Tri tri(cahier.fichier, carnet.NbFiches());
            while (!tri.Etat().termine)
                tri.Avancer(kTranche);
            fin = tri.Etat();
        });
    const auto pas = static_cast<double>(fin.pas);
    etat.counters["steps"] = pas;
    etat.counters["exchanges"] = static_cast<double>(fin.echanges);
}

void EnOrdre(benchmark::State& etat, const Carnet& carnet) {
    Trier(etat, carnet, carnet.Fiches());
}

// The end-of-log record stays where it is.
std::vector<QsoRecord> Melanger(const Carnet& carnet, std::int32_t depuis) {
    std::vector<QsoRecord> fiches = carnet.Fiches();
    std::mt19937 hasard(20); // NOLINT: the same disorder in every run is wanted
    std::shuffle(fiches.begin() + depuis, fiches.end() - 1, hasard);
    return fiches;
}

void Melangees(benchmark::State& etat, const Carnet& carnet) {
    Trier(etat, carnet, Melanger(carnet, 0));
}

// Old paper logs typed in after the others: the contacts of two years, the older one last.
// One contact in a hundred is old, and each has to walk past all the newer ones.
void Ajoutees(benchmark::State& etat, const Carnet& carnet) {
    std::vector<QsoRecord> fiches = carnet.Fiches();
    const auto anciennes = carnet.NbFiches() / 100;
    for (auto fiche = fiches.end() - 1 - anciennes; fiche != fiches.end() - 1; ++fiche)
        MettreChamp(*fiche, Champ::DQSO, "05/07/19");
    Trier(etat, carnet, fiches);
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"Sort, in order", EnOrdre, LireTout},
    {"Sort, one in a hundred typed in late", Ajoutees, LireEtRecrire},
    {"Sort, shuffled", Melangees, LireEtRecrire, Lieu::Memoire, kTailles[1]},
});

} // namespace
} // namespace orvalis::bench
