// Showing and enabling controls without pushing the focus: Qt gives the focus of what is hidden or
// disabled to the next control in the tab order, which may be an entry box.
#pragma once

#include <QWidget>

namespace orvalis {

/// Takes the focus from `widget` or what is inside it.
inline void OterLeFoyer(const QWidget& widget) {
    QWidget* foyer = widget.window()->focusWidget(); // also while another window is active
    if (foyer != nullptr && (foyer == &widget || widget.isAncestorOf(foyer)))
        foyer->clearFocus();
}

/// Shows or hides; a focus inside goes nowhere.
inline void Presenter(QWidget& widget, bool visible) {
    if (!visible)
        OterLeFoyer(widget);
    widget.setVisible(visible);
}

/// Enables or disables; a focus inside goes nowhere.
inline void Activer(QWidget& widget, bool actif) {
    if (!actif)
        OterLeFoyer(widget);
    widget.setEnabled(actif);
}

} // namespace orvalis
