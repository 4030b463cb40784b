// Which commands may run in which state of the program: one table. A command that may not run
// does nothing, without a message.
#pragma once

#include "core/session.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace orvalis {

/// Commands named after their control; ModifierFiche is a press on a box of the card on show.
enum class Commande : unsigned char {
    MnuCourantF,
    MnuAutreF,
    MnuJumeler,
    BtPjumeler,
    BtPjSauvegarder,
    MnuCreateMDB,
    MnuCopieSurDisque,
    MnuClasser,
    MnuDoublons,
    MnuSauver,
    MnuConfigImp,
    MnuImpPage,
    MnuImpPageVierge,
    MnuChangerLocator,
    MnuVirginTags,
    MnuGestionFeuilleQSL,
    BtNewQSO,
    BtKillFiche,
    ModifierFiche
};

/// What a command asks of the program's state; several are joined with `|`.
enum Condition : unsigned {
    kToujours = 0,
    kHorsSaisie = 1U << 0U,    ///< no new contact under entry
    kEnSaisie = 1U << 1U,      ///< a new contact under entry
    kHorsEdition = 1U << 2U,   ///< neither a contact under entry nor a card under modification
    kJournalPropre = 1U << 3U, ///< no logbook was opened as "another", whatever its name
    kModifiable = 1U << 4U,    ///< the logbook on show is not read-only
    kAuMoinsUn = 1U << 5U,     ///< N is not 0
    kAuMoinsDeux = 1U << 6U,   ///< N is above 1
    kJournalOuvert = 1U << 7U, ///< a logbook is open
    kSansReponse = 1U << 8U    ///< no modification waits for its answer
};

struct RegleCommande {
    Commande commande;
    std::string_view nom; ///< objectName of its control; empty for ModifierFiche
    unsigned conditions;  ///< all of them must hold
};

inline constexpr std::size_t kNbCommandes = 19;

/// In the order of the enumeration.
inline constexpr std::array<RegleCommande, kNbCommandes> kReglesCommandes = {{
    {Commande::MnuCourantF, "MnuCourantF", kHorsSaisie},
    {Commande::MnuAutreF, "MnuAutreF", kHorsSaisie},
    {Commande::MnuJumeler, "MnuJumeler", kHorsSaisie | kJournalPropre},
    {Commande::BtPjumeler, "BtPjumeler", kHorsSaisie | kJournalPropre},
    // Kept on purpose: the pairing panel saves an empty logbook too, the menu does not.
    {Commande::BtPjSauvegarder, "BtPjSauvegarder", kHorsSaisie | kJournalPropre},
    {Commande::MnuCreateMDB, "MnuCreateMDB", kHorsEdition | kAuMoinsUn},
    {Commande::MnuCopieSurDisque, "MnuCopieSurDisque", kHorsSaisie | kAuMoinsUn},
    {Commande::MnuClasser, "MnuClasser", kHorsSaisie | kAuMoinsDeux},
    {Commande::MnuDoublons, "MnuDoublons", kToujours},
    {Commande::MnuSauver, "MnuSauver", kHorsSaisie | kJournalPropre | kAuMoinsUn},
    {Commande::MnuConfigImp, "MnuConfigImp", kHorsSaisie},
    {Commande::MnuImpPage, "MnuImpPage", kHorsSaisie | kAuMoinsUn},
    {Commande::MnuImpPageVierge, "MnuImpPageVierge", kHorsSaisie},
    {Commande::MnuChangerLocator, "MnuChangerLocator", kEnSaisie},
    {Commande::MnuVirginTags, "MnuVirginTags", kHorsSaisie | kSansReponse},
    {Commande::MnuGestionFeuilleQSL, "MnuGestionFeuilleQSL",
     kHorsSaisie | kSansReponse | kJournalOuvert},
    {Commande::BtNewQSO, "BtNewQSO", kHorsSaisie | kModifiable},
    {Commande::BtKillFiche, "BtKillFiche", kHorsSaisie | kModifiable | kAuMoinsUn},
    {Commande::ModifierFiche, "", kHorsSaisie | kModifiable | kAuMoinsUn},
}};

/// Whether the session's state lets the command run. What only the window knows (a panel on show,
/// an unanswered deletion, a sort under way) is asked there, on top of this.
[[nodiscard]] bool CommandePermise(Commande commande, const Session& session);

} // namespace orvalis
