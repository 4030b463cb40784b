// What is seen of the window: a pure function of session, screen and label sheet. One painter
// (ui/fenetre/peintre.h) makes the window so.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/apercu_etiquette.h"
#include "ui/carte/conseil.h"
#include "ui/carte/ecran.h"
#include "ui/carte/session.h"

#include <array>
#include <optional>
#include <string>

namespace orvalis {

/// PictFiche.
struct VueCarte {
    std::array<BoiteMontree, kNbBoites> boites;
    Zones zones; ///< behind the boxes, whatever the one in hand offers or is typed in it
    std::optional<Boite> enErreur; ///< the box that reads "ERREUR"
    std::string numero;
    std::string distance;
    std::string azimut;
    std::optional<int> cap;      ///< true direction of the correspondent, clockwise from the North
    bool azimutTrompeur = false; ///< it points elsewhere
    std::string departement;
    bool activeRech = false;              ///< BtActiveRech is on show
    std::string bandeau;                  ///< of a contact that is not stored yet; empty for none
    std::optional<InfoJointe> infoJointe; ///< said beside the box that does not show it
    bool active = true;
    bool prendDuTexte = false; ///< its boxes; else they are for reading, choosing and copying
    friend bool operator==(const VueCarte&, const VueCarte&) = default;
};

/// The buttons under the card: PictMenu, or PictEnrs in its place.
struct VueBoutons {
    bool saisie = false; ///< PictEnrs is on show, else PictMenu
    bool menuActif = true;
    bool nouveau = true;
    bool supprimer = true;
    bool fermer = true;
    bool suivantArme = false;
    bool annuler = true;
    bool tempsReel = true;
    std::string bulleTerminer; ///< what BtEnrTerminer would do
    friend bool operator==(const VueBoutons&, const VueBoutons&) = default;
};

struct VueFenetre {
    VueCarte carte;
    VueBoutons boutons;
    ListeDuCahier liste;
    bool pagination = true; ///< the paging buttons are enabled
    PanneauRecherche recherche;
    ListeContacts contacts;
    std::optional<Question> question;
    PanneauLocator locator;
    bool locatorEnErreur = false; ///< ChangLocText reads "ERREUR"
    PanneauClasser classer;
    PanneauJumelage jumelage;
    EtatFeuille feuille;                   ///< as it is while it is on show, else blank
    std::optional<ApercuEtiquette> apercu; ///< of the label in its editor
    std::optional<Instant> heure;
    std::string invitation; ///< on the sheet of an empty logbook: how to begin
    std::string titre;
    std::string adieu;
    unsigned conditions = 0; ///< those that commands may count on (conditions.h)
    unsigned annonce = 0;    ///< rank of what the last command announced
    Conseil conseil;
};

[[nodiscard]] VueFenetre VoirFenetre(const Session& session, const Ecran& ecran,
                                     const EtatFeuille& feuille);

/// A gesture that changes what is seen of the logbook, the card or a panel forgets what the last
/// command did, unless it is that command. Moves of the focus and the clock are no such change.
/// Returns whether it was forgotten, so that the view must be taken again.
[[nodiscard]] bool OublierAnnonce(Ecran& ecran, const VueFenetre& avant, const VueFenetre& apres);

/// Whether a control that rules name can take the focus in this view, which knows of the label
/// sheet too (foyer.h). Controls that no rule names are not judged.
[[nodiscard]] bool Joignable(const VueFenetre& vue, const Carte& carte, const Ecran& ecran,
                             const Foyer& foyer);

/// When `vue` cannot grant the wish, or what has the focus is hidden or grey in it (or `perdu` says
/// that it was a control that no rule names), the focus goes where the operator goes on: what asks
/// or waits on top of the rest, else the list, the contacts list, the new-contact button; nowhere
/// only when none of them can take it. Returns whether the state has changed, so that the view must
/// be taken again. For the end of a flow.
[[nodiscard]] bool AccorderFoyer(Carte& carte, Ecran& ecran, const Station& station,
                                 const VueFenetre& vue, bool perdu = false);

} // namespace orvalis
