// An answer of the entry rules as one line of text: everything it shows and everything that it
// changes, so that a table says at once what must happen and that nothing else may.
#pragma once

#include "core/saisie.h"

#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

namespace orvalis::aides {

/// z = slot, t = box text, c = box colour, * = one more change counted and modification left; the
/// rest by name. In that order, separated by blanks.
inline std::string Decrire(const Session& avant, const Reponse& r) {
    std::ostringstream sortie;
    const auto change = [&sortie](const std::string& nom, const auto& ancien, const auto& nouveau) {
        if (ancien != nouveau)
            sortie << ' ' << nom << '=' << nouveau;
    };
    for (std::size_t i = 0; i < kNbZones; ++i)
        change('z' + std::to_string(i), avant.zones[i], r.zones[i]);
    for (const TexteDeBoite& t : r.textes)
        sortie << " t" << t.boite << '=' << t.texte;
    for (const CouleurDeBoite& c : r.couleurs)
        sortie << " c" << c.boite << '=' << static_cast<int>(c.couleur);
    const EtatSaisie &a = avant.saisie, &n = r.saisie;
    change("texte", a.TexteSaisi, n.TexteSaisi);
    change("date", a.DerniereDate, n.DerniereDate);
    change("freq", a.DerniereFreq, n.DerniereFreq);
    change("mode", a.DernierMode, n.DernierMode);
    change("zone", a.DerniereZone, n.DerniereZone);
    const bool comptee = n.NbModifs == a.NbModifs + 1 && a.EnModification && !n.EnModification;
    if (comptee)
        sortie << " *";
    else
        change("modifs", a.NbModifs, n.NbModifs);
    for (const auto& [nom, ancien, nouveau] :
         {std::tuple{"QsoCommence", a.QsoCommence, n.QsoCommence},
          {"EnModification", a.EnModification && !comptee, n.EnModification},
          {"EnSaisie", a.EnSaisie, n.EnSaisie},
          {"ActiveRech", false, r.montrerActiveRech},
          {"Annuler", false, r.activerAnnuler},
          {"Suivant", false, r.activerSuivant},
          {"Cadre", false, r.montrerCadre},
          {"Locator", false, r.ouvrirLocator}})
        if (ancien != nouveau)
            sortie << (nouveau ? " +" : " -") << nom;
    for (const auto& [nom, label] :
         {std::pair{"dist", r.labDist}, {"azim", r.labAzim}, {"dept", r.labDept}})
        change(nom, std::string{"-"}, label.value_or("-"));
    change("sel", std::size_t{0}, r.selection);
    change("ERREUR", std::size_t{0}, r.boiteEnErreur);
    if (r.foyer != kFoyerInchange)
        sortie << " ->" << r.foyer;
    return sortie.str().erase(0, 1);
}

/// Events of boxes, each "box state 'text' what comes of it;": the state before as letters that
/// `scene` knows, the text that is typed, and what Decrire says, nothing at all when it is missing.
template<class Scene, class Regle>
void Derouler(Scene scene, Regle regle, const std::string& table) {
    std::istringstream cas(table);
    std::size_t boite = 0;
    for (std::string etat, texte, attendu; cas >> boite;) {
        std::getline(cas >> std::ws, etat, '\'');
        std::getline(cas, texte, '\'');
        std::getline(cas, attendu, ';');
        const Session session = scene(etat, texte);
        const std::string dit = Decrire(session, regle(session, boite, texte));
        EXPECT_EQ(dit.empty() ? "" : ' ' + dit, attendu) << boite << ' ' << etat << texte;
    }
    EXPECT_TRUE(cas.eof()) << "table cut short behind box " << boite;
}

} // namespace orvalis::aides
