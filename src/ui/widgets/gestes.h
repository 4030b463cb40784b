// What an event means, said once for every control that asks.
#pragma once

#include <QFocusEvent>
#include <QKeyEvent>

namespace orvalis {

/// Either Enter key, pressed.
[[nodiscard]] inline bool EstEntree(const QEvent& evenement) {
    if (evenement.type() != QEvent::KeyPress)
        return false;
    const int touche = static_cast<const QKeyEvent&>(evenement).key();
    return touche == Qt::Key_Return || touche == Qt::Key_Enter;
}

/// A move of the focus that the operator did not make inside the window.
[[nodiscard]] inline bool FoyerVenuDAilleurs(Qt::FocusReason raison) {
    return raison == Qt::ActiveWindowFocusReason || raison == Qt::MenuBarFocusReason ||
           raison == Qt::PopupFocusReason;
}

} // namespace orvalis
