// Operations on the real window, the faults that strike while they run, and what must hold after.
#pragma once

#include "ui/banc.h"

namespace orvalis::operateur {

/// The files of the program folder by name.
using Fichiers = std::map<std::string, std::string>;

/// What an operator does (see ui/banc.h); the last gesture is the one that writes files.
struct Operation {
    std::string nom, cahier, gestes, dernier; ///< without a last gesture the window opens
    /// What is written and flushed, in order (Journal).
    std::string ordre;
    int etiquettes = -1; ///< the first contacts with a label on the sheet; -1: there is no sheet
};
[[nodiscard]] std::vector<Operation> Operations();
/// Puts the files in place, opens the window and goes up to the last gesture.
void Preparer(const Operation& operation, Banc& banc);
/// Ends what is returned when the program has ended.
inline constexpr const char* kFini = " FINI";
/// Does the last gesture; returns what the operator was told.
[[nodiscard]] std::string Agir(const Operation& operation, Banc& banc);

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

/// Files written, files and folders flushed ("!") and files renamed (">"), in order; what is done
/// to a file several times in a row is told once.
[[nodiscard]] std::string Journal(const Bilan& bilan);
/// What a power cut could take: a file not flushed after it was written, or cut before; empty when
/// there is none.
[[nodiscard]] std::string NonSynchronise(const Bilan& bilan);

/// First damage found in the files `trouves`, when an operation turns `avant` into `apres`; empty
/// when every contact is there, whole and once, the log has its end, nothing was invented, the
/// label sheet has whole labels and each contact "En cours" its own, and the Settings are whole.
/// `repare`: the program could mend what failed, so that nothing is blank and no file longer.
[[nodiscard]] std::string Degat(Fichiers avant, Fichiers apres, Fichiers trouves,
                                bool repare = false);

} // namespace orvalis::operateur
