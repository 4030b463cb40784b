#include "ui/flux/flux_impression.h"

#include "core/erreurs.h"
#include "print/page_cahier.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/conseil.h"

#include <memory>

namespace orvalis {
namespace {

constexpr std::string_view kPageVierge = "Page vierge imprimée";

} // namespace

bool Imprimer(Plateau& p, std::string_view fait, const std::function<void(Imprimante&)>& dessin) {
    try {
        const std::unique_ptr<Imprimante> imprimante = p.systeme.PreparerImpression(&p.fenetre);
        if (imprimante == nullptr || p.ecran.arret)
            return false;
        const Sablier sablier;
        dessin(*imprimante);
        const std::string nom = imprimante->Nom();
        Annoncer(p.ecran, std::string{fait} + (nom.empty() ? "" : std::string{kDeuxPoints} + nom));
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
    const std::string fait = s.page.premiere == kAucuneFiche
                                 ? std::string{kPageVierge}
                                 : "Page " + std::to_string(s.page.numero) + " imprimée";
    static_cast<void>(Imprimer(p, fait, [&s](Imprimante& imprimante) {
        ImprimerPage(imprimante, s.cahier, s.station, s.page, s.page.premiere);
    }));
}

void ImprimerPageVierge(Plateau& p) {
    static_cast<void>(Imprimer(p, kPageVierge, [&p](Imprimante& imprimante) {
        Session& s = p.session;
        // Kept on purpose, for the printed sheets: the page on show then counts as blank until a
        // page is shown again.
        s.page.premiere = kAucuneFiche;
        ImprimerPage(imprimante, s.cahier, s.station, s.page, s.page.premiere);
    }));
}

} // namespace orvalis
