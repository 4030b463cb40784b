#include "ui/bureau/dessin_qt.h"

#include "ui/bureau/texte_qt.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvalis {
namespace {

// Families that stand in for one the system lacks, best first. The layouts are measured for the
// narrow faces asked for; what the system would pick by itself crosses the rules, and for the
// second is a script with swashes. A family that is not here gets the system's choice.
struct Remplacants {
    std::string_view famille;
    std::array<std::string_view, 3> par;
};
constexpr std::array kRemplacants = {
    Remplacants{"MS sans Serif", {"Microsoft Sans Serif", "Arial", "Liberation Sans"}},
    Remplacants{"Comic sans MS", {"Comic Relief", "Comic Neue", "Liberation Sans"}},
    // Kept on purpose with its double r, for the printed sheets: no system has it, and Arial is
    // what the layout was measured with in its place. A wider face runs the date of a label into
    // the time.
    Remplacants{"Courrier", {"Arial", "Liberation Sans", "Nimbus Sans"}},
};

QColor Teindre(Encre encre) {
    const CouleurEncre couleur = CouleurDe(encre);
    return {couleur.rouge, couleur.vert, couleur.bleu};
}

} // namespace

void DessinQt::ChoisirPolice(std::string_view famille) {
    QStringList familles{Q(famille)};
    for (const Remplacants& remplacants : kRemplacants)
        if (remplacants.famille == famille)
            for (const std::string_view par : remplacants.par)
                familles << Q(par);
    police_.setFamilies(familles);
}

// One unit is a twip, so that the size in units does not depend on the device.
void DessinQt::ChoisirTaille(int points) {
    police_.setPixelSize(points * kTwipsParPoint);
}

void DessinQt::ChoisirGras(bool gras) {
    police_.setBold(gras);
}

void DessinQt::ChoisirEncre(Encre encre) {
    encre_ = encre;
}

void DessinQt::Placer(int x, int y) {
    position_ = QPointF(x, y);
}

void DessinQt::Ecrire(std::string_view utf8, Suite suite) {
    const QFontMetricsF mesures = Mesures(police_);
    const QString texte = Q(utf8);
    const QPointF ligneDeBase = position_ + QPointF(0, mesures.ascent());
    Ajouter([police = police_, encre = encre_, ligneDeBase, texte](QPainter& peintre) {
        const QPen trait = peintre.pen();
        peintre.setFont(police);
        peintre.setPen(Teindre(encre));
        peintre.drawText(ligneDeBase, texte);
        peintre.setPen(trait);
    });
    textes_ << texte;
    if (suite == Suite::MemeLigne)
        position_.rx() += mesures.horizontalAdvance(texte);
    else
        position_ = QPointF(0, position_.y() + mesures.lineSpacing());
}

int DessinQt::LargeurTexte(std::string_view utf8) const {
    return static_cast<int>(std::lround(Mesures(police_).horizontalAdvance(Q(utf8))));
}

void DessinQt::TracerLigne(int x1, int y1, int x2, int y2) {
    Ajouter([=](QPainter& peintre) { peintre.drawLine(x1, y1, x2, y2); });
}

void DessinQt::TracerRectangle(int x1, int y1, int x2, int y2) {
    const QRect cadre(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1));
    Ajouter([=](QPainter& peintre) { peintre.drawRect(cadre); });
}

void DessinQt::RemplirRectangle(int x1, int y1, int x2, int y2) {
    const QRect surface(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1));
    Ajouter([=, encre = encre_](QPainter& peintre) { peintre.fillRect(surface, Teindre(encre)); });
}

void DessinQt::TournerPage() {
    feuilles_.emplace_back();
}

void DessinQt::PeindreFeuille(QPainter& peintre, std::size_t feuille, qreal epaisseur) const {
    peintre.setPen({Qt::black, epaisseur, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    for (const Trace& trace : feuilles_[feuille])
        trace(peintre);
}

DessinQt DessinQt::Prendre() {
    DessinQt pris;
    pris.feuilles_.swap(feuilles_);
    pris.textes_.swap(textes_);
    return pris;
}

} // namespace orvalis
