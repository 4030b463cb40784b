// What leading a logbook out to ADIF and back costs, beside reading its bytes.
#include "echange/exporter.h"
#include "echange/importer.h"
#include "mesures.h"

#include <memory>

namespace orvalis::bench {
namespace {

BilanExport Exporter(const CahierEssai& essai, GenreAdif genre, const Fuseau& fuseau) {
    return ExporterAdif({essai.Chemin(), essai.Dossier() / "f.adif", genre, "BENCH", {}, ""},
                        fuseau);
}

void Sortie(benchmark::State& etat, const CahierEssai& essai, GenreAdif genre,
            const char* zone = nullptr) {
    const Fuseau utc;
    const auto locales = zone == nullptr ? nullptr : std::make_unique<Fuseau>(zone);
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(
            Exporter(essai, genre, locales == nullptr ? utc : *locales).contacts);
}

void Entree(benchmark::State& etat, const CahierEssai& essai, GenreAdif genre) {
    const Fuseau utc;
    static_cast<void>(Exporter(essai, genre, utc));
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(
            ImporterAdif(
                {essai.Dossier() / "f.adif", essai.Dossier() / "G.Vek", Ancien::Remplace, "", {}},
                utc)
                .repris);
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"ADI out", [](auto& etat, const auto& essai) { Sortie(etat, essai, GenreAdif::Adi); },
     LireTout},
    {"ADI out, local hours",
     [](auto& etat, const auto& essai) { Sortie(etat, essai, GenreAdif::Adi, "Europe/Paris"); },
     LireTout},
    {"ADX out", [](auto& etat, const auto& essai) { Sortie(etat, essai, GenreAdif::Adx); },
     LireTout},
    {"ADI in", [](auto& etat, const auto& essai) { Entree(etat, essai, GenreAdif::Adi); },
     LireTout},
    {"ADX in", [](auto& etat, const auto& essai) { Entree(etat, essai, GenreAdif::Adx); },
     LireTout},
});

} // namespace
} // namespace orvalis::bench
