// The numbers of a logbook as charts on two A4 sheets, or part by part for a page of the web.
#pragma once

#include "compagnons/db_orvalis/graphiques.h"
#include "echange/bilan.h"

#include <span>
#include <string>
#include <string_view>

namespace orvalis {

/// What is drawn.
struct FeuilleBilan {
    BilanCahier bilan;
    std::string indicatif; ///< of the station; may be empty
    std::string cahier;    ///< name of the logbook's file
    Jour faitLe;
};

/// A part of the sheets with its title above it.
struct PartieBilan {
    std::string_view titre;
    int page; ///< from 1
    Cadre cadre;
    void (*dessiner)(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan);
};
[[nodiscard]] std::span<const PartieBilan> PartiesBilan();

/// "Bilan du cahier de F5ABC".
[[nodiscard]] std::string TitreBilan(const FeuilleBilan& feuille);
/// Which logbook, from when to when, made when.
[[nodiscard]] std::string SousTitreBilan(const FeuilleBilan& feuille);

/// Draws one part, without its title; the font is chosen here.
void DessinerPartie(Imprimante& imprimante, const PartieBilan& partie, const BilanCahier& bilan);
/// Prints both sheets and ends the document.
void ImprimerBilan(Imprimante& imprimante, const FeuilleBilan& feuille);

/// The departments as tiles where they lie in France, with what the tiles mean and the score.
void DessinerDepartements(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan);

} // namespace orvalis
