// What storing, deleting, pairing and copying cost, in memory and with the flush to the disk.
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "mesures.h"

namespace orvalis::bench {
namespace {

// Every round stores the same record N + 1, so that the logbook keeps its size.
void Ajouter(benchmark::State& etat, const Carnet& carnet) {
    Session session = carnet.Ouvrir();
    session.zones = ZonesDeFiche(carnet.Fiches().front());
    const QsoRecord fin = FicheFinDeLog(session.monLocator);
    for ([[maybe_unused]] auto _ : etat) {
        AjouterFiche(session, fin);
        --session.nbFiches;
        --session.prochaineFiche;
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
    Session session = carnet.Ouvrir();
    for ([[maybe_unused]] auto _ : etat) {
        session.nbFiches = carnet.NbFiches();
        SupprimerFiche(session, 1);
    }
}

// A second logbook of the same size is appended, and the whole is counted.
void Jumeler(benchmark::State& etat, const Carnet& carnet) {
    const Carnet autre(carnet.NbFiches(), Lieu::Memoire);
    Session session = carnet.Ouvrir();
    Chronometrer(
        etat,
        [&] {
            carnet.Ecrire(carnet.Fiches());
            session.nbFiches = carnet.NbFiches();
        },
        [&] { JumelerJournal(session, autre.Chemin()); });
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
    const Session session = carnet.Ouvrir();
    Chronometrer(
        etat, [&] { std::filesystem::remove(Cible(carnet)); },
        [&] { CopierJournal(session, Cible(carnet)); });
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
