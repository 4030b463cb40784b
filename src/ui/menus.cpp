#include "ui/menus.h"

#include "ui/texte_qt.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace orvalis {
namespace {

struct Entree {
    std::string_view nom;
    std::string_view legende; // as designed, blanks included
    bool tete;
};

constexpr std::array<Entree, 23> kEntrees = {{
    {"NmuFilect", "    Fichier    ", true},
    {"MnuCourantF", "    Ouvrir Fichier courant  ", false},
    {"MnuAutreF", "  Ouvrir Autre Fichier.Vek  ", false},
    {"MnuJumeler", " Jumeler deux Fichiers.Vek", false},
    {"MnuQuitter", "  Fermer Fichier  et  Quitter", false},
    {"MnuLister", "      Liste        ", true},
    {"MnuCreateMDB", "    Réaliser  fichier.mdb", false},
    {"MnuCopieSurDisque", "Copier sur CD ou disquette", false},
    {"MnuClasser", "      Classer  le Fichier   ", false},
    {"MnuDoublons", "  Chercher les doublons", false},
    {"MnuSauver", "        Sauvegarder ", false},
    {"MnuImprim", "    Imprimer    ", true},
    {"MnuConfigImp", "Configurer imprimante  ", false},
    {"MnuImpPage", "Imprimer Page affichée  ", false},
    {"MnuImpPageVierge", "Imprimer page vierge  ", false},
    {"MnuLocator", "    Locator   ", true},
    {"MnuEditLocator", "    Editer Locator", false},
    {"MnuChangerLocator", " Changer de Locator", false},
    {"MnuServiceQSL", "   Service QSL  ", true},
    {"MnuVirginTags", " Imprimer étiquettes vierges à coller", false},
    {"MnuGestionFeuilleQSL", "   Gestion feuille 16 étiquettes ", false},
    {"MnuInfos", "   Infos ", true},
    {"MnuVoir", "  Infos à propos de Orvalis", false},
}};

} // namespace

void FaireMenus(QMenuBar& barre, const std::function<void(QAction&)>& ajouter) {
    QMenu* menu = nullptr;
    for (const Entree& entree : kEntrees) {
        if (entree.tete) {
            menu = barre.addMenu(Q(entree.legende));
            menu->setObjectName(Q(entree.nom));
            continue;
        }
        if (menu == nullptr)
            continue; // no head yet: the table begins with one
        QAction* action = menu->addAction(Q(entree.legende));
        action->setObjectName(Q(entree.nom));
        ajouter(*action);
    }
}

} // namespace orvalis
