#include "ui/carte/boites.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {
namespace {

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

// Whether a box takes `c`, in upper case where it wants that.
bool Passe(Touches touches, char c) {
    switch (touches) {
    case Touches::Libres:
    case Touches::Majuscules:
    case Touches::Locator:
        return true;
    case Touches::DateHeureFreq:
        return c >= '.' && c <= ':';
    case Touches::Report:
        return (c >= '.' && c <= ':') || c == '+';
    case Touches::Chiffres:
        return EstChiffre(c);
    case Touches::Hemisphere:
        return c == 'N' || c == 'S';
    case Touches::Cote:
        return c == 'E' || c == 'O';
    case Touches::Decimal:
        return EstChiffre(c) || (c >= '-' && c <= '/');
    }
    return false;
}

// Upper case in Latin-1; what it lacks, the upper case of y with two dots included, is not there.
std::string MajusculesLatin1(std::string_view saisie) {
    std::string texte;
    for (std::string_view reste = saisie; !reste.empty();) {
        const std::string_view c = Gauche(reste, 1);
        reste.remove_prefix(c.size());
        const std::string octet = VersCp1252(c);
        const bool haut = static_cast<unsigned char>(octet[0]) >= 0xA0;
        if (NettoyerSaisie(c) == c && (haut || c.size() == 1))
            texte += c == "ÿ" ? std::string{c} : Majuscules(c);
    }
    return texte;
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
    if (touches == Touches::Locator)
        return MajusculesLatin1(saisie);
    std::string texte = NettoyerSaisie(saisie);
    if (touches == Touches::Majuscules || touches == Touches::Hemisphere ||
        touches == Touches::Cote)
        texte = Majuscules(texte);
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

TexteEdite FiltrerTexte(Touches touches, std::size_t longueur, const TexteEdite& nouveau) {
    const std::string_view avant = Gauche(nouveau.texte, nouveau.curseur);
    const std::string insere = FiltrerTouches(touches, avant);
    const std::string suite =
        FiltrerTouches(touches, std::string_view(nouveau.texte).substr(avant.size()));
    if (longueur == 0)
        return {insere + suite, Longueur(insere)};
    const std::string_view reste = Droite(suite, longueur);
    const std::string_view pris = Gauche(insere, longueur - Longueur(reste));
    return {std::string{pris} + std::string{reste}, Longueur(pris)};
}

} // namespace orvalis
