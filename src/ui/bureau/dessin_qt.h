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
    void ChoisirEncre(Encre encre) override;
    void Placer(int x, int y) override;
    void Ecrire(std::string_view utf8, Suite suite) override;
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override;
    void TracerLigne(int x1, int y1, int x2, int y2) override;
    void TracerRectangle(int x1, int y1, int x2, int y2) override;
    void RemplirRectangle(int x1, int y1, int x2, int y2) override;
    void TournerPage() override;

    /// Sheets that were begun, one at least.
    [[nodiscard]] std::size_t NbFeuilles() const { return feuilles_.size(); }
    /// Draws what was gathered for a sheet, from 0, one unit of `peintre` a twip, lines `epaisseur`
    /// twips wide.
    void PeindreFeuille(QPainter& peintre, std::size_t feuille,
                        qreal epaisseur = kEpaisseurTrait) const;
    /// The same of the first sheet, which most drawings are.
    void Peindre(QPainter& peintre, qreal epaisseur = kEpaisseurTrait) const {
        PeindreFeuille(peintre, 0, epaisseur);
    }
    /// The texts, in the order in which they were written.
    [[nodiscard]] const QStringList& Textes() const { return textes_; }

  protected:
    /// Takes what was gathered out of this drawing.
    [[nodiscard]] DessinQt Prendre();
    /// The font in hand on what is drawn on.
    [[nodiscard]] virtual QFontMetricsF Mesures(const QFont& police) const {
        return QFontMetricsF(police);
    }

  private:
    using Trace = std::function<void(QPainter&)>;

    void Ajouter(Trace trace) { feuilles_.back().push_back(std::move(trace)); }

    std::vector<std::vector<Trace>> feuilles_{1};
    QStringList textes_;
    QFont police_;
    Encre encre_ = Encre::Noir;
    QPointF position_;
};

} // namespace orvalis
