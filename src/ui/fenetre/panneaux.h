// The parts of the main window, which its painter knows and nobody else.
#pragma once

class QStackedWidget;

namespace orvalis {

class FraMsgFiche;
class LabConseil;
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
class VuePage;

struct Panneaux {
    PanneauHorloge& horloge;
    PictListe& liste;
    VuePage& page;
    PictFiche& fiche;
    PictMenu& menu;
    PictEnrs& enrs;
    PictRech& rech;
    PictContacts& contacts;
    FraMsgFiche& msgFiche;
    PictChangLocator& changLocator;
    PictClasser& classer;
    PJumelage& jumelage;
    QStackedWidget& droite; ///< the column of the card, or the label sheet
    PictFeuilleQSL& feuilleQSL;
    PictCtrlImpression& ctrlImpression;
    LabConseil& conseil;
};

} // namespace orvalis
