#include "core/pages.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {

std::int32_t CalculerPages(std::int32_t nbFiches) {
    return std::max((nbFiches + kFichesParPage - 1) / kFichesParPage, 1);
}

PlagePage CalculerPlage(std::int32_t page, std::int32_t nbFiches) {
    const std::int32_t listables = std::min(nbFiches, kDerniereListable);
    return {NumeroFiche{page * kFichesParPage - (kFichesParPage - 1)},
            NumeroFiche{std::min(page * kFichesParPage, listables)}};
}

std::string LigneListe(NumeroFiche k, const QsoRecord& fiche) {
    return Cadrer(Cadrer(std::to_string(k.Valeur()), kLargeurNumero) + " : " +
                      Cadrer(TexteRogne(fiche, Champ::CSGN), kIndicatifListe) + ":" +
                      Cadrer(TexteRogne(fiche, Champ::DQSO), Description(Champ::DQSO).largeur) +
                      ":" +
                      Cadrer(TexteRogne(fiche, Champ::HDEB), Description(Champ::HDEB).largeur),
                  kLargeurLigneListe);
}

std::optional<MouvementListe> PageDeTouche(ToucheListe touche, NumeroFiche courante, int ligne,
                                           std::int32_t nbPages) {
    const std::int32_t page = PageDeFiche(courante);
    switch (touche) {
    // From a contact behind the last that can be listed, the page before is the last one.
    case ToucheListe::PagePrecedente:
        if (page >= 2)
            return MouvementListe{std::min(page - 1, nbPages), false};
        break;
    case ToucheListe::Haut:
        if (ligne == 0 && page >= 2)
            return MouvementListe{std::min(page - 1, nbPages), true};
        break;
    case ToucheListe::PageSuivante:
        if (page < nbPages)
            return MouvementListe{page + 1, false};
        break;
    case ToucheListe::Bas:
        if (ligne == kFichesParPage - 1 && page < nbPages)
            return MouvementListe{page + 1, false};
        break;
    }
    return std::nullopt;
}

NumeroFiche NumeroDeLigne(std::string_view ligne) {
    return NumeroFiche{ValeurNumerique(Gauche(ligne, kLargeurNumero))};
}

} // namespace orvalis
