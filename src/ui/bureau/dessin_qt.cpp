#include "ui/bureau/dessin_qt.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvalis {
namespace {

constexpr int kTwipsParPoint = 20;

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

QString Texte(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

void DessinQt::ChoisirPolice(std::string_view famille) {
    QStringList familles{Texte(famille)};
    for (const Remplacants& remplacants : kRemplacants)
        if (remplacants.famille == famille)
            for (const std::string_view par : remplacants.par)
                familles << Texte(par);
    police_.setFamilies(familles);
}

// One unit is a twip, so that the size in units does not depend on the device.
void DessinQt::ChoisirTaille(int points) {
    police_.setPixelSize(points * kTwipsParPoint);
}

void DessinQt::ChoisirGras(bool gras) {
    police_.setBold(gras);
}

void DessinQt::Placer(int x, int y) {
    position_ = QPointF(x, y);
}

void DessinQt::Ecrire(std::string_view utf8, Suite suite) {
    const QFontMetricsF mesures = Mesures(police_);
    const QString texte = Texte(utf8);
    const QPointF ligneDeBase = position_ + QPointF(0, mesures.ascent());
    dessin_.emplace_back([police = police_, ligneDeBase, texte](QPainter& peintre) {
        peintre.setFont(police);
        peintre.drawText(ligneDeBase, texte);
    });
    textes_ << texte;
    if (suite == Suite::MemeLigne)
        position_.rx() += mesures.horizontalAdvance(texte);
    else
        position_ = QPointF(0, position_.y() + mesures.lineSpacing());
}

int DessinQt::LargeurTexte(std::string_view utf8) const {
    return static_cast<int>(std::lround(Mesures(police_).horizontalAdvance(Texte(utf8))));
}

void DessinQt::TracerLigne(int x1, int y1, int x2, int y2) {
    dessin_.emplace_back([=](QPainter& peintre) { peintre.drawLine(x1, y1, x2, y2); });
}

void DessinQt::TracerRectangle(int x1, int y1, int x2, int y2) {
    const QRect cadre(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1));
    dessin_.emplace_back([=](QPainter& peintre) { peintre.drawRect(cadre); });
}

void DessinQt::Peindre(QPainter& peintre, qreal epaisseur) const {
    peintre.setPen({Qt::black, epaisseur, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    for (const Trace& trace : dessin_)
        trace(peintre);
}

DessinQt DessinQt::Prendre() {
    DessinQt pris;
    pris.dessin_.swap(dessin_);
    pris.textes_.swap(textes_);
    return pris;
}

} // namespace orvalis
