#include "core/page_texte.h"

#include "core/texte.h"

namespace orvalis {

CellulesPage CellulesDeFiche(NumeroFiche k, const QsoRecord& fiche) {
    CellulesPage cellules;
    cellules[0] = std::to_string(k.Valeur());
    for (std::size_t i = 1; i < cellules.size(); ++i) {
        const ColonnePage& colonne = kColonnesPage[i];
        cellules[i] = Gauche(TexteRogne(fiche, colonne.champ), colonne.largeur);
    }
    return cellules;
}

std::string LignePage(const CellulesPage& cellules) {
    std::string ligne;
    for (std::size_t i = 0; i < cellules.size(); ++i) {
        if (i > 0)
            ligne += ' ';
        ligne += Cadrer(cellules[i], kColonnesPage[i].largeur);
    }
    return ligne;
}

} // namespace orvalis
