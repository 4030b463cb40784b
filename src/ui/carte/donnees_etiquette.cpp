#include "ui/carte/donnees_etiquette.h"

namespace orvalis {

DonneesEtiquette DonneesDeEtiquette(const QslSlotRecord& etiquette) {
    using enum ChampEtiquette;
    const auto texte = [&etiquette](ChampEtiquette champ) { return TexteRogne(etiquette, champ); };
    return {.indicatif = texte(Indicatif),
            .texte1 = texte(Ligne1),
            .texte2 = texte(Ligne2),
            .route = texte(Voie),
            .date = texte(Date),
            .heure = texte(Heure),
            .frequence = texte(Frequence),
            .report = texte(Report),
            .mode = texte(Mode)};
}

} // namespace orvalis
