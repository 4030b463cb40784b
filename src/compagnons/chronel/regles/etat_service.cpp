#include "compagnons/chronel/regles/etat_service.h"

#include <utility>

namespace orvalis {
namespace {

std::string DireReseau(const EtatService& etat) {
    if (etat.reseau)
        return etat.synchronise
                   ? "Le système tient l'heure par le réseau\u00A0; l'horloge est à l'heure."
                   : "Le système tient l'heure par le réseau, mais n'a pas encore pu mettre "
                     "l'horloge à l'heure. Le réseau est-il là\u00A0?";
    // The mark that the clock has been set outlives by hours what has set it.
    if (etat.peutReseau)
        return etat.synchronise
                   ? "Le système ne tient pas l'heure par le réseau\u00A0; l'horloge a "
                     "été mise à l'heure il y a peu."
                   : "Le système ne tient pas l'heure par le réseau.";
    return etat.synchronise ? "Un autre programme met l'horloge à l'heure\u00A0: un réglage à la "
                              "main ne durera pas."
                            : "Aucun programme de mise à l'heure par le réseau n'est installé sur "
                              "cet ordinateur\u00A0: l'heure se règle à la main.";
}

std::string DireEtat(const EtatService& etat) {
    switch (etat.acces) {
    case Acces::Attente:
        return "Question posée au système\u2026";
    case Acces::SansBus:
        return "Le bus du système (D-Bus) est absent\u00A0: Chronel montre l'heure, mais ne peut "
               "pas la régler.";
    case Acces::Refus:
        return etat.refus;
    case Acces::Page:
        return "Le système tient l'heure lui-même\u00A0: sa page de réglage la met à l'heure, par "
               "le "
               "réseau ou à la main.";
    case Acces::Etabli:
        break;
    }
    return DireReseau(etat);
}

// What is shown once it is done.
std::string_view DireFait(Demande demande) {
    switch (demande) {
    case Demande::MettreReseau:
        return "La mise à l'heure par le réseau est en marche.";
    case Demande::CouperReseau:
        return "La mise à l'heure par le réseau est coupée.";
    case Demande::Regler:
        return "L'horloge de l'ordinateur est réglée.";
    case Demande::Aucune:
        break;
    }
    return {};
}

} // namespace

VueChronel VoirChronel(const EtatService& etat) {
    const bool libre = etat.acces == Acces::Etabli && etat.enCours == Demande::Aucune;
    VueChronel vue;
    vue.etat = DireEtat(etat);
    vue.message = etat.message;
    vue.echec = etat.echec;
    // What is on can be switched off even where nothing is left that could switch it on again.
    vue.interrupteur = libre && (etat.peutReseau || etat.reseau);
    vue.coche = etat.acces == Acces::Etabli && etat.reseau;
    vue.saisie = libre && !etat.reseau;
    vue.page = etat.acces == Acces::Page;
    if (etat.enCours != Demande::Aucune)
        vue.message = "Demande faite au système\u00A0: s'il pose une question, répondez-y.";
    else if (vue.message.empty() && libre && etat.reseau)
        vue.message = "Pour régler l'heure à la main, coupez d'abord la mise à l'heure par le "
                      "réseau.";
    else if (vue.message.empty() && vue.saisie)
        vue.message = "Tapez l'heure qu'il va être, et pressez Entrée à cet instant.";
    return vue;
}

bool ARelire(const EtatService& etat) {
    return etat.acces != Acces::Etabli || (etat.reseau && !etat.synchronise);
}

bool Demander(EtatService& etat, Demande demande) {
    const VueChronel vue = VoirChronel(etat);
    if (!(demande == Demande::Regler ? vue.saisie : vue.interrupteur))
        return false;
    etat.enCours = demande;
    etat.message.clear();
    etat.echec = false;
    return true;
}

void Repondre(EtatService& etat, std::string_view faute) {
    const Demande demande = std::exchange(etat.enCours, Demande::Aucune);
    etat.echec = !faute.empty();
    etat.message = etat.echec ? faute : DireFait(demande);
    // The service has said yes; that it says the same when asked takes it a moment.
    if (!etat.echec)
        etat.reseau = demande == Demande::MettreReseau;
}

} // namespace orvalis
