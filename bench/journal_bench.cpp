// What opening and browsing a logbook cost, beside a plain read of the same file as the floor.
#include "carnet.h"
#include "core/journal.h"
#include "core/pages.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

namespace orvalis {
namespace {

using bench::Carnet;

constexpr std::size_t kTailleLecture = 256UL * 1024;

void Tailles(benchmark::internal::Benchmark* b) {
    for (const std::int64_t taille : bench::kTailles)
        b->Arg(taille);
    b->Unit(benchmark::kMicrosecond);
}

void CompterOctets(benchmark::State& etat, const Carnet& carnet) {
    etat.SetBytesProcessed(etat.iterations() *
                           static_cast<std::int64_t>(std::filesystem::file_size(carnet.Chemin())));
}

// The floor: the file through the system's read, 256 KiB at a time, nothing looked at.
void PlancherLecture(benchmark::State& etat) {
    const Carnet carnet(etat.range(0));
    std::vector<char> tampon(kTailleLecture);
    for ([[maybe_unused]] auto _ : etat) {
        const int fichier = open(carnet.Chemin().c_str(), O_RDONLY | O_CLOEXEC);
        while (read(fichier, tampon.data(), tampon.size()) > 0)
            benchmark::DoNotOptimize(tampon.data());
        close(fichier);
    }
    CompterOctets(etat, carnet);
}
BENCHMARK(PlancherLecture)->Apply(Tailles);

// Open and count: what start-up and every recount do.
void OuvrirEtCompter(benchmark::State& etat) {
    const Carnet carnet(etat.range(0));
    for ([[maybe_unused]] auto _ : etat) {
        const Journal journal(carnet.Chemin(), ModeFichier::Lecture);
        benchmark::DoNotOptimize(journal.Compter());
    }
    CompterOctets(etat, carnet);
}
BENCHMARK(OuvrirEtCompter)->Apply(Tailles);

// Every record handed out one after the other, as the scans for a callsign or for duplicates get
// them.
void Parcourir(benchmark::State& etat) {
    const Carnet carnet(etat.range(0));
    const Journal journal(carnet.Chemin(), ModeFichier::Lecture);
    for ([[maybe_unused]] auto _ : etat) {
        LecteurFiches lecteur(journal);
        for (std::int32_t k = 1; k <= carnet.NbFiches(); ++k)
            benchmark::DoNotOptimize(lecteur.Lire(k).octets.data());
    }
    CompterOctets(etat, carnet);
}
BENCHMARK(Parcourir)->Apply(Tailles);

// The 25 lines of the last page; it must not depend on the size of the logbook.
void LignesDUnePage(benchmark::State& etat) {
    const Carnet carnet(etat.range(0));
    const Journal journal(carnet.Chemin(), ModeFichier::Lecture);
    for ([[maybe_unused]] auto _ : etat) {
        const PlagePage plage = CalculerPlage(CalculerPages(carnet.NbFiches()), carnet.NbFiches());
        std::array<QsoRecord, kFichesParPage> fiches;
        static_cast<void>(journal.Lire(plage.premiere, fiches));
        for (std::int32_t k = plage.premiere; k <= plage.derniere; ++k)
            benchmark::DoNotOptimize(
                LigneListe(k, fiches[static_cast<std::size_t>(k - plage.premiere)]));
    }
}
BENCHMARK(LignesDUnePage)->Apply(Tailles);

// The floor of a page: its 25 records in one read of the system.
void PlancherPage(benchmark::State& etat) {
    const Carnet carnet(etat.range(0));
    const int fichier = open(carnet.Chemin().c_str(), O_RDONLY | O_CLOEXEC);
    const off_t position = static_cast<off_t>(kTailleFiche) * (carnet.NbFiches() - kFichesParPage);
    std::array<char, kTailleFiche * kFichesParPage> tampon{};
    for ([[maybe_unused]] auto _ : etat) {
        benchmark::DoNotOptimize(pread(fichier, tampon.data(), tampon.size(), position));
        benchmark::DoNotOptimize(tampon.data());
    }
    close(fichier);
}
BENCHMARK(PlancherPage)->Apply(Tailles);

} // namespace
} // namespace orvalis
