#include "ui/carte/chapitre.h"

#include <array>

namespace orvalis {

// What lies on top is told of first.
std::string_view ChapitreDuGuide(const Session& session, const Ecran& ecran,
                                 const VueFeuille& feuille) {
    struct Sujet {
        bool montre;
        std::string_view chapitre;
    };
    const EtatSaisie& saisie = session.carte.saisie;
    const Cible foyer = ecran.foyer.ici.cible;
    const std::array<Sujet, 12> sujets = {{
        {feuille.controle, "imprimer-et-contrôler"},
        {feuille.panneau && (feuille.laisser || foyer == Cible::ChoixEtiquette),
         "tenir-la-feuille"},
        {feuille.panneau, "préparer-une-étiquette"},
        {ecran.question && saisie.NbModifs == 0, "supprimer"},
        {ecran.locator.montre, "changer-de-locator-en-portable"},
        {saisie.EnSaisie, "entrer-des-contacts"},
        {saisie.EnModification || saisie.NbModifs != 0, "corriger"},
        {ecran.jumelage.montre, "jumeler-deux-cahiers"},
        {ecran.contacts.montree || foyer == Cible::Recherche,
         "retrouver-une-station-une-date-un-doublon"},
        {session.cahier.lectureSeule, "ouvrir-un-autre-cahier"},
        {session.cahier.nbFiches == 0, "entrer-des-contacts"},
        {foyer == Cible::Liste, "parcourir-le-cahier"},
    }};
    for (const Sujet& sujet : sujets)
        if (sujet.montre)
            return sujet.chapitre;
    return "la-fenêtre";
}

} // namespace orvalis
