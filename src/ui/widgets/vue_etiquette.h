// A QSL label on the screen as the printer would draw it: white paper, scaled to the room there is.
// Its text, which a screen reader says, is what stands on the label.
#pragma once

#include "ui/bureau/dessin_qt.h"
#include "ui/carte/apercu_etiquette.h"

#include <QLabel>

#include <optional>

namespace orvalis {

class VueEtiquette : public QLabel {
    Q_OBJECT
  public:
    explicit VueEtiquette(QWidget* parent = nullptr);

    /// Shows a label, or none; what is on show already is not drawn again.
    void Montrer(const std::optional<ApercuEtiquette>& apercu);
    /// Height of a label that is `largeur` wide.
    [[nodiscard]] static int HauteurPour(int largeur);
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    std::optional<ApercuEtiquette> apercu_;
    DessinQt dessin_;
};

} // namespace orvalis
