// What leading a logbook out to ADIF and back, into a base and into numbers, costs, beside reading
// its bytes.
#include "echange/base.h"
#include "echange/bilan.h"
#include "echange/exporter.h"
#include "echange/importer.h"
#include "echange/sqlite.h"
#include "mesures.h"

#include <memory>

namespace orvalis::bench {
namespace {

BilanSortie Exporter(const CahierEssai& essai, GenreAdif genre, const Fuseau& fuseau) {
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

void Base(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(
            FaireBase({essai.Chemin(), essai.Dossier() / "f.sqlite", "BENCH", {}, ""}).contacts);
}

void Bilan(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(FaireBilan(LireCahierEntier(essai.Chemin()).fiches).stations);
}

// What SQLite itself costs: the bytes of the records as rows, in one transaction.
void InsererTout(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat) {
        const auto chemin = essai.Dossier() / "plancher.sqlite";
        BaseOuverte base(chemin, chemin);
        base.Executer("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN;"
                      "DROP TABLE IF EXISTS q; CREATE TABLE q (n INTEGER PRIMARY KEY, o BLOB)");
        {
            Requete requete(base, "INSERT INTO q VALUES (?,?)");
            std::int64_t numero = 0;
            for (const QsoRecord& fiche : essai.Fiches()) {
                requete.Lier(1, ++numero);
                requete.LierOctets(2, {fiche.octets.data(), fiche.octets.size()});
                requete.Executer();
            }
        }
        base.Executer("COMMIT");
        base.Fermer();
    }
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
    {"Base", Base, InsererTout},
    {"Bilan", Bilan, LireTout},
});

} // namespace
} // namespace orvalis::bench
