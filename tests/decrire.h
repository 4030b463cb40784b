// An answer of the entry rules in words: everything it shows and everything that it changes, so
// that a table says at once what must happen and that nothing else may.
#pragma once

#include "aides.h"
#include "core/saisie.h"

namespace orvalis::aides {

/// In this order, with commas between them, "rien" for none: zone n=text (slots), boite n=text
/// (texts shown), repos, gris, jaune, rouge or vert n (colours of boxes); saisi (the typed text as
/// the rule leaves it), date, freq and mode (remembered), derniere (box), modifs (changes counted);
/// "corrigé" for one more, modification left and the frame shown; flags and controls by their
/// names, "sans" for off; dist, azim and dept (labels), choisi (text selected), erreur and foyer
/// with their box.
inline std::string Decrire(const Session& avant, const Reponse& r) {
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
    for (std::size_t i = 0; i < kNbZones; ++i)
        if (avant.zones[i] != r.zones[i])
            dire("zone", std::to_string(i) + '=' + r.zones[i]);
    for (const TexteDeBoite& t : r.textes)
        dire("boite", std::to_string(t.boite) + '=' + t.texte);
    for (const CouleurDeBoite& c : r.couleurs)
        dire(Couper("repos,gris,jaune,rouge,vert", ",").at(static_cast<std::size_t>(c.couleur) - 1),
             c.boite);
    const EtatSaisie &a = avant.saisie, &n = r.saisie;
    change("saisi", a.TexteSaisi, n.TexteSaisi);
    change("date", a.DerniereDate, n.DerniereDate);
    change("freq", a.DerniereFreq, n.DerniereFreq);
    change("mode", a.DernierMode, n.DernierMode);
    change("derniere", a.DerniereZone, n.DerniereZone);
    const bool corrige =
        n.NbModifs == a.NbModifs + 1 && a.EnModification && !n.EnModification && r.montrerCadre;
    change("modifs", a.NbModifs + (corrige ? 1 : 0), n.NbModifs);
    for (const auto& [nom, ancien, nouveau] :
         {std::tuple{"corrigé", false, corrige},
          {"QsoCommence", a.QsoCommence, n.QsoCommence},
          {"EnModification", a.EnModification && !corrige, n.EnModification},
          {"EnSaisie", a.EnSaisie, n.EnSaisie},
          {"ActiveRech", false, r.montrerActiveRech},
          {"Annuler", false, r.activerAnnuler},
          {"Suivant", false, r.activerSuivant},
          {"Cadre", corrige, r.montrerCadre},
          {"Locator", false, r.ouvrirLocator}})
        if (ancien != nouveau)
            dit << (nouveau ? ", " : ", sans ") << nom;
    for (const auto& [nom, label] :
         {std::pair{"dist", r.labDist}, {"azim", r.labAzim}, {"dept", r.labDept}})
        change(nom, std::string{"-"}, label.value_or("-"));
    change("choisi", std::size_t{0}, r.selection);
    change("erreur", std::size_t{0}, r.boiteEnErreur);
    if (r.foyer != kFoyerInchange)
        dire("foyer", r.foyer == kFoyerSuivant ? "BtEnrSuivant" : std::to_string(r.foyer));
    return dit.str().empty() ? "rien" : dit.str().substr(2);
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
        const std::size_t boite = std::stoul(cas), debut = cas.find(' ');
        for (const std::string& texte : Couper(cotes[0].substr(tape + 6), ",")) {
            const Session session = scene(cas.substr(debut, tape - debut), texte);
            EXPECT_EQ(Decrire(session, regle(session, boite, texte)), cotes[1]);
        }
    }
}

} // namespace orvalis::aides
