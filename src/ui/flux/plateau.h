// What a flow may touch: the state of the program and the world outside. The flows (flux_*.h) are
// free procedures over it. They change the state; no control of the window is within their reach.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/session.h"

#include <functional>
#include <string>

class QWidget;

namespace orvalis {

class Systeme;

struct Plateau {
    Session& session;
    Ecran& ecran;
    FeuilleQSL& feuille;
    std::string& enTete; ///< heading of the label printed last
    Systeme& systeme;    ///< paints the window before it lets events run
    QWidget& fenetre;    ///< parent of dialogs and questions
    /// Runs what lets events run (a dialog, a look at the screen) once the window is painted.
    std::function<void(const std::function<void()>&)> dehors;
    std::function<void()> fermer; ///< closes the window, as its own close button does
};

} // namespace orvalis
