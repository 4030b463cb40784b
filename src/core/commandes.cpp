#include "core/commandes.h"

namespace orvalis {
namespace {

constexpr bool DansLOrdre() {
    for (std::size_t i = 0; i < kNbCommandes; ++i)
        if (static_cast<std::size_t>(kReglesCommandes[i].commande) != i)
            return false;
    return true;
}
static_assert(DansLOrdre(), "the table is indexed by command");

// The conditions that the session meets.
unsigned ConditionsRemplies(const Session& session) {
    const auto si = [](bool vrai, Condition condition) {
        return vrai ? static_cast<unsigned>(condition) : 0U;
    };
    return si(!session.saisie.EnSaisie, kHorsSaisie) | si(session.saisie.EnSaisie, kEnSaisie) |
           si(!session.EnEdition(), kHorsEdition) | si(session.JournalPropre(), kJournalPropre) |
           si(!session.LectureSeule(), kModifiable) | si(session.nbFiches > 0, kAuMoinsUn) |
           si(session.nbFiches > 1, kAuMoinsDeux) | si(session.saisie.NbModifs == 0, kSansReponse) |
           si(session.journal.Support().EstOuvert(), kJournalOuvert);
}

} // namespace

bool CommandePermise(Commande commande, const Session& session) {
    const unsigned requises = kReglesCommandes[static_cast<std::size_t>(commande)].conditions;
    return (requises & ~ConditionsRemplies(session)) == 0;
}

} // namespace orvalis
