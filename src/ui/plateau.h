// Everything a flow may touch: the session, the world outside and the panels of the window. The
// flows (flux_*.h) are free procedures over it; panels never see it and do not know each other.
#pragma once

class QMainWindow;

namespace orvalis {

class FeuilleLog;
class FraMsgFiche;
class PJumelage;
class PanneauHorloge;
class PictChangLocator;
class PictClasser;
class PictContacts;
class PictEnrs;
class PictFiche;
class PictListe;
class PictMenu;
class PictRech;
struct Session;
class Systeme;

struct Plateau {
    QMainWindow& fenetre;
    Session& session;
    Systeme& systeme;
    PanneauHorloge& horloge;
    PictListe& liste;
    FeuilleLog& page;
    PictFiche& fiche;
    PictMenu& menu;
    PictEnrs& enrs;
    PictRech& rech;
    PictContacts& contacts;
    FraMsgFiche& msgFiche;
    PictChangLocator& changLocator;
    PictClasser& classer;
    PJumelage& jumelage;

    bool gel = false;   ///< keyboard and mouse act on nothing but quitting
    bool arret = false; ///< the program is ending: no flow goes on
};

} // namespace orvalis
