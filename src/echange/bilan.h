// A logbook in numbers: what was worked, where, and what came back. Numbers only; how they are
// drawn is the companion program's.
#pragma once

#include "echange/sens.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

/// How many contacts bear a name: a band, a mode.
struct ComptePar {
    std::string_view nom; ///< lasts as long as the program
    std::size_t contacts = 0;
};

struct CompteAnnee {
    int annee = 0;
    std::size_t contacts = 0;
};

enum class EtatDepartement : unsigned char {
    Jamais,
    Contacte,
    Confirme ///< a card came for one of its contacts
};

struct BilanDepartement {
    std::string_view code; ///< "01" to "95", "971" to "974"; "20" for Corsica, 2A and 2B included
    std::string_view nom;
    std::size_t contacts = 0;
    EtatDepartement etat = EtatDepartement::Jamais;
};

struct BilanCarre {
    std::string carre; ///< four characters
    std::size_t contacts = 0;
    bool confirme = false;
};

/// A station and its contact of the longest distance.
struct Lointain {
    std::int32_t numero = 0; ///< of the record
    std::string indicatif;
    std::string carre;
    std::optional<Jour> date;
    std::string distance; ///< as the card shows it
    double km = 0;
};
inline constexpr std::size_t kNbLointains = 10;

/// How many cards of one direction stand where, see EtatQsl.
using CartesParEtat = std::array<std::size_t, 5>;

struct BilanCahier {
    std::size_t contacts = 0;
    std::size_t stations = 0; ///< callsigns that differ
    std::optional<Jour> premier;
    std::optional<Jour> dernier;
    std::vector<std::int32_t> datesIllisibles; ///< numbers of the records without a date

    std::vector<CompteAnnee> annees; ///< those with contacts, in their order
    std::array<std::size_t, 12> mois{};
    std::vector<ComptePar> bandes; ///< those with contacts, the longest wave first
    std::size_t sansBande = 0;
    std::vector<ComptePar> modes; ///< the most used first; how they are named: NomUsuel
    std::size_t sansMode = 0;

    std::vector<BilanDepartement> departements; ///< all, in the order of their codes
    std::size_t departementsContactes = 0;      ///< confirmed ones included
    std::size_t departementsConfirmes = 0;
    std::vector<BilanCarre> carres; ///< those with contacts, by name
    std::size_t carresConfirmes = 0;
    std::vector<Lointain> lointains; ///< up to ten stations, the farthest first

    CartesParEtat maCarte{};
    CartesParEtat saCarte{};
    std::size_t aRepondre = 0; ///< his card came, and nothing is said of mine

    [[nodiscard]] std::size_t Mienne(EtatQsl etat) const {
        return maCarte[static_cast<std::size_t>(etat)];
    }
    [[nodiscard]] std::size_t Sienne(EtatQsl etat) const {
        return saCarte[static_cast<std::size_t>(etat)];
    }
};

/// `fiches` are records 1 to N.
[[nodiscard]] BilanCahier FaireBilan(std::span<const QsoRecord> fiches);

/// What operators call a mode: both sidebands are "SSB", every other submode goes by its own name
/// ("FT4", "PSK31"). Empty without a mode.
[[nodiscard]] std::string_view NomUsuel(const ModeAdif& mode);

} // namespace orvalis
