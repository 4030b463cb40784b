// The few coloured controls, legible on light and dark desktops.
#pragma once

#include <QAbstractButton>

namespace orvalis {

enum class Teinte {
    Aucune,     ///< the palette's own
    Vert,       ///< ready to store: RGB (0, 255, 0)
    VertClair,  ///< yes
    RougeClair, ///< no
    Peche,      ///< store button at rest: RGB (255, 224, 192)
    Jaune,      ///< prepared label
    Rouge       ///< as a text colour
};

/// Face of a button; its text turns dark on a coloured face.
void TeinterFond(QAbstractButton& bouton, Teinte teinte);
/// Text colour of a button.
void TeinterTexte(QAbstractButton& bouton, Teinte teinte);

} // namespace orvalis
