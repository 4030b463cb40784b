// A printer that writes down what it is told, one line of text for each operation.
#pragma once

#include "core/texte.h"
#include "print/imprimante.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace orvalis {

/// "P A4 portrait"; "T x y size[g] text", g for bold, or "+ size text" when it goes on the line;
/// "L x1 y1 x2 y2"; "R x1 y1 x2 y2"; "E ink"; "B x1 y1 x2 y2", filled; "PAGE"; "FIN". A family
/// other than `famille` is named after the size. Every character is ten times its points wide,
/// twelve times in "Courrier".
struct Enregistreur : Imprimante {
    std::string famille;
    int x0 = 0, y0 = 0; ///< origin of the coordinates written down
    std::vector<std::string> operations;
    std::vector<std::string>* copie = nullptr; ///< where they stay when the printer has gone

    explicit Enregistreur(std::string familleUsuelle = {}, int x = 0, int y = 0)
        : famille(std::move(familleUsuelle)), x0(x), y0(y) {}
    explicit Enregistreur(std::vector<std::string>& apres) : copie(&apres) {}

    void ChoisirPapier(Papier, Orientation o) override {
        operations.emplace_back(o == Orientation::Portrait ? "P A4 portrait" : "P A4 paysage");
    }
    void ChoisirPolice(std::string_view nom) override { police_ = nom; }
    void ChoisirTaille(int points) override { taille_ = points; }
    void ChoisirGras(bool gras) override { gras_ = gras; }
    void ChoisirEncre(Encre encre) override {
        operations.push_back("E " + std::to_string(static_cast<int>(encre)));
    }
    void Placer(int x, int y) override { x_ = x, y_ = y, suite_ = false; }
    void Ecrire(std::string_view utf8, Suite suite) override {
        const std::string place =
            suite_ ? "+ " : "T " + std::to_string(x_ - x0) + ' ' + std::to_string(y_ - y0) + ' ';
        operations.push_back(place + std::to_string(taille_) + (gras_ ? "g " : " ") +
                             (police_ == famille ? "" : police_ + ' ') + std::string{utf8});
        suite_ = suite == Suite::MemeLigne;
    }
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override {
        return static_cast<int>(Longueur(utf8)) * taille_ * (police_ == "Courrier" ? 12 : 10);
    }
    void TracerLigne(int x1, int y1, int x2, int y2) override { Tracer('L', x1, y1, x2, y2); }
    void TracerRectangle(int x1, int y1, int x2, int y2) override { Tracer('R', x1, y1, x2, y2); }
    void RemplirRectangle(int x1, int y1, int x2, int y2) override { Tracer('B', x1, y1, x2, y2); }
    void TournerPage() override { operations.emplace_back("PAGE"); }
    void TerminerDocument() override {
        operations.emplace_back("FIN");
        if (copie != nullptr)
            *copie = operations;
    }

    [[nodiscard]] std::ptrdiff_t Compter(std::string_view debut) const {
        return std::count_if(operations.begin(), operations.end(),
                             [&](const std::string& o) { return o.starts_with(debut); });
    }

  private:
    void Tracer(char lettre, int x1, int y1, int x2, int y2) {
        std::ostringstream flux;
        flux << lettre << ' ' << x1 - x0 << ' ' << y1 - y0 << ' ' << x2 - x0 << ' ' << y2 - y0;
        operations.push_back(flux.str());
    }

    std::string police_;
    int taille_ = 0, x_ = 0, y_ = 0;
    bool gras_ = false, suite_ = false;
};

/// The expected operations of a list between semicolons.
inline std::vector<std::string> Liste(const std::string& liste) {
    std::vector<std::string> operations;
    std::istringstream flux(liste);
    for (std::string mot; std::getline(flux >> std::ws, mot, ';');)
        operations.push_back(mot);
    return operations;
}

} // namespace orvalis
