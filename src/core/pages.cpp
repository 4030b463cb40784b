#include "core/pages.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {

std::int32_t CalculerPages(std::int32_t x) {
    std::int32_t page = x > kFichesParPage ? x / kFichesParPage : 0;
    if (x % kFichesParPage != 0)
        ++page;
    return std::max(page, 1);
}

PlagePage CalculerPlage(std::int32_t page, std::int32_t nbFiches) {
    const std::int32_t listables = std::min(nbFiches, kDerniereListable);
    return {page * kFichesParPage - (kFichesParPage - 1),
            std::min(page * kFichesParPage, listables)};
}

std::string LigneListe(std::int32_t k, const QsoRecord& fiche) {
    constexpr std::size_t kLargeurNumero = 6;
    constexpr std::size_t kLargeurIndicatif = 10;
    constexpr std::size_t kLargeurLigne = 40;
    return Cadrer(Cadrer(std::to_string(k), kLargeurNumero) + " : " +
                      Cadrer(TexteRogne(fiche, Champ::CSGN), kLargeurIndicatif) + ":" +
                      Cadrer(TexteRogne(fiche, Champ::DQSO), 8) + ":" +
                      Cadrer(TexteRogne(fiche, Champ::HDEB), 5),
                  kLargeurLigne);
}

std::int32_t NumeroDeLigne(std::string_view ligne) {
    return ValeurNumerique(Gauche(ligne, 6));
}

} // namespace orvalis
