// What an event means, said once for every control that asks.
#pragma once

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace orvalis {

/// Either Enter key, pressed.
[[nodiscard]] inline bool EstEntree(const QEvent& evenement) {
    if (evenement.type() != QEvent::KeyPress)
        return false;
    const int touche = static_cast<const QKeyEvent&>(evenement).key();
    return touche == Qt::Key_Return || touche == Qt::Key_Enter;
}

/// What an input method, a dead key too, puts into a box; what it still composes shows there too,
/// in the place of the selection.
[[nodiscard]] inline QString TexteCompose(const QEvent& evenement) {
    if (evenement.type() != QEvent::InputMethod)
        return {};
    const auto& compose = static_cast<const QInputMethodEvent&>(evenement);
    return compose.commitString() + compose.preeditString();
}

/// A move of the focus that the operator did not make inside the window.
[[nodiscard]] inline bool FoyerVenuDAilleurs(Qt::FocusReason raison) {
    return raison == Qt::ActiveWindowFocusReason || raison == Qt::MenuBarFocusReason ||
           raison == Qt::PopupFocusReason;
}

} // namespace orvalis
