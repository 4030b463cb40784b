#include "ui/carte/echappement.h"

#include <array>

namespace orvalis {
namespace {

struct Sortie {
    bool ouverte;
    std::string_view commande;
};

} // namespace

// Kept on purpose, for the operators: Escape never drops a contact under entry and never ends the
// program, and what a print came to is said, not escaped from.
std::string_view CommandeDEchap(const Ecran& ecran, const VueFeuille& feuille) {
    if (ecran.gel || feuille.controle)
        return {};
    const std::array<Sortie, 6> sorties = {{
        {ecran.question.has_value(), "FraCmdNon"},
        {ecran.locator.montre, "BtChangAnnul"},
        {feuille.panneau && feuille.laisser, "BtLeaveQSL"},
        {feuille.panneau && feuille.quitter, "BtQuitQSL"},
        {ecran.jumelage.montre, "BtPjAnnuler"},
        {ecran.contacts.montree, "BtContactsFermer"},
    }};
    for (const Sortie& sortie : sorties)
        if (sortie.ouverte)
            return sortie.commande;
    return {};
}

} // namespace orvalis
