// What storing, deleting, pairing and copying cost, in memory and with the flush to the disk.
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "mesures.h"

namespace orvalis::bench {
namespace {

// Every round stores the same record N + 1, so that the logbook keeps its size.
void Ajouter(benchmark::State& etat, const Carnet& carnet) {
    Cahier cahier = carnet.Ouvrir();
    const QsoRecord contact = carnet.Fiches().front();
    const QsoRecord fin = FicheFinDeLog(Carnet::Poste().monLocator);
    for ([[maybe_unused]] auto _ : etat) {
        AjouterFiche(cahier, contact, fin);
        --cahier.nbFiches;
    }
}

void PlancherAjout(benchmark::State& etat, const Carnet& carnet) {
    const Brut fichier(carnet.Chemin());
    const std::array<char, 2 * kTailleFiche> octets{};
    for ([[maybe_unused]] auto _ : etat) {
        fichier.Ecrire(carnet.NbOctets() - kTailleFiche, octets);
        fichier.Synchroniser();
    }
}

// The file keeps its length, so every round moves as many records as the first.
void Supprimer(benchmark::State& etat, const Carnet& carnet) {
    Cahier cahier = carnet.Ouvrir();
    const Station poste = Carnet::Poste();
    for ([[maybe_unused]] auto _ : etat) {
        cahier.nbFiches = carnet.NbFiches();
        SupprimerFiche(cahier, 1, poste.monLocator);
    }
}

// A second logbook of the same size is appended, and the whole is counted.
void Jumeler(benchmark::State& etat, const Carnet& carnet) {
    const Carnet autre(carnet.NbFiches(), Lieu::Memoire);
    Cahier cahier = carnet.Ouvrir();
    const Station poste = Carnet::Poste();
    Chronometrer(
        etat,
        [&] {
            carnet.Ecrire(carnet.Fiches());
            cahier.nbFiches = carnet.NbFiches();
        },
        [&] { JumelerCahier(cahier, poste, autre.Chemin()); });
}

void PlancherJumelage(benchmark::State& etat, const Carnet& carnet) {
    const Carnet autre(carnet.NbFiches(), Lieu::Memoire);
    const Brut fichier(carnet.Chemin());
    const Brut source(autre.Chemin());
    Chronometrer(
        etat, [&] { carnet.Ecrire(carnet.Fiches()); },
        [&] {
            ParBlocs(autre.NbOctets(), [&](auto position, auto octets) {
                source.Lire(position, octets);
                fichier.Ecrire(carnet.NbOctets() - kTailleFiche + position, octets);
            });
            fichier.Synchroniser();
        });
}

std::filesystem::path Cible(const Carnet& carnet) {
    return carnet.Dossier() / "COPIE.Vek";
}

void Sauver(benchmark::State& etat, const Carnet& carnet) {
    const Cahier cahier = carnet.Ouvrir();
    const Station poste = Carnet::Poste();
    Chronometrer(
        etat, [&] { std::filesystem::remove(Cible(carnet)); },
        [&] { CopierCahier(cahier, poste, Cible(carnet)); });
}

void PlancherCopie(benchmark::State& etat, const Carnet& carnet) {
    const Brut source(carnet.Chemin());
    Chronometrer(
        etat, [&] { std::filesystem::remove(Cible(carnet)); },
        [&] {
            const Brut cible(Cible(carnet));
            ParBlocs(carnet.NbOctets(), [&](auto position, auto octets) {
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
