#include "ui/carte/apercu_etiquette.h"

#include "core/texte.h"
#include "geo/locator.h"

#include <algorithm>

namespace orvalis {
namespace {

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

bool EstLettre(char c) {
    return c >= 'A' && c <= 'Z';
}

// Whether `texte` holds `indicatif` as a word: F5AB is not in F5ABC, it is in F5AB/P.
bool Porte(std::string_view texte, std::string_view indicatif) {
    const std::string ici = ' ' + Majuscules(texte) + ' ';
    const std::string cherche = Majuscules(Rogner(indicatif));
    const auto libre = [&ici](std::size_t i) { return !EstChiffre(ici[i]) && !EstLettre(ici[i]); };
    for (std::size_t i = ici.find(cherche); i != std::string::npos; i = ici.find(cherche, i + 1))
        if (i > 0 && libre(i - 1) && libre(i + cherche.size()))
            return true;
    return false;
}

// One word of letters, digits and strokes with a letter, a digit and a letter in this order; so
// has a locator, but 73S, 100W and 2M are remarks.
bool EstUnIndicatif(std::string_view texte) {
    const std::string ici = Majuscules(texte);
    const auto lettre = std::find_if(ici.begin(), ici.end(), EstLettre);
    const auto chiffre = std::find_if(lettre, ici.end(), EstChiffre);
    return std::all_of(ici.begin(), ici.end(),
                       [](char c) { return EstChiffre(c) || EstLettre(c) || c == '/'; }) &&
           std::any_of(chiffre, ici.end(), EstLettre) && !LocatorValide(ici);
}

std::optional<QslSlotRecord> EtiquetteMontree(const EtatFeuille& feuille) {
    if (feuille.vue.supprimer)
        return feuille.tampon;
    const std::string_view indicatif = Rogner(feuille.boites[kBoiteIndicatif]);
    if (!feuille.fraiche || indicatif.empty() || indicatif == kMarqueLibre)
        return std::nullopt;
    return EtiquetteDesBoites(feuille);
}

} // namespace

std::optional<ApercuEtiquette> VoirApercu(const EtatFeuille& feuille, std::string_view station) {
    const std::optional<QslSlotRecord> etiquette = EtiquetteMontree(feuille);
    if (!etiquette)
        return std::nullopt;
    ApercuEtiquette apercu;
    apercu.etiquette = *etiquette;
    const std::string manager = TexteRogne(*etiquette, ChampEtiquette::Ligne2);
    apercu.sansIndicatif = !Porte(TexteRogne(*etiquette, ChampEtiquette::Ligne1), station);
    apercu.sansManager = !manager.empty() && !EstUnIndicatif(manager);
    if (apercu.sansIndicatif)
        apercu.avis = "L'en-tête ne porte pas votre indicatif, " + std::string{station} + ".";
    if (apercu.sansManager)
        apercu.avis += std::string{apercu.avis.empty() ? "" : "\n"} +
                       "Après « Via QSL Manager » il y a une remarque, pas un manager.";
    return apercu;
}

std::optional<ApercuEtiquette> VoirPreparee(const EtatFeuille& feuille, Place place) {
    if (feuille.Etat(place) != EtatEtiquette::Preparee)
        return std::nullopt;
    ApercuEtiquette apercu;
    apercu.etiquette = feuille.connue[EtatFeuille::Rang(place)];
    return apercu;
}

} // namespace orvalis
