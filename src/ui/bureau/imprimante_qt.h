// The system's printer, or a PDF file, behind the printer interface.
#pragma once

#include "ui/bureau/dessin_qt.h"

#include <QPrinter>

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
class ImprimanteQt : public DessinQt {
  public:
    explicit ImprimanteQt(QPrinter& imprimante);

    void ChoisirPapier(Papier papier, Orientation orientation) override;
    [[nodiscard]] std::string Nom() const override;
    void TerminerDocument() override;

  protected:
    [[nodiscard]] QFontMetricsF Mesures(const QFont& police) const override {
        return {police, &imprimante_};
    }

  private:
    QPrinter& imprimante_;
};

} // namespace orvalis
