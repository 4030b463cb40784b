// Faults at the program's own calls of the system. The functions of the C library that touch files
// are replaced for the whole process; once armed, they count the calls on files of the drive (and
// on the workshop of core/projection.h) and do to one of them what a plan says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvalis::essais {

enum class Faute {
    Aucune,
    Tuee,            ///< killed before the call
    TueeDedans,      ///< killed in a write, when `coupe` bytes of it are in the file
    DisquePlein,     ///< no space, for this call and every later one that needs some
    Courte,          ///< half of the bytes are read or written, and counted so
    CourtePuisPlein, ///< half of the bytes are written, then there is no space
    Erreur           ///< an input/output error
};

struct Plan {
    Faute faute = Faute::Aucune;
    std::size_t rang = 0; ///< which call, from 0
    std::size_t coupe = 0;
};

enum class SorteAppel { Lecture, Ecriture, Place, Autre };

struct Appel {
    SorteAppel sorte = SorteAppel::Autre;
    std::size_t octets = 0;
    std::int64_t position = 0;
    std::string nom;
};

/// From here on calls on files under `lecteur` are counted and the plan holds.
void Armer(const std::string& lecteur, const Plan& plan);
/// Ends it; the calls that were made.
[[nodiscard]] std::vector<Appel> Desarmer();

/// The faults worth trying on a call.
[[nodiscard]] std::vector<Plan> Fautes(const Appel& appel, std::size_t rang);

} // namespace orvalis::essais
