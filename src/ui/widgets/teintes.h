// The few coloured controls, legible on light and dark desktops.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPalette>

#include <functional>

namespace orvalis {

/// What is worth a second look, under a dark text: that of the banner of a contact not yet stored.
inline const QColor kAmbre{0xFF, 0xD8, 0x66};
inline const QColor kEncreSurAmbre{0x3A, 0x2D, 0x00};

/// The second hand of a clock, and the needle of the compass, on the light and the dark face.
inline const QColor kRougeAiguille{0xC0, 0x39, 0x2B};

/// The style sheet of a label that says such a thing; `marges` around its text.
[[nodiscard]] QString StyleAmbre(const char* marges = "1px 8px");

enum class Teinte {
    Aucune,     ///< the palette's own
    Vert,       ///< ready to store: RGB (0, 255, 0)
    VertClair,  ///< yes
    RougeClair, ///< no
    Peche,      ///< store button at rest: RGB (255, 224, 192)
    Jaune       ///< prepared label
};

/// Face of a button; its text turns dark on a coloured face.
void TeinterFond(QAbstractButton& bouton, Teinte teinte);
/// Red text of a button that deletes.
void RougirTexte(QAbstractButton& bouton);

[[nodiscard]] inline bool EstSombre(const QColor& fond) {
    return fond.lightness() < 128;
}
/// A red that can be read on `fond`.
[[nodiscard]] inline QColor RougeSur(const QColor& fond) {
    return EstSombre(fond) ? QColor(0xFF, 0x90, 0x90) : QColor(0xC0, 0, 0);
}

/// `texte` made pale, to be read beside it but not as it; 4.5:1 on the backgrounds of a box.
[[nodiscard]] inline QColor Discrete(QColor texte) {
    texte.setAlpha(150);
    return texte;
}

/// `fond` with `part` (0 to 1) of `encre` in it.
[[nodiscard]] QColor Melange(const QColor& fond, const QColor& encre, double part);

/// `palette` for a box that reads "ERREUR": its text dark red, selected or not, its background as
/// it was.
[[nodiscard]] QPalette EnErreur(QPalette palette);

/// Paints now, and again each time the desktop changes its colours while `widget` lives.
void PeindreSelonBureau(QWidget& widget, std::function<void()> peindre);

} // namespace orvalis
