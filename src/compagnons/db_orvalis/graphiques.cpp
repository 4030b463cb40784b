#include "compagnons/db_orvalis/graphiques.h"

#include "core/texte.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

constexpr Style kPetit{8, false, Encre::Gris};
constexpr int kFilet = 10;

int HauteurLigne(Style style) {
    return style.taille * kTwipsParPoint * 6 / 5;
}

std::size_t PlusGrande(std::span<const Valeur> valeurs) {
    std::size_t plusGrande = 1; // of nothing at all every bar is empty
    for (const Valeur& valeur : valeurs)
        plusGrande = std::max(plusGrande, valeur.nombre);
    return plusGrande;
}

// `longueur` for the largest number; what is not nothing can be seen.
int LongueurDessinee(std::size_t nombre, std::size_t plusGrande, int longueur) {
    constexpr int kVisible = 20;
    if (nombre == 0)
        return 0;
    const double part = static_cast<double>(nombre) / static_cast<double>(plusGrande);
    return std::max(kVisible, static_cast<int>(part * longueur));
}

// A round number that goes into the largest at most five times.
std::size_t PasEchelle(std::size_t plusGrande) {
    constexpr std::array<std::size_t, 3> kRonds = {1, 2, 5};
    constexpr std::size_t kTraits = 5;
    for (std::size_t dix = 1;; dix *= 10)
        for (const std::size_t rond : kRonds)
            if (plusGrande / (rond * dix) <= kTraits)
                return rond * dix;
}

int PlusLarge(Imprimante& imprimante, std::span<const Valeur> valeurs, Style style) {
    int plusLarge = 0;
    for (const Valeur& valeur : valeurs)
        plusLarge = std::max(plusLarge, Largeur(imprimante, valeur.nom, style));
    return plusLarge;
}

// Columns stand in `corps`, on its lower edge.
void DessinerEchelle(Imprimante& imprimante, const Cadre& corps, int gauche,
                     std::size_t plusGrande) {
    const std::size_t pas = PasEchelle(plusGrande);
    for (std::size_t n = pas; n <= plusGrande; n += pas) {
        const int y = corps.Bas() - LongueurDessinee(n, plusGrande, corps.hauteur);
        Remplir(imprimante, {corps.x, y, corps.largeur, kFilet}, Encre::Trait);
        EcrireTexte(imprimante, gauche, y - HauteurLigne(kPetit) / 2, EcrireNombre(n), kPetit);
    }
}

// Every how many columns there is room for a name.
std::size_t PasDesNoms(int largeurNom, int pas) {
    constexpr std::array<std::size_t, 5> kPas = {1, 2, 5, 10, 20};
    constexpr int kEntreNoms = 30;
    for (const std::size_t n : kPas)
        if (largeurNom + kEntreNoms <= static_cast<int>(n) * pas)
            return n;
    return kPas.back();
}

} // namespace

void EcrireTexte(Imprimante& imprimante, int x, int y, std::string_view texte, Style style,
                 Cote cote) {
    const int largeur = cote == Cote::Gauche ? 0 : Largeur(imprimante, texte, style);
    imprimante.ChoisirTaille(style.taille);
    imprimante.ChoisirGras(style.gras);
    imprimante.ChoisirEncre(style.encre);
    imprimante.EcrireEn(x - (cote == Cote::Centre ? largeur / 2 : largeur), y, texte);
}

int Largeur(Imprimante& imprimante, std::string_view texte, Style style) {
    imprimante.ChoisirTaille(style.taille);
    imprimante.ChoisirGras(style.gras);
    return imprimante.LargeurTexte(texte);
}

std::string Tenir(Imprimante& imprimante, std::string texte, int largeur, Style style) {
    if (Largeur(imprimante, texte, style) <= largeur)
        return texte;
    for (std::size_t n = Longueur(texte); n > 0; --n) {
        std::string court{Rogner(Gauche(texte, n - 1))};
        court += "…";
        if (n == 1 || Largeur(imprimante, court, style) <= largeur)
            return court;
    }
    return texte;
}

void Remplir(Imprimante& imprimante, const Cadre& cadre, Encre encre) {
    imprimante.ChoisirEncre(encre);
    imprimante.RemplirRectangle(cadre.x, cadre.y, cadre.Droite(), cadre.Bas());
}

void DessinerColonnes(Imprimante& imprimante, const Cadre& cadre, std::span<const Valeur> valeurs) {
    if (valeurs.empty())
        return;
    constexpr int kLargeurMax = 620;
    constexpr int kPasMax = 1100;
    constexpr int kSousLigne = 50;
    const std::size_t plusGrande = PlusGrande(valeurs);
    const auto n = static_cast<int>(valeurs.size());
    const int largeurNombre = Largeur(imprimante, EcrireNombre(plusGrande), kPetit);
    const bool echelle = largeurNombre + kSousLigne > cadre.largeur / n;
    const int gauche = echelle ? largeurNombre + 2 * kSousLigne : 0;
    const int tete = HauteurLigne(kPetit);
    const Cadre corps{cadre.x + gauche, cadre.y + tete,
                      std::min(cadre.largeur - gauche, n * kPasMax),
                      cadre.hauteur - 2 * tete - kSousLigne};
    if (echelle)
        DessinerEchelle(imprimante, corps, cadre.x, plusGrande);
    const std::size_t pasNoms =
        PasDesNoms(PlusLarge(imprimante, valeurs, kPetit), corps.largeur / n);
    const int largeur = std::min(kLargeurMax, corps.largeur * 7 / (n * 10));
    for (int i = 0; i < n; ++i) {
        const Valeur& valeur = valeurs[static_cast<std::size_t>(i)];
        const int milieu = corps.x + corps.largeur * (2 * i + 1) / (2 * n);
        const int hauteur = LongueurDessinee(valeur.nombre, plusGrande, corps.hauteur);
        if (hauteur > 0)
            Remplir(imprimante, {milieu - largeur / 2, corps.Bas() - hauteur, largeur, hauteur},
                    Encre::Forte);
        if (!echelle && valeur.nombre > 0)
            EcrireTexte(imprimante, milieu, corps.Bas() - hauteur - tete,
                        EcrireNombre(valeur.nombre), kPetit, Cote::Centre);
        const bool nomme =
            pasNoms < 5 ? static_cast<std::size_t>(i) % pasNoms == 0
                        : static_cast<std::size_t>(ValeurNumerique(valeur.nom)) % pasNoms == 0;
        if (nomme)
            EcrireTexte(imprimante, milieu, corps.Bas() + kSousLigne, valeur.nom, kPetit,
                        Cote::Centre);
    }
    Remplir(imprimante, {corps.x, corps.Bas(), corps.largeur, kFilet}, Encre::Gris);
}

void DessinerBarres(Imprimante& imprimante, const Cadre& cadre, std::span<const Valeur> valeurs) {
    constexpr int kEpaisseur = 200;
    constexpr int kEntre = 90;
    constexpr int kSurTexte = (kHauteurBarre - 216) / 2;
    const std::size_t plusGrande = PlusGrande(valeurs);
    const int noms = std::min(PlusLarge(imprimante, valeurs, {}), cadre.largeur / 2);
    const int debut = cadre.x + noms + kEntre;
    const int nombres = Largeur(imprimante, EcrireNombre(plusGrande), kPetit) + kEntre;
    int y = cadre.y;
    for (const Valeur& valeur : valeurs) {
        EcrireTexte(imprimante, cadre.x + noms, y + kSurTexte, Tenir(imprimante, valeur.nom, noms),
                    {}, Cote::Droite);
        const int longueur =
            LongueurDessinee(valeur.nombre, plusGrande, cadre.Droite() - debut - nombres);
        if (longueur > 0)
            Remplir(imprimante, {debut, y + (kHauteurBarre - kEpaisseur) / 2, longueur, kEpaisseur},
                    Encre::Forte);
        EcrireTexte(imprimante, debut + longueur + kEntre / 2, y + kSurTexte,
                    EcrireNombre(valeur.nombre), kPetit);
        y += kHauteurBarre;
    }
    if (!valeurs.empty())
        Remplir(imprimante, {debut, cadre.y, kFilet, y - cadre.y}, Encre::Gris);
}

} // namespace orvalis
