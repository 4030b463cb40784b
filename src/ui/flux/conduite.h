// What every flow does: answer the boxes, move the focus, freeze the window.
#pragma once

#include "ui/carte/saisie.h"
#include "ui/flux/plateau.h"

namespace orvalis {

/// Carries out what a rule of the boxes answered, the second of "ERREUR" included.
void AppliquerReponse(Plateau& p, Reponse reponse);

/// Gives the focus to a control; the box left behind and the box that takes it follow their rules.
void DonnerFoyer(Plateau& p, const Foyer& cible);

/// Takes the focus away: the box that has it shows its slot again.
void LacherFoyer(Plateau& p);

/// Where the operator goes on after a flow that has let the focus go and was broken off.
void RetrouverFoyer(Plateau& p);

/// While one lives, keyboard and mouse act on nothing but quitting.
class Gel {
  public:
    explicit Gel(Ecran& ecran);
    ~Gel();
    Gel(const Gel&) = delete;
    Gel& operator=(const Gel&) = delete;
    Gel(Gel&&) = delete;
    Gel& operator=(Gel&&) = delete;

  private:
    Ecran& ecran_;
    bool avant_;
};

/// The second during which the text refused in the box `ou` reads "ERREUR", the window frozen.
/// Returns false when the operator quit meanwhile.
[[nodiscard]] bool AttendreErreur(Plateau& p, const Foyer& ou);

} // namespace orvalis
