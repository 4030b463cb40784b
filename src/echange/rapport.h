// The report of an import: a text file with counts first, then a line for each thing told.
#pragma once

#include "echange/importer.h"

#include <span>

namespace orvalis {

/// A count of an import under its name, in the report and wherever else it is shown.
struct CompteImport {
    std::string_view nom;
    bool dont; ///< is a part of the one before
    std::int64_t BilanImport::*nombre;
};
[[nodiscard]] std::span<const CompteImport> ComptesImport();

/// Grows line by line on the disk, so that no file makes it too large for the memory.
class Rapport {
  public:
    Rapport(const DemandeImport& demande, const std::filesystem::path& chemin);
    void Ajouter(const LigneRapport& ligne);
    /// Fills in the counts; the report takes its place.
    void Terminer(const BilanImport& bilan);

  private:
    FichierNeuf fichier_;
    std::int64_t comptes_ = 0; ///< where the counts stand
};

} // namespace orvalis
