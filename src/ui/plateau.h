// Everything a flow may touch: the session, the world outside and the panels of the window. The
// flows (flux_*.h) are free procedures over it; panels never see it and do not know each other.
#pragma once

#include <functional>
#include <string>

class QMainWindow;
class QStackedWidget;

namespace orvalis {

class FeuilleLog;
struct FeuilleQSL;
class FraMsgFiche;
class PJumelage;
class PanneauHorloge;
class PictChangLocator;
class PictClasser;
class PictContacts;
class PictCtrlImpression;
class PictEnrs;
class PictFeuilleQSL;
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
    FeuilleQSL& feuille;
    std::string& enTete;    ///< heading of the label printed last
    QStackedWidget& droite; ///< the column of the card, or the label sheet
    PictFeuilleQSL& feuilleQSL;
    PictCtrlImpression& ctrlImpression;

    std::function<void()> actualiserMenus = {}; ///< enables the entries that may act now
    bool gel = false;                           ///< keyboard and mouse act on nothing but quitting
    bool arret = false;                         ///< the program is ending: no flow goes on
};

} // namespace orvalis
