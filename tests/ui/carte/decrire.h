// An answer of the entry rules in words: everything it shows and everything that it changes, so
// that a table says at once what must happen and that nothing else may.
#pragma once

#include "aides.h"
#include "ui/carte/saisie.h"

namespace orvalis::aides {

/// In this order, with commas between them, "rien" for none: zone n=text (slots), boite n=text
/// (texts shown that were not there before), repos, gris, jaune, rouge or vert n (colours of boxes,
/// likewise); saisi (the typed text as the rule leaves it), date, freq and mode (remembered),
/// derniere (box), modifs (changes counted); "corrigé" for one more, its box showing it,
/// modification left and the question asked; flags and controls by their names, "sans" for off;
/// dist, azim and dept (labels), choisi (text selected), erreur and foyer with their box.
inline std::string Decrire(const Carte& avant, const Reponse& r) {
    std::ostringstream dit;
    std::string dernier;
    const auto dire = [&](const std::string& nom, const auto& valeur) {
        std::ostringstream texte;
        texte << valeur;
        dit << (nom == dernier ? " " : ", " + nom + ' ')
            << (texte.str().empty() ? "\"\"" : texte.str());
        dernier = nom;
    };
    const auto change = [&dire](const std::string& nom, const auto& ancien, const auto& nouveau) {
        if (ancien != nouveau)
            dire(nom, nouveau);
    };
    const auto numero = [](const std::optional<Boite>& b) { return b ? Numero(*b) : 0; };
    const Carte& carte = r.carte;
    if (avant.zones.info != carte.zones.info)
        dire("zone", "0=" + carte.zones.info);
    for (const DescriptionBoite& d : kBoites)
        if (avant.zones[d.boite] != carte.zones[d.boite])
            dire("zone", std::to_string(Numero(d.boite)) + '=' + carte.zones[d.boite]);
    const EtatSaisie &a = avant.saisie, &n = carte.saisie;
    const Effets& e = r.effets;
    bool corrige =
        n.NbModifs == a.NbModifs + 1 && a.EnModification && !n.EnModification && e.poserQuestion;
    const auto stockee = [&](Boite b) { return avant.zones[b] != carte.zones[b]; };
    for (const DescriptionBoite& d : kBoites)
        corrige = corrige && (!stockee(d.boite) || carte.Texte(d.boite) == carte.zones[d.boite]);
    for (const DescriptionBoite& d : kBoites)
        if (avant.Texte(d.boite) != carte.Texte(d.boite) && !(corrige && stockee(d.boite)))
            dire("boite", std::to_string(Numero(d.boite)) + '=' + carte.Texte(d.boite));
    for (const DescriptionBoite& d : kBoites)
        if (const Couleur c = carte.boites[Rang(d.boite)].couleur;
            c != avant.boites[Rang(d.boite)].couleur)
            dire(Couper("repos,gris,jaune,rouge,vert", ",").at(static_cast<std::size_t>(c) - 1),
                 Numero(d.boite));
    change("saisi", a.TexteSaisi, n.TexteSaisi);
    change("date", a.DerniereDate, n.DerniereDate);
    change("freq", a.DerniereFreq, n.DerniereFreq);
    change("mode", a.DernierMode, n.DernierMode);
    change("derniere", Numero(a.DerniereZone), Numero(n.DerniereZone));
    change("modifs", a.NbModifs + (corrige ? 1 : 0), n.NbModifs);
    for (const auto& [nom, ancien, nouveau] :
         {std::tuple{"corrigé", false, corrige},
          {"QsoCommence", a.QsoCommence, n.QsoCommence},
          {"EnModification", a.EnModification && !corrige, n.EnModification},
          {"EnSaisie", a.EnSaisie, n.EnSaisie},
          {"ActiveRech", false, e.montrerActiveRech},
          {"Annuler", false, e.activerAnnuler},
          {"Suivant", false, e.activerSuivant},
          {"Question", corrige, e.poserQuestion},
          {"Locator", false, e.ouvrirLocator}})
        if (ancien != nouveau)
            dit << (nouveau ? ", " : ", sans ") << nom;
    change("dist", avant.distance, carte.distance);
    change("azim", avant.azimut, carte.azimut);
    change("dept", avant.departement, carte.departement);
    change("choisi", 0, numero(e.selection));
    change("erreur", 0, numero(e.enErreur));
    if (e.foyer)
        dire("foyer",
             e.foyer->cible == Cible::Suivant ? "BtEnrSuivant" : std::to_string(e.foyer->numero));
    return dit.str().empty() ? "rien" : dit.str().substr(2);
}

inline std::string Decrire(const Carte& avant, const Carte& apres) {
    return Decrire(avant, Reponse{apres, {}});
}

/// Cases of a box, with semicolons between them: `box state tape texts : what comes of each text`,
/// the words of the state before as `scene` knows them, the texts with commas between them.
template<class Scene, class Regle> void Derouler(Scene scene, Regle regle, std::string table) {
    std::erase(table, '\n');
    for (const std::string& cas : Couper(table, ";")) {
        const auto cotes = Couper(cas, " : ");
        const std::size_t tape = cas.find(" tape ");
        SCOPED_TRACE(cas);
        ASSERT_TRUE(cotes.size() == 2 && tape < cotes[0].size());
        const auto boite = static_cast<Boite>(std::stoul(cas));
        const std::size_t debut = cas.find(' ');
        for (const std::string& texte : Couper(cotes[0].substr(tape + 6), ",")) {
            const Carte carte = scene(cas.substr(debut, tape - debut), texte);
            EXPECT_EQ(Decrire(carte, regle(carte, boite, texte)), cotes[1]);
        }
    }
}

} // namespace orvalis::aides
