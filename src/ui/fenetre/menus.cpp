#include "ui/fenetre/menus.h"

#include "ui/bureau/texte_qt.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace orvalis {

void FaireMenus(QMenuBar& barre, const std::function<void(QAction&, const Commande&)>& ajouter) {
    QMenu* menu = nullptr;
    for (const Commande& commande : Commandes()) {
        if (commande.legende.empty())
            continue; // a button
        if (commande.flux == nullptr) {
            menu = barre.addMenu(Q(commande.legende));
            menu->setObjectName(Q(commande.nom));
            continue;
        }
        if (menu == nullptr)
            continue; // no head yet: the table begins with one
        QAction* action = menu->addAction(Q(commande.legende));
        action->setObjectName(Q(commande.nom));
        ajouter(*action, commande);
    }
}

} // namespace orvalis
