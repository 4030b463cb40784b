// The system's printer, or a PDF file, behind the printer interface.
#pragma once

#include "print/imprimante.h"

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QPrinter>

#include <functional>
#include <vector>

namespace orvalis {

/// True when `imprimante` leads somewhere: a printer of the system, or a PDF file with a name.
/// When it does not, the printer dialog has to be shown first.
[[nodiscard]] bool SortieChoisie(const QPrinter& imprimante);

/// Draws on a QPrinter, which the caller owns and sets up (printer, PDF file, copies) and which
/// must outlive this object. The printer gets a resolution of 1440 dots per inch, so that one
/// unit is a twip, and the smallest margins its paper allows, so that the origin is the corner of
/// the printable area.
///
/// The drawing is gathered and reaches the printer in one go with TerminerDocument(), since a
/// system printer does not reliably take back a job begun: a document that is not ended prints
/// nothing and leaves an existing PDF file alone. Each document has an output of its own with the
/// choices made on the QPrinter, so that one that fails spoils no later one; a PDF file is replaced
/// only by a document that is whole. Only TerminerDocument() throws.
class ImprimanteQt : public Imprimante {
  public:
    explicit ImprimanteQt(QPrinter& imprimante);

    void ChoisirPapier(Papier papier, Orientation orientation) override;
    void ChoisirPolice(std::string_view famille) override;
    void ChoisirTaille(int points) override;
    void ChoisirGras(bool gras) override;
    void Placer(int x, int y) override;
    void Ecrire(std::string_view utf8, Suite suite) override;
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override;
    void TracerLigne(int x1, int y1, int x2, int y2) override;
    void TracerRectangle(int x1, int y1, int x2, int y2) override;
    void TerminerDocument() override;

  private:
    using Trace = std::function<void(QPainter&)>;

    QPrinter& imprimante_;
    std::vector<Trace> dessin_;
    QFont police_;
    QPointF position_;
};

} // namespace orvalis
