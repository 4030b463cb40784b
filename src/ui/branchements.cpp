// What the panels and menus report, and the flow that answers it.
#include "geo/dlg2.h"
#include "ui/a_propos.h"
#include "ui/feuille_log.h"
#include "ui/flux_demarrage.h"
#include "ui/flux_navigation.h"
#include "ui/menus.h"
#include "ui/orvalis.h"
#include "ui/panneau_horloge.h"
#include "ui/panneau_liste.h"
#include "ui/panneau_menu.h"
#include "ui/texte_qt.h"

#include <QAction>
#include <QMenuBar>
#include <QTimer>

namespace orvalis {

void Orvalis::BrancherMenus() {
    const std::map<std::string_view, Commande> commandes = {
        {"MnuQuitter", [this] { close(); }},
        {"MnuCreateMDB", [this] { CreerBaseDeDonnees(p_); }},
        {"MnuEditLocator", [this] { Dlg2(this).exec(); }},
        {"MnuVoir", [this] { APropos(p_.systeme, this).exec(); }},
    };
    FaireMenus(*menuBar(), [&](QAction& action) {
        const auto trouve = commandes.find(S(action.objectName()));
        action.setEnabled(trouve != commandes.end());
        if (trouve != commandes.end())
            Brancher(&action, &QAction::triggered, [flux = trouve->second](bool) { flux(); });
    });
}

void Orvalis::BrancherPanneaux() {
    Brancher(timer1_, &QTimer::timeout, [this](auto&&...) { AfficherHeure(p_); });
    Brancher(&p_.horloge, &PanneauHorloge::miseALHeureDemandee,
             [this] { LancerCompagnon(p_, "Chronel.exe"); });
    Brancher(&p_.menu, &PictMenu::fermetureDemandee, [this] { close(); });
}

void Orvalis::BrancherNavigation() {
    Brancher(&p_.liste, &PictListe::ligneChoisie, [this](std::int32_t k) { ChoisirFiche(p_, k); });
    Brancher(&p_.liste, &PictListe::boutonPage, [this](BoutonPage b) { SurBoutonPage(p_, b); });
    Brancher(&p_.liste, &PictListe::defilement, [this](int valeur) { SurDefilement(p_, valeur); });
    Brancher(&p_.liste, &PictListe::touche,
             [this](ToucheListe touche, bool* prise) { *prise = SurToucheListe(p_, touche); });
    Brancher(&p_.page, &FeuilleLog::rangeeChoisie, [this](std::int32_t k) {
        p_.liste.Selectionner(k - session_.premiereAffichee);
        ChoisirFiche(p_, k);
    });
}

} // namespace orvalis
