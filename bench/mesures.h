// How measurements are listed: a name, what is measured, and its floor, which reads or writes the
// same bytes plainly. Each runs on a generated logbook of the three sizes; the floor's name is the
// measurement's followed by " (floor)".
#pragma once

#include "cahier_essai.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <initializer_list>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

namespace orvalis::bench {

using Corps = void (*)(benchmark::State&, const CahierEssai&);

struct Mesure {
    const char* nom;
    Corps mesure;
    Corps plancher = nullptr;
    Lieu lieu = Lieu::Memoire;
    std::int64_t tailleMax = kTailles.back();
};

inline double Minimum(const std::vector<double>& valeurs) {
    return *std::min_element(valeurs.begin(), valeurs.end());
}

inline benchmark::internal::Benchmark* InscrireUne(const std::string& nom, Corps corps,
                                                   const Mesure& mesure) {
    auto* inscrite =
        benchmark::RegisterBenchmark(nom.c_str(), [corps, lieu = mesure.lieu](auto& etat) {
            const CahierEssai essai(etat.range(0), lieu);
            corps(etat, essai);
        });
    inscrite->Unit(benchmark::kMicrosecond)->ComputeStatistics("min", Minimum);
    for (const std::int64_t taille : kTailles)
        if (taille <= mesure.tailleMax)
            inscrite->Arg(taille);
    return inscrite;
}

inline int Inscrire(std::initializer_list<Mesure> mesures) {
    for (const Mesure& mesure : mesures) {
        InscrireUne(mesure.nom, mesure.mesure, mesure)->UseRealTime();
        if (mesure.plancher != nullptr)
            InscrireUne(std::string{mesure.nom} + " (floor)", mesure.plancher, mesure)
                ->UseRealTime();
    }
    return 0;
}

/// Times `faire`, with `preparer` before each round untimed.
template<typename Preparer, typename Faire>
void Chronometrer(benchmark::State& etat, Preparer preparer, Faire faire) {
    for ([[maybe_unused]] auto _ : etat) {
        etat.PauseTiming();
        preparer();
        etat.ResumeTiming();
        faire();
    }
}

// The floors: system calls on the logbook's bytes, 256 KiB at a time, nothing looked at.

inline constexpr std::size_t kBloc = 256UL * 1024;

class Brut {
  public:
    explicit Brut(const std::filesystem::path& chemin)
        : descripteur_(open(chemin.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {}
    Brut(const Brut&) = delete;
    Brut& operator=(const Brut&) = delete;
    ~Brut() { close(descripteur_); }

    void Lire(std::size_t position, std::span<char> octets) const {
        benchmark::DoNotOptimize(
            pread(descripteur_, octets.data(), octets.size(), static_cast<off_t>(position)));
        benchmark::DoNotOptimize(octets.data());
    }
    void Ecrire(std::size_t position, std::span<const char> octets) const {
        benchmark::DoNotOptimize(
            pwrite(descripteur_, octets.data(), octets.size(), static_cast<off_t>(position)));
    }
    void Synchroniser() const { benchmark::DoNotOptimize(fdatasync(descripteur_)); }

  private:
    int descripteur_;
};

/// Calls `faire` with the position and the room for each block of `nombre` bytes.
template<typename Faire> void ParBlocs(std::size_t nombre, Faire faire) {
    static std::vector<char> tampon(kBloc);
    for (std::size_t position = 0; position < nombre; position += kBloc)
        faire(position, std::span(tampon).first(std::min(kBloc, nombre - position)));
}

inline void LireTout(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat) {
        const Brut fichier(essai.Chemin());
        ParBlocs(essai.NbOctets(),
                 [&](auto position, auto octets) { fichier.Lire(position, octets); });
    }
}

inline void LireUnePage(benchmark::State& etat, const CahierEssai& essai) {
    constexpr std::size_t kPage = 25;
    const Brut fichier(essai.Chemin());
    std::array<char, kTailleFiche * kPage> tampon{};
    const std::size_t position = essai.NbOctets() - tampon.size() - kTailleFiche;
    for ([[maybe_unused]] auto _ : etat)
        fichier.Lire(position, tampon);
}

/// Reads the logbook and writes it back over itself, flushed: what every reordering moves.
inline void LireEtRecrire(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat) {
        const Brut fichier(essai.Chemin());
        ParBlocs(essai.NbOctets(), [&](auto position, auto octets) {
            fichier.Lire(position, octets);
            fichier.Ecrire(position, octets);
        });
        fichier.Synchroniser();
    }
}

} // namespace orvalis::bench
