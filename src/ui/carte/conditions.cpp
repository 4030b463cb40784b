#include "ui/carte/conditions.h"

namespace orvalis {
namespace {

// Another panel waits for the operator, so that the label service must wait too.
bool UnPanneauAttend(const Carte& carte, const Ecran& ecran, const EtatFeuille& feuille) {
    return carte.saisie.EnSaisie || carte.saisie.NbModifs != 0 || ecran.question ||
           ecran.locator.montre || ecran.classer.montre || ecran.jumelage.montre ||
           feuille.vue.panneau || feuille.vue.controle;
}

} // namespace

unsigned ConditionsRemplies(const Session& session, const Ecran& ecran,
                            const EtatFeuille& feuille) {
    const Carte& carte = session.carte;
    const Cahier& cahier = session.cahier;
    const auto si = [](bool vrai, Condition condition) {
        return vrai ? static_cast<unsigned>(condition) : 0U;
    };
    return si(!carte.saisie.EnSaisie, kHorsSaisie) | si(carte.saisie.EnSaisie, kEnSaisie) |
           si(!carte.EnEdition(), kHorsEdition) | si(cahier.EstLeNotre(), kCahierPropre) |
           si(!cahier.lectureSeule, kModifiable) | si(cahier.nbFiches > 0, kAuMoinsUn) |
           si(cahier.nbFiches > 1, kAuMoinsDeux) |
           si(cahier.fichier.Support().EstOuvert(), kCahierOuvert) |
           si(carte.saisie.NbModifs == 0, kSansReponse) |
           si(ecran.temoinDemarrage == 0 && !ecran.gel, kPret) |
           si(!feuille.vue.panneau, kSansFeuille) | si(!feuille.vue.controle, kSansControle) |
           si(!ecran.gel, kSansGel) | si(cahier.Contient(carte.ficheCourante), kFicheMontree) |
           si(!UnPanneauAttend(carte, ecran, feuille), kSansAttente);
}

} // namespace orvalis
