// The state of the screen: what is open, shown, armed and has the focus, as plain structs without
// Qt. The flows change it; VoirFenetre (vue.h) derives from it and the session what is seen, and
// one painter makes the window so. No control is ever read as state.
#pragma once

#include "core/dates.h"
#include "core/page_texte.h"
#include "core/pages.h"
#include "maint/sauvegardes.h"
#include "ui/carte/boites.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvalis {

/// A control that a rule sends the focus to, or asks about.
enum class Cible : unsigned char {
    Aucune,           ///< nothing has the focus
    Autre,            ///< a control that no rule names
    Boite,            ///< TxtField, by number
    Liste,            ///< ListeLog
    Contacts,         ///< ContactsListe
    Recherche,        ///< RechText
    Nouveau,          ///< BtNewQSO
    Suivant,          ///< BtEnrSuivant
    Terminer,         ///< BtEnrTerminer
    Annuler,          ///< BtEnrAnnuler
    OptionReel,       ///< OptionEnr1
    OptionDiffere,    ///< OptionEnr2
    Oui,              ///< FraCmdOui
    Non,              ///< FraCmdNon
    TexteLocator,     ///< ChangLocText
    ValiderLocator,   ///< BtChangValid
    AnnulerLocator,   ///< BtChangAnnul
    GarderLocator,    ///< ChangLocChk
    Sauvegarder,      ///< BtPjSauvegarder
    Jumeler,          ///< BtPjumeler
    BoiteEtiquette,   ///< FLdText, by number
    VoieBureau,       ///< OptBureau
    VoieDirecte,      ///< OptDirect
    ValiderEtiquette, ///< BtValidQSL
    LaisserEtiquette, ///< BtLeaveQSL
    ChoixEtiquette,   ///< BtChoix, by place
    Revoir            ///< BtCtrl_Revoir
};

struct Foyer {
    Cible cible = Cible::Aucune;
    int numero = 0; ///< of a box or a place, else 0
    friend bool operator==(const Foyer&, const Foyer&) = default;
};

[[nodiscard]] constexpr Foyer SurBoite(Boite boite) {
    return {Cible::Boite, Numero(boite)};
}
/// The entry box that has the focus, if it is one.
[[nodiscard]] constexpr std::optional<Boite> BoiteDuFoyer(const Foyer& foyer) {
    if (foyer.cible != Cible::Boite)
        return std::nullopt;
    return static_cast<Boite>(foyer.numero);
}

/// Where the focus is and the one wish to move it. A move is carried out on the state first
/// (foyer.h), then painted.
struct EtatFoyer {
    Foyer ici;
    std::optional<Foyer> voeu;      ///< control that the painter gives the focus to
    std::optional<Foyer> selection; ///< text box whose whole text the painter selects
};

/// One row of the sheet of the page on show.
struct RangeePage {
    NumeroFiche numero;
    CellulesPage cellules;
};

/// What one page holds, read once and never changed.
struct ContenuPage {
    std::vector<std::string> lignes;
    std::vector<RangeePage> rangees;
};

/// PictListe with its paging buttons, VScroll1, and the sheet PageText1.
struct ListeDuCahier {
    bool active = true; ///< false: the list stays visible but cannot be used
    std::shared_ptr<const ContenuPage> contenu;
    std::int32_t page = 0; ///< page that `contenu` is of; 0 before the first
    std::int32_t nbPages = 0;
    std::int32_t nbFiches = 0;   ///< range of the scroll bar
    std::int32_t defilement = 0; ///< its value
    int choisie = -1;            ///< selected line, from 0; it may be another than the card's
    NumeroFiche marquee;         ///< record marked on the sheet
    std::string nom;             ///< LabJournal
    std::string dossier;         ///< LabDossier
    friend bool operator==(const ListeDuCahier&, const ListeDuCahier&) = default;
};

/// PictRech. Its text is kept while the panel is hidden.
struct PanneauRecherche {
    bool montre = true;
    std::string texte;
    friend bool operator==(const PanneauRecherche&, const PanneauRecherche&) = default;
};

/// PictContacts: what was found, and the idle buttons that its opening greyed. They stay grey
/// until they are given back (RendreBoutons), whatever hides the list.
struct ListeContacts {
    bool montree = false;
    std::shared_ptr<const std::vector<std::string>> lignes;
    int choisie = -1;
    std::string compte = "0";        ///< NbreContacts
    std::string nature = "Contacts"; ///< ContactsLab
    bool doublons = false;           ///< what was found are contacts logged twice
    bool reprise = false;            ///< searched again after a deletion: scrolled as it was
    bool boutonsGrises = false;      ///< BtNewQSO and BtFermerLog
    bool supprimerGrise = false;     ///< BtKillFiche
    friend bool operator==(const ListeContacts&, const ListeContacts&) = default;
};

/// FraMsgFiche, its texts as they were when it was asked.
struct Question {
    std::string legende;   ///< caption of FraMsgFiche
    std::string numero;    ///< FraLab01
    std::string indicatif; ///< FraLab02: callsign of the record buffer
    friend bool operator==(const Question&, const Question&) = default;
};

/// PictChangLocator.
struct PanneauLocator {
    bool montre = false;
    std::string texte;    ///< ChangLocText
    bool valider = false; ///< BtChangValid is on show
    bool garder = false;  ///< ChangLocChk
    friend bool operator==(const PanneauLocator&, const PanneauLocator&) = default;
};

/// PictClasser; while it is on show list, card and idle buttons are disabled.
struct PanneauClasser {
    bool montre = false;
    std::string titre = " QRX ,Je classe !"; ///< ClasserLab
    std::string nombre;                      ///< LabEtat_1
    std::string mot;                         ///< LabEtat_2
    std::string position;                    ///< LabEtat_3
    friend bool operator==(const PanneauClasser&, const PanneauClasser&) = default;
};

/// PJumelage.
struct PanneauJumelage {
    bool montre = false;
    std::string nomFichier;       ///< LabPj_2
    bool sauvegardeFaite = false; ///< one backup per opening
    friend bool operator==(const PanneauJumelage&, const PanneauJumelage&) = default;
};

/// What the last command did, for the line of advice. It stands until something else that is seen
/// of the logbook, the card or a panel changes (OublierAnnonce, vue.h).
struct Annonce {
    std::string texte;
    unsigned rang = 0; ///< grows with each, so that the same text twice is two
    friend bool operator==(const Annonce&, const Annonce&) = default;
};

/// The menu entry or button that pointer or menu key stands on.
struct Designation {
    std::string nom;         ///< objectName; empty for none
    std::string legende;     ///< of a menu entry, without the blanks around it
    unsigned conditions = 0; ///< what its command asks for (conditions.h)
    unsigned annonce = 0;    ///< rank of the last announcement when it was come to
};

/// What the backup folder held of our own logbook when it was looked at last.
struct EtatSauvegarde {
    bool connu = false; ///< it could be looked at
    std::optional<Sauvegarde> derniere;
    int jours = 0; ///< age of the newest backup
};

/// The start-up marker holds its first value until the window is initialised.
inline constexpr int kDemarrageAFaire = 4;

struct Ecran {
    int temoinDemarrage = kDemarrageAFaire;
    bool gel = false;   ///< keyboard and mouse act on nothing but quitting
    bool arret = false; ///< the program is ending: no flow goes on
    /// The operator knows since he wished to quit that the logbook is lost: once more, and he
    /// quits.
    bool perteDite = false;
    ListeDuCahier liste;
    PanneauRecherche recherche;
    bool activeRech = false; ///< "Voir contacts réalisés" is on show
    ListeContacts contacts;
    bool menuActif = true;    ///< PictMenu; a deletion that is asked disables it
    bool annulerActif = true; ///< BtEnrAnnuler
    bool suivantArme = false; ///< BtEnrSuivant: green and usable
    std::optional<Question> question;
    PanneauLocator locator;
    PanneauClasser classer;
    PanneauJumelage jumelage;
    std::optional<Foyer> enErreur;           ///< box that reads "ERREUR" for its second
    std::optional<Instant> heure;            ///< of the clock; nothing before its first tick
    std::string titre = " Cahier de Trafic"; ///< of the window
    std::string adieu;                       ///< OrvalisLab03
    EtatFoyer foyer;
    Annonce annonce;
    std::string dejaContacte; ///< what was found of the station under entry; empty before
    EtatSauvegarde sauvegarde;
    Designation designee;
};

} // namespace orvalis
