// What Chronel knows of the service that keeps the system's time, and what its window shows of it.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

enum class Acces {
    Attente, ///< asked, not answered yet
    SansBus, ///< no system bus
    Refus,   ///< the bus, but no service: EtatService::refus says why
    Page,    ///< no service that a program may ask; a page of the system's own sets the clock
    Etabli
};

/// What the operator asked the service for and has no answer to yet.
enum class Demande { Aucune, MettreReseau, CouperReseau, Regler };

struct EtatService {
    Acces acces = Acces::Attente;
    std::string refus;
    bool peutReseau = false;  ///< a program that keeps the time by the network is installed
    bool reseau = false;      ///< it is switched on
    bool synchronise = false; ///< the clock has been set by such a program, whichever
    Demande enCours = Demande::Aucune;
    std::string message; ///< what came of the last demand, or what is wrong with what was typed
    bool echec = false;  ///< the message tells of a failure
};

/// The window: texts, and what can be used.
struct VueChronel {
    std::string etat;
    std::string message;
    bool echec = false;
    bool interrupteur = false; ///< the switch can be used
    bool coche = false;        ///< it stands on "by the network"
    bool saisie = false;       ///< a time can be typed
    bool page = false;         ///< the system's own page is offered, in the place of all that
};
[[nodiscard]] VueChronel VoirChronel(const EtatService& etat);

/// Whether the service must be asked again from time to time: it announces neither that the clock
/// has been set nor that it has come at last.
[[nodiscard]] bool ARelire(const EtatService& etat);

/// The operator asks for something; false when that cannot be now, and nothing changes.
[[nodiscard]] bool Demander(EtatService& etat, Demande demande);

/// The answer to what was asked; `faute` is the sentence of a refusal, empty when it is done.
void Repondre(EtatService& etat, std::string_view faute);

/// The sentence for an error of the bus or of the service; `texte` is its own, in its language.
[[nodiscard]] std::string DireFaute(std::string_view nom, std::string_view texte);

} // namespace orvalis
