// A file of the interchange format, from whatever program, into a second logbook.
#pragma once

#include "core/parametres.h"
#include "echange/fichier_neuf.h"
#include "echange/heures.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvalis {

struct DemandeImport {
    std::filesystem::path source;
    std::filesystem::path cible; ///< the logbook that is made
    Ancien ancien = Ancien::Protege;
    /// The station's own locator for contacts that do not tell it: as it was asked for, else that
    /// of the Settings, else the last that a contact told before, else the first that one tells.
    std::string locator;
    std::vector<std::filesystem::path> proteges; ///< the station's own files, never replaced
};

struct BilanImport {
    std::int64_t lus = 0;              ///< contacts in the file
    std::int64_t repris = 0;           ///< of these, in the new logbook
    std::int64_t changes = 0;          ///< of these, with something cut, changed or left out
    std::int64_t egaux = 0;            ///< of these, equal to one before, byte for byte
    std::int64_t locatorsSupposes = 0; ///< of these, without a locator of the station
    std::int64_t laisses = 0;          ///< contacts that stay out
    std::int64_t incidents = 0;        ///< lines that belong to no contact
    /// Fields that the logbook has no place for, and how often they came.
    std::map<std::string, std::int64_t, std::less<>> inconnus;
    std::filesystem::path rapport; ///< the report, where one was written

    /// Whether there is more to say than how many contacts there are.
    [[nodiscard]] bool ADire() const {
        return changes > 0 || laisses > 0 || incidents > 0 || egaux > 0 || locatorsSupposes > 0;
    }
};

/// A line of the report.
struct LigneRapport {
    std::int64_t ligne = 0; ///< in the file, from 1
    std::string_view indicatif;
    std::string_view champ;
    std::string_view avant;  ///< what stood there
    std::string_view devenu; ///< what became of it
};
using VoirLigne = std::function<void(const LigneRapport&)>;

/// What importing would come to, with nothing written; each line of the report goes to `voir`.
/// Throws Erreur or RefusEchange.
[[nodiscard]] BilanImport EtudierImport(const DemandeImport& demande, const Fuseau& fuseau,
                                        const VoirLigne& voir = {});

/// Makes the logbook, with an end-of-log record, and the report beside it. Throws Erreur or
/// RefusEchange; the logbook that stood there before is then as it was.
[[nodiscard]] BilanImport ImporterAdif(const DemandeImport& demande, const Fuseau& fuseau);

/// Where the report of a logbook stands.
[[nodiscard]] std::filesystem::path CheminRapport(const std::filesystem::path& cahier);

} // namespace orvalis
