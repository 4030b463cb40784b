// The desktop's own style, made legible where its colours are not: the edges of boxes on a dark
// ground, and texts too close to theirs: greyed or selected ones, links, the hint in an empty box.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace orvalis {

/// The least contrast of a text with its ground.
inline constexpr double kContrasteTexte = 4.5;

/// Contrast of two colours, from 1 (the same) to 21 (black and white).
[[nodiscard]] double Contraste(const QColor& a, const QColor& b);

class StyleLisible : public QProxyStyle {
    Q_OBJECT
  public:
    /// Greyed and selected texts, links and hints moved away from their ground, as far as they need
    /// it. Qt asks this of the application's style each time the desktop changes its colours.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                       const QWidget* widget) const override;
};

} // namespace orvalis
