#include "compagnons/db_orvalis/imprimante_svg.h"

#include "core/texte.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace orvalis {
namespace {

// Of the characters from the blank to the tilde, in thousandths of the size; regular, then bold.
constexpr std::array<std::array<short, 95>, 2> kLargeurs = {{
    {278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
     556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
     1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
     667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
     333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
     556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584},
    {278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
     556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
     611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
     667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
     278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584},
}};
constexpr int kEllipse = 1000;
constexpr int kAutre = 556; // accented small letters are as wide as most small letters

int LargeurCaractere(std::string_view caractere, bool gras) {
    const auto octet = static_cast<unsigned char>(caractere.front());
    if (caractere == "\u00A0")
        return kLargeurs[0][0];
    if (caractere == "…")
        return kEllipse;
    if (octet < ' ' || octet > '~')
        return kAutre;
    return kLargeurs[gras ? 1 : 0][octet - static_cast<unsigned char>(' ')];
}

void AjouterNombre(std::string& texte, std::string_view nom, int nombre) {
    texte.append(" ").append(nom).append("=\"").append(std::to_string(nombre)).append("\"");
}

} // namespace

std::string EchapperHtml(std::string_view utf8) {
    constexpr std::array<std::pair<char, std::string_view>, 4> kSignes = {
        {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}}};
    std::string texte;
    for (const char c : utf8) {
        const auto* const signe = std::find_if(kSignes.begin(), kSignes.end(),
                                               [c](const auto& s) { return s.first == c; });
        if (signe != kSignes.end())
            texte += signe->second;
        else if (static_cast<unsigned char>(c) >= ' ') // control bytes are in no page
            texte += c;
    }
    return texte;
}

std::string CouleurHtml(Encre encre) {
    constexpr std::string_view kChiffres = "0123456789abcdef";
    const CouleurEncre couleur = CouleurDe(encre);
    std::string texte = "#";
    for (const unsigned char part : {couleur.rouge, couleur.vert, couleur.bleu}) {
        texte += kChiffres[part / 16];
        texte += kChiffres[part % 16];
    }
    return texte;
}

void ImprimanteSvg::ChoisirPapier(Papier /*papier*/, Orientation /*orientation*/) {}

void ImprimanteSvg::ChoisirPolice(std::string_view famille) {
    police_ = famille;
}

void ImprimanteSvg::ChoisirTaille(int points) {
    taille_ = points;
}

void ImprimanteSvg::ChoisirGras(bool gras) {
    gras_ = gras;
}

void ImprimanteSvg::ChoisirEncre(Encre encre) {
    encre_ = encre;
}

void ImprimanteSvg::Placer(int x, int y) {
    x_ = x;
    y_ = y;
}

void ImprimanteSvg::Ecrire(std::string_view utf8, Suite suite) {
    constexpr int kMontee = 905; // of the face above its line, in thousandths of the size
    constexpr int kInterligne = 1150;
    const int taille = taille_ * kTwipsParPoint;
    bas_ = std::max(bas_, y_ + taille * kInterligne / 1000);
    elements_ += "<text";
    AjouterNombre(elements_, "x", x_);
    AjouterNombre(elements_, "y", y_ + taille * kMontee / 1000);
    AjouterNombre(elements_, "font-size", taille);
    if (gras_)
        elements_ += " font-weight=\"bold\"";
    if (encre_ != Encre::Noir)
        elements_ += " fill=\"" + CouleurHtml(encre_) + "\"";
    elements_ += ">" + EchapperHtml(utf8) + "</text>\n";
    if (suite == Suite::MemeLigne)
        x_ += LargeurTexte(utf8);
    else
        Placer(0, y_ + taille * kInterligne / 1000);
}

int ImprimanteSvg::LargeurTexte(std::string_view utf8) const {
    int milliemes = 0;
    for (std::string_view reste = utf8; !reste.empty();) {
        const std::string_view caractere = Gauche(reste, 1);
        milliemes += LargeurCaractere(caractere, gras_);
        reste.remove_prefix(caractere.size());
    }
    return milliemes * taille_ * kTwipsParPoint / 1000;
}

void ImprimanteSvg::TracerLigne(int x1, int y1, int x2, int y2) {
    bas_ = std::max({bas_, y1, y2});
    elements_ += "<line";
    AjouterNombre(elements_, "x1", x1);
    AjouterNombre(elements_, "y1", y1);
    AjouterNombre(elements_, "x2", x2);
    AjouterNombre(elements_, "y2", y2);
    AjouterNombre(elements_, "stroke-width", kEpaisseurTrait);
    elements_ += " stroke=\"#000\"/>\n";
}

void ImprimanteSvg::Rectangle(int x1, int y1, int x2, int y2, std::string_view aspect) {
    bas_ = std::max({bas_, y1, y2});
    elements_ += "<rect";
    AjouterNombre(elements_, "x", std::min(x1, x2));
    AjouterNombre(elements_, "y", std::min(y1, y2));
    AjouterNombre(elements_, "width", std::abs(x2 - x1));
    AjouterNombre(elements_, "height", std::abs(y2 - y1));
    elements_.append(" ").append(aspect).append("/>\n");
}

void ImprimanteSvg::TracerRectangle(int x1, int y1, int x2, int y2) {
    Rectangle(x1, y1, x2, y2,
              "fill=\"none\" stroke=\"#000\" stroke-width=\"" + std::to_string(kEpaisseurTrait) +
                  "\"");
}

void ImprimanteSvg::RemplirRectangle(int x1, int y1, int x2, int y2) {
    Rectangle(x1, y1, x2, y2, "fill=\"" + CouleurHtml(encre_) + "\"");
}

void ImprimanteSvg::TournerPage() {}

void ImprimanteSvg::TerminerDocument() {}

std::string ImprimanteSvg::Dessin(const Cadre& cadre, std::string_view titre) const {
    constexpr int kBord = 20; // for what is drawn on the edge itself
    std::string texte = "<svg viewBox=\"";
    for (const int n : {cadre.x - kBord, cadre.y - kBord, cadre.largeur + 2 * kBord,
                        std::min(cadre.hauteur, bas_ - cadre.y) + 2 * kBord})
        texte += std::to_string(n) + " ";
    texte.pop_back();
    return texte + "\" role=\"group\" overflow=\"visible\" aria-label=\"" + EchapperHtml(titre) +
           "\" font-family=\"" + EchapperHtml(police_) +
           ", 'Liberation Sans', Helvetica, sans-serif\">\n" + elements_ + "</svg>\n";
}

} // namespace orvalis
