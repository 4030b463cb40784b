// The sheet of the departments.
#include "compagnons/db_orvalis/bilan_dessin.h"
#include "core/texte.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

// Each department about where it lies; the region of Paris has the room it needs, so that its
// neighbours are moved aside. Overseas, and Corsica, in the corners.
constexpr std::size_t kColonnes = 13;
constexpr std::array<std::string_view, 13> kCarte = {
    "                         62  59                     ",
    "                     76  80  60  02  08             ",
    "             50  14  27  95  93  77  51  55  57     ",
    " 29  22  35  53  61  78  92  75  94  10  52  54  67 ",
    "     56  44  49  72  28  91  45  89  21  70  88  68 ",
    "         85  79  37  41  18  58  71  39  25  90     ",
    "             17  86  36  03  42  69  01  74         ",
    "             16  87  23  63  43  07  38  73         ",
    "             33  24  19  15  48  26  05             ",
    "             40  47  46  12  30  84  04  06         ",
    "             64  32  82  81  34  13  83             ",
    "971 972          65  31  11                      20 ",
    "973 974              09  66                         ",
};
constexpr std::size_t kLargeurCase = 4; // characters

struct Aspect {
    EtatDepartement etat;
    Encre fond;
    Encre texte;
    std::string_view nom;
};
// Told apart by their darkness alone, as a sheet printed in black and white shows them.
constexpr std::array<Aspect, 3> kAspects = {{
    {EtatDepartement::Confirme, Encre::Forte, Encre::Blanc, "Confirmés par une carte"},
    {EtatDepartement::Contacte, Encre::Pale, Encre::Noir, "Contactés, sans carte"},
    {EtatDepartement::Jamais, Encre::Blanc, Encre::Gris, "Jamais contactés"},
}};

const Aspect& AspectDe(EtatDepartement etat) {
    return *std::find_if(kAspects.begin(), kAspects.end(),
                         [etat](const Aspect& a) { return a.etat == etat; });
}

// A white tile has an edge, lighter than a line, so that what was worked stands out.
void DessinerFond(Imprimante& imprimante, const Cadre& cadre, const Aspect& aspect) {
    constexpr int kBord = 14;
    if (aspect.fond == Encre::Blanc)
        Remplir(imprimante, cadre, Encre::Trait);
    const int bord = aspect.fond == Encre::Blanc ? kBord : 0;
    Remplir(imprimante,
            {cadre.x + bord, cadre.y + bord, cadre.largeur - 2 * bord, cadre.hauteur - 2 * bord},
            aspect.fond);
}

void DessinerTuile(Imprimante& imprimante, const Cadre& cadre, const Aspect& aspect,
                   std::string_view code, std::size_t contacts) {
    DessinerFond(imprimante, cadre, aspect);
    const int milieu = cadre.x + cadre.largeur / 2;
    const bool compte = contacts > 0;
    EcrireTexte(imprimante, milieu, cadre.y + (compte ? 60 : 130), code, {10, compte, aspect.texte},
                Cote::Centre);
    if (compte)
        EcrireTexte(imprimante, milieu, cadre.y + 300, EcrireNombre(contacts),
                    {7, false, aspect.texte}, Cote::Centre);
}

void DessinerTuiles(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    const int pas = std::min(cadre.largeur / static_cast<int>(kColonnes),
                             cadre.hauteur / static_cast<int>(kCarte.size()));
    constexpr int kEntre = 34;
    for (std::size_t rang = 0; rang < kCarte.size(); ++rang)
        for (std::size_t colonne = 0; colonne < kColonnes; ++colonne) {
            const std::string_view code =
                Rogner(kCarte[rang].substr(colonne * kLargeurCase, kLargeurCase));
            const auto la =
                std::find_if(bilan.departements.begin(), bilan.departements.end(),
                             [code](const BilanDepartement& d) { return d.code == code; });
            if (la == bilan.departements.end())
                continue;
            const Cadre tuile{cadre.x + static_cast<int>(colonne) * pas,
                              cadre.y + static_cast<int>(rang) * pas, pas - kEntre, pas - kEntre};
            DessinerTuile(imprimante, tuile, AspectDe(la->etat), code, la->contacts);
        }
}

void DessinerLegende(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    constexpr int kTuile = 300;
    constexpr int kLigne = 460;
    const std::size_t tous = bilan.departements.size();
    const std::array<std::size_t, 3> nombres = {
        bilan.departementsConfirmes, bilan.departementsContactes - bilan.departementsConfirmes,
        tous - bilan.departementsContactes};
    const std::string score = EcrireNombre(bilan.departementsContactes);
    EcrireTexte(imprimante, cadre.x, cadre.y, score, {30, true, Encre::Forte});
    const int suite = cadre.x + Largeur(imprimante, score, {30, true}) + 90;
    EcrireTexte(imprimante, suite, cadre.y + 310, "sur " + EcrireNombre(tous), {14});
    EcrireTexte(
        imprimante, cadre.x, cadre.y + 760,
        Accorder(bilan.departementsContactes, "département contacté,", "départements contactés,"));
    EcrireTexte(imprimante, cadre.x, cadre.y + 990,
                "dont " + EcrireNombre(bilan.departementsConfirmes) + " " +
                    std::string{Accorder(bilan.departementsConfirmes, "confirmé", "confirmés")});
    int y = cadre.y + 1500;
    for (std::size_t i = 0; i < kAspects.size(); ++i) {
        const Aspect& aspect = kAspects[i];
        DessinerFond(imprimante, {cadre.x, y, kTuile, kTuile}, aspect);
        EcrireTexte(imprimante, cadre.x + kTuile + 120, y + 45,
                    std::string{aspect.nom} + "\u00A0: " + EcrireNombre(nombres[i]));
        y += kLigne;
    }
    EcrireTexte(imprimante, cadre.x, y + 120, "Sous le code\u00A0: les contacts.",
                {8, false, Encre::Gris});
    EcrireTexte(imprimante, cadre.x, y + 340, "20\u00A0: la Corse, 2A et 2B ensemble.",
                {8, false, Encre::Gris});
}

} // namespace

void DessinerDepartements(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    constexpr int kLargeurLegende = 3300;
    DessinerTuiles(imprimante,
                   {cadre.x, cadre.y, cadre.largeur - kLargeurLegende - 300, cadre.hauteur}, bilan);
    DessinerLegende(imprimante,
                    {cadre.Droite() - kLargeurLegende, cadre.y, kLargeurLegende, cadre.hauteur},
                    bilan);
}

} // namespace orvalis
