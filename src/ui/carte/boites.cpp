#include "ui/carte/boites.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {
namespace {

bool Passe(Touches touches, char c) {
    switch (touches) {
    case Touches::Libres:
    case Touches::Majuscules:
        return true;
    case Touches::DateHeureFreq:
        return c >= '.' && c <= ':';
    case Touches::Report:
        return (c >= '.' && c <= ':') || c == '+';
    case Touches::Chiffres:
        return c >= '0' && c <= '9';
    }
    return false;
}

// Number of characters that `a` and `b` begin with in common, at most `limite`.
std::size_t PrefixeCommun(std::string_view a, std::string_view b, std::size_t limite) {
    std::size_t n = 0;
    while (n < limite && n < Longueur(a) && Milieu(a, n + 1, 1) == Milieu(b, n + 1, 1))
        ++n;
    return n;
}

} // namespace

std::string FiltrerTouches(Touches touches, std::string_view saisie) {
    std::string texte = NettoyerSaisie(saisie);
    if (touches == Touches::Majuscules)
        return Majuscules(texte);
    if (touches != Touches::Libres)
        std::erase_if(texte, [touches](char c) { return !Passe(touches, c); });
    return texte;
}

TexteEdite FiltrerEdition(Touches touches, std::size_t longueur, std::string_view ancien,
                          const TexteEdite& nouveau) {
    const std::string_view avantCurseur = Gauche(nouveau.texte, nouveau.curseur);
    const std::string_view suite = std::string_view(nouveau.texte).substr(avantCurseur.size());
    // What follows the cursor stood in the box too; a prefix that reached into it would take an
    // inserted text that repeats it for the old one, and let it pass unfiltered.
    const std::size_t avant = Longueur(ancien);
    const std::size_t limite = avant - std::min(avant, Longueur(suite));
    const std::size_t garde =
        PrefixeCommun(ancien, avantCurseur, std::min(limite, nouveau.curseur));
    const std::string_view debut = Gauche(nouveau.texte, garde);
    const std::string_view tape = avantCurseur.substr(debut.size());
    const std::string insere = FiltrerTouches(touches, tape);
    if (insere.empty() && !tape.empty())
        return {std::string{ancien}, avant};
    const std::size_t occupe = Longueur(debut) + Longueur(suite);
    const std::size_t place = longueur > occupe ? longueur - occupe : 0;
    const std::string_view pris = Gauche(insere, place);
    return {std::string{debut} + std::string{pris} + std::string{suite},
            Longueur(debut) + Longueur(pris)};
}

} // namespace orvalis
