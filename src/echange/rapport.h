// The report of an import: a text file with counts first, then a line for each thing told.
#pragma once

#include "echange/importer.h"

namespace orvalis {

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
