#include "ui/flux_modification.h"

#include "core/session.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_fiche.h"

namespace orvalis {

void AbandonnerModification(Plateau& p) {
    p.session.saisie.EnModification = false;
    p.session.saisie.NbModifs = 0;
    p.msgFiche.hide();
    for (std::size_t i = 1; i <= kNbBoites; ++i)
        ColorerZone(p.fiche, i, i == 1 ? 3 : 1);
}

} // namespace orvalis
