#include "ui/carte/entree_tenue.h"

namespace orvalis {
namespace {

// No keyboard waits longer before it repeats. A release that went to another program must not cost
// a press for ever.
constexpr std::uint64_t kAttenteMs = 1000;
// No keyboard begins to repeat so soon, but keys that a program sends come as fast.
constexpr std::uint64_t kRafaleMs = 50;

bool EstUneRepetition(const EntreeTenue& touche, const MouvementEntree& appui) {
    if (appui.repetee || !touche.appui)
        return appui.repetee;
    const std::uint64_t depuis = appui.instant - *touche.appui;
    if (touche.enfoncee)
        return depuis <= kAttenteMs && appui.fenetre == touche.fenetre;
    return touche.relachee == appui.instant && depuis >= (touche.propre ? kRafaleMs : 1);
}

} // namespace

void SuivreEntree(EntreeTenue& touche, const MouvementEntree& mouvement) {
    if (mouvement.enfoncee) {
        touche.propre = !EstUneRepetition(touche, mouvement);
        touche.appui = mouvement.instant;
        touche.fenetre = mouvement.fenetre;
    } else {
        touche.relachee = mouvement.instant;
    }
    touche.enfoncee = mouvement.enfoncee;
}

} // namespace orvalis
