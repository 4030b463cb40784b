// Doing to the controls what a rule of the entry boxes answered.
#pragma once

#include "core/saisie.h"
#include "ui/plateau.h"

#include <cstddef>

class QWidget;

namespace orvalis {

/// Stores the state of `reponse` in the session and shows its effects: texts, colours, labels,
/// buttons, selection, focus, and the second of "ERREUR" when it asks for one.
void AppliquerReponse(Plateau& p, const Reponse& reponse);

/// Gives the focus to box `index` (1 to 17).
void DonnerFoyer(Plateau& p, std::size_t index);

/// Takes the focus away, so that hiding or disabling controls does not push it into a box.
void LacherFoyer();

/// Hides a panel; a focus inside it goes nowhere, that elsewhere stays where it is.
void Cacher(QWidget& panneau);

/// Gives back the idle buttons that a contacts list had disabled, once none is on show.
void ReactiverBoutons(Plateau& p);

/// While one lives, keyboard and mouse act on nothing but quitting.
class Gel {
  public:
    explicit Gel(Plateau& p);
    ~Gel();
    Gel(const Gel&) = delete;
    Gel& operator=(const Gel&) = delete;
    Gel(Gel&&) = delete;
    Gel& operator=(Gel&&) = delete;

  private:
    Plateau& p_;
    bool avant_;
};

/// The hourglass while one lives.
class Sablier {
  public:
    Sablier();
    ~Sablier();
    Sablier(const Sablier&) = delete;
    Sablier& operator=(const Sablier&) = delete;
    Sablier(Sablier&&) = delete;
    Sablier& operator=(Sablier&&) = delete;
};

} // namespace orvalis
