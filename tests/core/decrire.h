// An answer of the entry rules as one line of text: everything it shows and everything that it
// changes, so that a table says at once what must happen and that nothing else may.
#pragma once

#include "core/saisie.h"

#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace orvalis::essai {

/// z = slot, t = box text, c = box colour; the rest by name. In that order, separated by blanks.
inline std::string Decrire(const Session& avant, const Reponse& r) {
    std::ostringstream sortie;
    const auto change = [&sortie](const auto& nom, const auto& ancien, const auto& nouveau) {
        if (ancien != nouveau)
            sortie << ' ' << nom << '=' << nouveau;
    };
    const auto drapeau = [&sortie](std::string_view nom, bool ancien, bool nouveau) {
        if (ancien != nouveau)
            sortie << (nouveau ? " +" : " -") << nom;
    };
    for (std::size_t i = 0; i < kNbZones; ++i)
        if (avant.zones[i] != r.zones[i])
            sortie << " z" << i << '=' << r.zones[i];
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
    change("modifs", e.NbModifs, r.saisie.NbModifs);
    drapeau("QsoCommence", e.QsoCommence, r.saisie.QsoCommence);
    drapeau("EnModification", e.EnModification, r.saisie.EnModification);
    drapeau("EnSaisie", e.EnSaisie, r.saisie.EnSaisie);
    for (const auto& [nom, label] : {std::pair{"dist", &r.labDist}, std::pair{"azim", &r.labAzim},
                                     std::pair{"dept", &r.labDept}})
        if (label->has_value())
            sortie << ' ' << nom << '=' << **label;
    drapeau("ActiveRech", false, r.montrerActiveRech);
    drapeau("Annuler", false, r.activerAnnuler);
    drapeau("Suivant", false, r.activerSuivant);
    drapeau("Cadre", false, r.montrerCadre);
    drapeau("Locator", false, r.ouvrirLocator);
    change("sel", std::size_t{0}, r.selection);
    change("ERREUR", std::size_t{0}, r.boiteEnErreur);
    if (r.foyer != kFoyerInchange)
        sortie << " ->" << r.foyer;
    const std::string texte = sortie.str();
    return texte.empty() ? texte : texte.substr(1);
}

} // namespace orvalis::essai
