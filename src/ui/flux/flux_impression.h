// Printing from the window: the printer, the page on show, a blank page.
#pragma once

#include "ui/flux/plateau.h"

#include <functional>
#include <string_view>

namespace orvalis {

class Imprimante;

/// Runs a drawing on the printer chosen, asking for one when there is none. Returns whether the
/// document was sent, which `fait` announces: false when the operator cancelled, and when the
/// printer failed, which is told.
[[nodiscard]] bool Imprimer(Plateau& p, std::string_view fait,
                            const std::function<void(Imprimante&)>& dessin);

/// MnuConfigImp: the printer of every print to come.
void ConfigurerImprimante(Plateau& p);
/// MnuImpPage: the page on show; after a blank page a blank one, until a page is shown again.
void ImprimerPageAffichee(Plateau& p);
/// MnuImpPageVierge.
void ImprimerPageVierge(Plateau& p);

} // namespace orvalis
