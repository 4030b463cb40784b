// The creation dialog without its widgets: what Enter does in its boxes, and the advice on it.
#pragma once

#include "ui/carte/conseil.h"

#include <string>

namespace orvalis {

enum class CibleCreation { Indicatif, Locator, Valider, Autre };

/// What the dialog shows, and what Enter has accepted.
struct Creation {
    std::string texteIndicatif; ///< Dlg1Fra2Text1
    std::string texteLocator;   ///< Dlg1Fra2Text2
    std::string indicatif;
    std::string nomFichier;
    std::string monLocator;
    bool complete = false; ///< Dlg1Fra3, with its button, is on show
    CibleCreation foyer = CibleCreation::Autre;
    bool erreur = false; ///< the locator box reads "ERREUR", all of it selected
};

/// Enter in either box.
void AccepterIndicatif(Creation& creation);
void AccepterLocator(Creation& creation);

[[nodiscard]] Conseil ConseillerCreation(const Creation& creation);

} // namespace orvalis
