// The Enter key held down. The keyboard then repeats it, and the boxes take every repetition; but a
// button that stores, prints or confirms must not take one for an answer: it needs a press of its
// own. On X11 the mark of a repetition comes and goes, since Qt finds it only when the next event
// is there already; what never fails is that the release and the press of a repetition are of the
// same instant.
#pragma once

#include <cstdint>
#include <optional>

namespace orvalis {

/// What the keyboard says of the Enter key.
struct MouvementEntree {
    bool enfoncee = false;      ///< pressed, else released
    std::uint64_t instant = 0;  ///< in ms, of the keyboard's own clock
    bool repetee = false;       ///< marked as a repetition
    std::uintptr_t fenetre = 0; ///< the window that it came to, by whatever tells windows apart
};

/// The Enter key as far as it is known.
struct EntreeTenue {
    bool enfoncee = false;                 ///< no release since the last press
    bool propre = false;                   ///< the last press is one of its own
    std::optional<std::uint64_t> appui;    ///< instant of the last press
    std::optional<std::uint64_t> relachee; ///< instant of the last release
    std::uintptr_t fenetre = 0;            ///< the window of the last press
};

/// Follows the key. A press is one of its own unless it is marked as a repetition, is of the same
/// instant as the release of a key that was held (keys that a program sends may share an instant
/// too, but are not held), or follows another one in the same window within a second without any
/// release, as over some remote desktops. In another window the release went to the one that the
/// press has closed or covered, where nothing hears of it.
void SuivreEntree(EntreeTenue& touche, const MouvementEntree& mouvement);

} // namespace orvalis
