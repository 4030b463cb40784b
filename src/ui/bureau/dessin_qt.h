// A drawing in twips behind the printer interface, for any QPainter: gathered first, then drawn
// as often as one likes. On the screen it is all there is to it; a printer has paper besides
// (imprimante_qt.h).
#pragma once

#include "print/imprimante.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPointF>
#include <QStringList>

#include <functional>
#include <vector>

namespace orvalis {

class DessinQt : public Imprimante {
  public:
    /// A drawing has no paper, and is there for whoever draws it.
    void ChoisirPapier(Papier /*papier*/, Orientation /*orientation*/) override {}
    void TerminerDocument() override {}

    void ChoisirPolice(std::string_view famille) override;
    void ChoisirTaille(int points) override;
    void ChoisirGras(bool gras) override;
    void Placer(int x, int y) override;
    void Ecrire(std::string_view utf8, Suite suite) override;
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override;
    void TracerLigne(int x1, int y1, int x2, int y2) override;
    void TracerRectangle(int x1, int y1, int x2, int y2) override;

    /// Draws all that was gathered, one unit of `peintre` a twip, lines `epaisseur` twips wide.
    void Peindre(QPainter& peintre, qreal epaisseur = kEpaisseurTrait) const;
    /// The texts, in the order in which they were written.
    [[nodiscard]] const QStringList& Textes() const { return textes_; }

  protected:
    static constexpr qreal kEpaisseurTrait = 8; // twips
    /// Takes what was gathered out of this drawing.
    [[nodiscard]] DessinQt Prendre();
    /// The font in hand on what is drawn on.
    [[nodiscard]] virtual QFontMetricsF Mesures(const QFont& police) const {
        return QFontMetricsF(police);
    }

  private:
    using Trace = std::function<void(QPainter&)>;

    std::vector<Trace> dessin_;
    QStringList textes_;
    QFont police_;
    QPointF position_;
};

} // namespace orvalis
