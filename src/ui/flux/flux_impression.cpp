#include "ui/flux/flux_impression.h"

#include "core/erreurs.h"
#include "print/page_cahier.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"

#include <memory>

namespace orvalis {
bool Imprimer(Plateau& p, const std::function<void(Imprimante&)>& dessin) {
    try {
        const std::unique_ptr<Imprimante> imprimante = p.systeme.PreparerImpression(&p.fenetre);
        if (imprimante == nullptr || p.ecran.arret)
            return false;
        const Sablier sablier;
        dessin(*imprimante);
        return true;
    } catch (const Erreur& echec) {
        if (echec.ConcerneLeCahier())
            throw;
        p.systeme.Avertir(&p.fenetre, Q(echec.what()));
        return false;
    }
}

void ConfigurerImprimante(Plateau& p) {
    p.systeme.ConfigurerImprimante(&p.fenetre);
}

void ImprimerPageAffichee(Plateau& p) {
    const Session& s = p.session;
    static_cast<void>(Imprimer(p, [&s](Imprimante& imprimante) {
        ImprimerPage(imprimante, s.cahier, s.station, s.page, s.page.premiere);
    }));
}

void ImprimerPageVierge(Plateau& p) {
    static_cast<void>(Imprimer(p, [&p](Imprimante& imprimante) {
        Session& s = p.session;
        // Kept on purpose, for the printed sheets: the page on show then counts as blank until a
        // page is shown again.
        s.page.premiere = kAucuneFiche;
        ImprimerPage(imprimante, s.cahier, s.station, s.page, s.page.premiere);
    }));
}

} // namespace orvalis
