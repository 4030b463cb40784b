// What storing, deleting, pairing and copying cost, in memory and with the flush to the disk.
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "mesures.h"

namespace orvalis::bench {
namespace {

// The logbook grows by one contact a round, which what is stored costs nothing.
void Ajouter(benchmark::State& etat, const CahierEssai& essai) {
    Cahier cahier = essai.Ouvrir();
    const QsoRecord contact = essai.Fiches().front();
    const QsoRecord fin = FicheFinDeLog(CahierEssai::Poste().monLocator);
    for ([[maybe_unused]] auto _ : etat)
        AjouterFiche(cahier, contact, fin);
}

void PlancherAjout(benchmark::State& etat, const CahierEssai& essai) {
    const Brut fichier(essai.Chemin());
    const std::array<char, 2 * kTailleFiche> octets{};
    for ([[maybe_unused]] auto _ : etat) {
        fichier.Ecrire(essai.NbOctets() - kTailleFiche, octets);
        fichier.Synchroniser();
    }
}

void Supprimer(benchmark::State& etat, const CahierEssai& essai) {
    Cahier cahier = essai.Ouvrir();
    const Station poste = CahierEssai::Poste();
    const QsoRecord premiere = FicheDuCahier(cahier, kPremiereFiche);
    Chronometrer(
        etat,
        [&] {
            essai.Ecrire(essai.Fiches());
            CompterFiches(cahier);
        },
        [&] {
            benchmark::DoNotOptimize(
                SupprimerFiche(cahier, kPremiereFiche, premiere, poste.monLocator));
        });
}

// A second logbook of the same size is appended, and the whole is counted.
void Jumeler(benchmark::State& etat, const CahierEssai& essai) {
    const CahierEssai autre(essai.NbFiches(), Lieu::Memoire);
    Cahier cahier = essai.Ouvrir();
    const Station poste = CahierEssai::Poste();
    Chronometrer(
        etat,
        [&] {
            essai.Ecrire(essai.Fiches());
            CompterFiches(cahier);
        },
        [&] { JumelerCahier(cahier, poste, autre.Chemin()); });
}

void PlancherJumelage(benchmark::State& etat, const CahierEssai& essai) {
    const CahierEssai autre(essai.NbFiches(), Lieu::Memoire);
    const Brut fichier(essai.Chemin());
    const Brut source(autre.Chemin());
    Chronometrer(
        etat, [&] { essai.Ecrire(essai.Fiches()); },
        [&] {
            ParBlocs(autre.NbOctets(), [&](auto position, auto octets) {
                source.Lire(position, octets);
                fichier.Ecrire(essai.NbOctets() - kTailleFiche + position, octets);
            });
            fichier.Synchroniser();
        });
}

std::filesystem::path Cible(const CahierEssai& essai) {
    return essai.Dossier() / "COPIE.Vek";
}

void Sauver(benchmark::State& etat, const CahierEssai& essai) {
    const Cahier cahier = essai.Ouvrir();
    const Station poste = CahierEssai::Poste();
    Chronometrer(
        etat, [&] { std::filesystem::remove(Cible(essai)); },
        [&] { CopierCahier(cahier, poste, Cible(essai)); });
}

void PlancherCopie(benchmark::State& etat, const CahierEssai& essai) {
    const Brut source(essai.Chemin());
    Chronometrer(
        etat, [&] { std::filesystem::remove(Cible(essai)); },
        [&] {
            const Brut cible(Cible(essai));
            ParBlocs(essai.NbOctets(), [&](auto position, auto octets) {
                source.Lire(position, octets);
                cible.Ecrire(position, octets);
            });
            cible.Synchroniser();
        });
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"Store a contact", Ajouter, PlancherAjout},
    {"Store a contact, flushed", Ajouter, PlancherAjout, Lieu::Disque},
    {"Delete record 1", Supprimer, LireEtRecrire},
    {"Delete record 1, flushed", Supprimer, LireEtRecrire, Lieu::Disque},
    {"Pair with a logbook of the same size", Jumeler, PlancherJumelage},
    {"Pair with a logbook of the same size, flushed", Jumeler, PlancherJumelage, Lieu::Disque},
    {"Backup", Sauver, PlancherCopie},
    {"Backup, flushed", Sauver, PlancherCopie, Lieu::Disque},
});

} // namespace
} // namespace orvalis::bench
