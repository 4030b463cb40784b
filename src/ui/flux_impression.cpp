#include "ui/flux_impression.h"

#include "core/commandes.h"
#include "print/page_journal.h"
#include "ui/effets.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QMainWindow>

#include <memory>

namespace orvalis {

bool Imprimer(Plateau& p, const std::function<void(Imprimante&)>& dessin) {
    try {
        const std::unique_ptr<Imprimante> imprimante = p.systeme.PreparerImpression(&p.fenetre);
        if (imprimante == nullptr)
            return false;
        const Sablier sablier;
        dessin(*imprimante);
        return true;
    } catch (const ErreurImpression& echec) {
        p.systeme.Avertir(&p.fenetre, Q(echec.what()));
        return false;
    }
}

void ConfigurerImprimante(Plateau& p) {
    if (CommandePermise(Commande::MnuConfigImp, p.session))
        p.systeme.ConfigurerImprimante(&p.fenetre);
}

void ImprimerPageAffichee(Plateau& p) {
    Session& s = p.session;
    if (CommandePermise(Commande::MnuImpPage, s))
        static_cast<void>(
            Imprimer(p, [&s](Imprimante& imp) { ImprimerPage(imp, s, s.premiereAffichee); }));
}

void ImprimerPageVierge(Plateau& p) {
    Session& s = p.session;
    if (!CommandePermise(Commande::MnuImpPageVierge, s))
        return;
    static_cast<void>(Imprimer(p, [&s](Imprimante& imp) {
        // Kept on purpose: the page on show then counts as blank until a page is shown again.
        s.premiereAffichee = 0;
        ImprimerPage(imp, s, s.premiereAffichee);
    }));
}

} // namespace orvalis
