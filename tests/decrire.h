// An answer of the entry rules as one line of text: everything it shows and everything that it
// changes, so that a table says at once what must happen and that nothing else may.
#pragma once

#include "core/saisie.h"

#include <gtest/gtest.h>
#include <span>
#include <sstream>

namespace orvalis::essai {

/// z = slot, t = box text, c = box colour, * = one more change counted and modification left; the
/// rest by name. In that order, separated by blanks.
inline std::string Decrire(const Session& avant, const Reponse& r) {
    std::ostringstream sortie;
    const auto change = [&sortie](std::string_view nom, const auto& ancien, const auto& nouveau) {
        if (ancien != nouveau)
            sortie << ' ' << nom << '=' << nouveau;
    };
    const auto drapeau = [&sortie](std::string_view nom, bool ancien, bool nouveau) {
        if (ancien != nouveau)
            sortie << (nouveau ? " +" : " -") << nom;
    };
    for (std::size_t i = 0; i < kNbZones; ++i)
        change('z' + std::to_string(i), avant.zones[i], r.zones[i]);
    for (const TexteDeBoite& t : r.textes)
        sortie << " t" << t.boite << '=' << t.texte;
    for (const CouleurDeBoite& c : r.couleurs)
        sortie << " c" << c.boite << '=' << static_cast<int>(c.couleur);
    const EtatSaisie& e = avant.saisie;
    change("texte", e.TexteSaisi, r.saisie.TexteSaisi);
    change("date", e.DerniereDate, r.saisie.DerniereDate);
    change("freq", e.DerniereFreq, r.saisie.DerniereFreq);
    change("mode", e.DernierMode, r.saisie.DernierMode);
    change("zone", e.DerniereZone, r.saisie.DerniereZone);
    const bool comptee =
        r.saisie.NbModifs == e.NbModifs + 1 && e.EnModification > r.saisie.EnModification;
    if (comptee)
        sortie << " *";
    else
        change("modifs", e.NbModifs, r.saisie.NbModifs);
    drapeau("QsoCommence", e.QsoCommence, r.saisie.QsoCommence);
    drapeau("EnModification", e.EnModification && !comptee, r.saisie.EnModification);
    drapeau("EnSaisie", e.EnSaisie, r.saisie.EnSaisie);
    change("dist", std::string{"-"}, r.labDist.value_or("-"));
    change("azim", std::string{"-"}, r.labAzim.value_or("-"));
    change("dept", std::string{"-"}, r.labDept.value_or("-"));
    drapeau("ActiveRech", false, r.montrerActiveRech);
    drapeau("Annuler", false, r.activerAnnuler);
    drapeau("Suivant", false, r.activerSuivant);
    drapeau("Cadre", false, r.montrerCadre);
    drapeau("Locator", false, r.ouvrirLocator);
    change("sel", std::size_t{0}, r.selection);
    change("ERREUR", std::size_t{0}, r.boiteEnErreur);
    if (r.foyer != kFoyerInchange)
        sortie << " ->" << r.foyer;
    return sortie.str().erase(0, 1);
}

/// One event of a box: the state before (letters, see each test), the text typed, what comes of it.
struct Cas {
    std::size_t boite;
    const char *etat, *texte, *attendu;
};

template<class Scene, class Regle>
void Derouler(Scene scene, Regle regle, std::span<const Cas> table) {
    for (const Cas& c : table) {
        const Session session = scene(c.etat, c.texte);
        EXPECT_EQ(Decrire(session, regle(session, c)), c.attendu) << c.boite << ' ' << c.texte;
    }
}

} // namespace orvalis::essai
