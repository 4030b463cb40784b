#include "compagnons/db_orvalis/bilan_html.h"

#include "compagnons/db_orvalis/imprimante_svg.h"
#include "core/chemins.h"
#include "echange/fichier_neuf.h"

#include <algorithm>

namespace orvalis {
namespace {

constexpr std::string_view kStyle = R"(
body { max-width: 60rem; margin: 2rem auto; padding: 0 1rem; background: #fff; color: #000;
 font-family: Arial, 'Liberation Sans', Helvetica, sans-serif; }
h1 { margin: 0 0 .3rem; font-size: 1.8rem; }
h2 { margin: 0 0 .6rem; font-size: 1.1rem; }
p { margin: 0 0 1.5rem; }
main { display: grid; grid-template-columns: 1fr 1fr; gap: 2rem 1.5rem; }
section { grid-column: span 2; break-inside: avoid; }
section.demi { grid-column: span 1; }
svg { display: block; width: 100%; height: auto; }
summary { cursor: pointer; }
li { margin: .1rem 0; }
ul { columns: 3; }
@media (max-width: 40rem) { section.demi { grid-column: span 2; } ul { columns: 1; } }
)";

void AjouterPartie(std::string& page, const PartieBilan& partie, const BilanCahier& bilan,
                   bool demie) {
    ImprimanteSvg imprimante;
    DessinerPartie(imprimante, partie, bilan);
    page += demie ? "<section class=\"demi\">\n" : "<section>\n";
    if (!partie.titre.empty())
        page.append("<h2>").append(EchapperHtml(partie.titre)).append("</h2>\n");
    page += imprimante.Dessin(partie.cadre, partie.titre.empty() ? "En chiffres" : partie.titre);
    page += "</section>\n";
}

// By their names, which the tiles have no room for.
void AjouterManquants(std::string& page, const BilanCahier& bilan) {
    const std::size_t manquants = bilan.departements.size() - bilan.departementsContactes;
    if (manquants == 0)
        return;
    page += "<section>\n<details><summary>" + EcrireNombre(manquants) + " " +
            std::string{Accorder(manquants, "département", "départements")} +
            " à contacter</summary>\n<ul>\n";
    for (const BilanDepartement& d : bilan.departements)
        if (d.etat == EtatDepartement::Jamais)
            page.append("<li>")
                .append(d.code)
                .append(" ")
                .append(EchapperHtml(d.nom))
                .append("</li>\n");
    page += "</ul>\n</details>\n</section>\n";
}

} // namespace

std::string PageBilan(const FeuilleBilan& feuille) {
    const std::string titre = EchapperHtml(TitreBilan(feuille));
    std::string page = "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\"/>\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
                       "<title>" +
                       titre + "</title>\n<style>";
    page.append(kStyle).append("</style>\n</head>\n<body>\n<h1>").append(titre).append("</h1>\n");
    page += "<p>" + EchapperHtml(SousTitreBilan(feuille)) + "</p>\n<main>\n";
    int plusLarge = 0;
    for (const PartieBilan& partie : PartiesBilan())
        plusLarge = std::max(plusLarge, partie.cadre.largeur);
    for (const PartieBilan& partie : PartiesBilan()) {
        AjouterPartie(page, partie, feuille.bilan, partie.cadre.largeur < plusLarge);
        if (partie.dessiner == DessinerDepartements)
            AjouterManquants(page, feuille.bilan);
    }
    return page + "</main>\n</body>\n</html>\n";
}

BilanSortie EcrireBilan(const DemandeBilan& demande) {
    RefuserCible(demande.cible, demande.proteges);
    RefuserCible(demande.cible, {&demande.cahier, 1});
    const CahierLu cahier = LireCahierEntier(demande.cahier);
    FichierNeuf fichier(demande.cible, Ancien::Remplace);
    const FeuilleBilan feuille{FaireBilan(cahier.fiches), demande.indicatif,
                               TexteChemin(demande.cahier.filename()), demande.faitLe};
    fichier.Ecrire(PageBilan(feuille));
    fichier.Terminer();
    return {feuille.bilan.contacts, feuille.bilan.datesIllisibles.size(), cahier.finPresente,
            cahier.longueurEntiere};
}

Jour Aujourdhui() {
    const Fuseau ici("");
    return JourDe(ici.DepuisUtc(std::chrono::floor<std::chrono::minutes>(Maintenant())));
}

} // namespace orvalis
