// What the sort costs on logbooks in and out of order.
#include "maint/tri.h"
#include "mesures.h"

#include <random>

namespace orvalis::bench {
namespace {

// Sorts `fiches` in the slices of the maintenance panel.
void Trier(benchmark::State& etat, const CahierEssai& essai, std::span<const QsoRecord> fiches) {
    constexpr std::int64_t kTranche = 4000;
    Cahier cahier = essai.Ouvrir();
    EtatTri fin;
    Chronometrer(
        etat, [&] { essai.Ecrire(fiches); },
        [&] {
            Tri tri(cahier);
            while (!tri.Etat().termine)
                tri.Avancer(kTranche);
            fin = tri.Etat();
        });
    const auto pas = static_cast<double>(fin.pas);
    etat.counters["steps"] = pas;
    etat.counters["exchanges"] = static_cast<double>(fin.echanges);
}

void EnOrdre(benchmark::State& etat, const CahierEssai& essai) {
    Trier(etat, essai, essai.Fiches());
}

// The end-of-log record stays where it is.
std::vector<QsoRecord> Melanger(const CahierEssai& essai, std::int32_t depuis) {
    std::vector<QsoRecord> fiches = essai.Fiches();
    std::mt19937 hasard(20); // NOLINT: the same disorder in every run is wanted
    std::shuffle(fiches.begin() + depuis, fiches.end() - 1, hasard);
    return fiches;
}

void Melangees(benchmark::State& etat, const CahierEssai& essai) {
    Trier(etat, essai, Melanger(essai, 0));
}

// Old paper logs typed in after the others: the contacts of two years, the older one last.
// One contact in a hundred is old, and each has to walk past all the newer ones.
void Ajoutees(benchmark::State& etat, const CahierEssai& essai) {
    std::vector<QsoRecord> fiches = essai.Fiches();
    const auto anciennes = essai.NbFiches() / 100;
    for (auto fiche = fiches.end() - 1 - anciennes; fiche != fiches.end() - 1; ++fiche)
        MettreChamp(*fiche, Champ::DQSO, "05/07/19");
    Trier(etat, essai, fiches);
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"Sort, in order", EnOrdre, LireTout},
    {"Sort, one in a hundred typed in late", Ajoutees, LireEtRecrire},
    {"Sort, shuffled", Melangees, LireEtRecrire, Lieu::Memoire, kTailles[1]},
});

} // namespace
} // namespace orvalis::bench
