#include "echange/entree_champs.h"

#include "echange/lettres.h"
#include "geo/locator.h"

#include <algorithm>

namespace orvalis {
namespace {

// A text in `largeur` characters from `decalage` on in its field.
void Texte(Entree& e, Champ champ, Balise balise, Balise jumeau, std::size_t largeur,
           std::size_t decalage = 0) {
    const Balise source = e[jumeau].empty() ? balise : jumeau;
    const std::string_view valeur = e[source];
    if (valeur.size() <= largeur && EstAscii(valeur)) {
        e.Mettre(champ, valeur, decalage);
        return;
    }
    const std::string utf8 = PourLeCahier(valeur);
    const std::string entier = VersCp1252(Rogner(utf8));
    const std::string_view octets = Rogner(std::string_view{entier}.substr(0, largeur));
    e.Mettre(champ, octets, decalage);
    if (DepuisCp1252(octets) != valeur)
        e.Noter(champ, source, Devenu(octets));
}

void Texte(Entree& e, Champ champ, Balise balise) {
    Texte(e, champ, balise, balise, Description(champ).largeur);
}

void Indicatif(Entree& e) {
    const std::string texte = Majuscules(PourLeCahier(e[Balise::CALL]));
    const std::string octets = VersCp1252(Rogner(texte));
    if (octets.empty())
        e.Refuser(Champ::CSGN, Balise::CALL, "sans indicatif");
    else if (octets.front() == '\\')
        e.Refuser(Champ::CSGN, Balise::CALL, "un indicatif ne commence pas par « \\ »");
    else if (octets.size() > Description(Champ::CSGN).largeur)
        e.Refuser(Champ::CSGN, Balise::CALL, "indicatif de plus de 15 caractères");
    else
        e.Mettre(Champ::CSGN, octets);
    if (texte != Majuscules(e[Balise::CALL]) && e.refuses.none())
        e.Noter(Champ::CSGN, Balise::CALL, Devenu(octets));
}

void Locators(Entree& e) {
    std::string locator = MajusculesAscii(e[Balise::GRIDSQUARE]);
    const bool coupe = locator.size() > kLargeurLocator;
    locator.resize(std::min(locator.size(), kLargeurLocator));
    if (EstUnCarre(locator))
        e.Mettre(Champ::SLOC, locator);
    if (!locator.empty() && (coupe || !EstUnCarre(locator)))
        e.Noter(Champ::SLOC, Balise::GRIDSQUARE,
                EstUnCarre(locator) ? Devenu(locator) : "n'est pas un locator : laissé vide");

    // The own locator is what distances are measured from: a square alone will not do.
    std::string mien = MajusculesAscii(e[Balise::MY_GRIDSQUARE]);
    const bool mienCoupe = mien.size() > kLargeurLocator;
    mien.resize(std::min(mien.size(), kLargeurLocator));
    e.locatorSuppose = !LocatorValide(mien);
    e.Mettre(Champ::MLOC, e.locatorSuppose ? e.conventions.monLocator : mien);
    if (!mien.empty() && (mienCoupe || e.locatorSuppose))
        e.Noter(Champ::MLOC, Balise::MY_GRIDSQUARE,
                Devenu(Rogner(OctetsChamp(e.fiche, Champ::MLOC))));
}

} // namespace

std::string_view Entree::operator[](Balise balise) const {
    return Rogner(contact[balise]);
}

void Entree::Noter(Champ champ, Balise balise, std::string_view devenu) {
    if (!muette)
        notes.push_back(
            {champ,
             {std::string{NomBalise(balise)}, std::string{(*this)[balise]}, std::string{devenu}}});
}

void Entree::Refuser(Champ champ, Balise balise, std::string_view pourquoi) {
    refuses.set(NumeroZone(champ) - 1);
    if (!muette)
        raisons.push_back({champ,
                           {std::string{NomBalise(balise)}, std::string{(*this)[balise]},
                            std::string{pourquoi}}});
}

void Entree::Mettre(Champ champ, std::string_view octets, std::size_t decalage) {
    const auto& d = Description(champ);
    std::copy_n(octets.begin(), std::min(octets.size(), d.largeur - decalage),
                fiche.octets.begin() + static_cast<std::ptrdiff_t>(d.decalage + decalage));
}

std::string Devenu(std::string_view octets) {
    return octets.empty() ? "laissé vide" : "devient « " + DepuisCp1252(octets) + " »";
}

void LireChamps(Entree& entree) {
    Indicatif(entree);
    LireHeuresAdif(entree);
    LireFrequenceAdif(entree);
    LireModeAdif(entree);
    Texte(entree, Champ::SRST, Balise::RST_SENT);
    Texte(entree, Champ::MRST, Balise::RST_RCVD);
    Texte(entree, Champ::SQTH, Balise::QTH, Balise::QTH_INTL, Description(Champ::SQTH).largeur);
    Texte(entree, Champ::SNOM, Balise::NAME, Balise::NAME_INTL, Description(Champ::SNOM).largeur);
    Texte(entree, Champ::INFO, Balise::COMMENT, Balise::COMMENT_INTL, kLargeurDemiInfo);
    Texte(entree, Champ::INFO, Balise::QSL_VIA, Balise::QSL_VIA, kLargeurDemiInfo,
          kLargeurDemiInfo);
    Locators(entree);
    LireDepartementAdif(entree);
    LireCartes(entree);
}

} // namespace orvalis
