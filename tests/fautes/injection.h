// Faults that strike at the calls of the C library on the files of a folder. Knows nothing of what
// runs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvalis::operateur {

/// kPlace is not a write, but may find the disk full.
enum Sorte : unsigned { kLecture = 1, kEcriture = 2, kPlace = 4, kAutre = 8 };

/// A call of the system.
struct Appel {
    unsigned sorte = kAutre;
    std::size_t octets = 0;
    std::int64_t position = 0;
    const char* nom = "";
    bool ecrit = false;                ///< puts bytes into `fichier`
    std::array<char, 40> fichier = {}; ///< under the drive
};

struct Faute {
    const char* nom = "none";
    unsigned sortes = 0; ///< of the calls it can strike
    bool tue = false;    ///< kills before the call, or when `coupe` bytes of it are in the file
    int erreur = 0;      ///< errno of the call
    bool courte = false; ///< half of the bytes are read or written, and counted so
    bool plein = false;  ///< later calls that need space fail too
};

struct Plan {
    Faute faute;
    std::size_t rang = 0; ///< which call, from 0
    std::size_t coupe = 0;
};
/// The faults worth trying on a call.
[[nodiscard]] std::vector<Plan> Fautes(const Appel& appel, std::size_t rang);

/// What a run showed, in memory that outlives its process.
struct Bilan {
    std::size_t nombre = 0;
    std::array<Appel, 1000> appels;
    std::array<char, 1000> message;
};
/// From here on the calls of the C library on files under `lecteur` (and on the workshop of
/// core/projection.h) are noted in `bilan`, and the plan holds. There is no way back.
void Armer(const std::string& lecteur, const Plan& plan, Bilan& bilan);

/// Runs `agir` armed, in a child of this process, and returns what it returned, "killed" or
/// "crashed"; a run that hangs counts as a crash. `bilan` comes from NouveauBilan.
[[nodiscard]] std::string LancerArme(const std::string& lecteur, const Plan& plan, Bilan& bilan,
                                     const std::function<std::string()>& agir);
/// One that the children of this process can write; it lives as long as the process.
[[nodiscard]] Bilan& NouveauBilan();

/// Files written, files and folders flushed ("!") and files renamed (">"), in order; what is done
/// to a file several times in a row is told once.
[[nodiscard]] std::string Journal(const Bilan& bilan);
/// What a power cut could take: a file not flushed after it was written, or cut before; empty when
/// there is none.
[[nodiscard]] std::string NonSynchronise(const Bilan& bilan);

} // namespace orvalis::operateur
