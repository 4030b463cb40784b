#include "ui/carte/conditions.h"

#include <array>

namespace orvalis {
namespace {

// Another panel waits for the operator, so that the label service must wait too.
bool UnPanneauAttend(const Carte& carte, const Ecran& ecran, const EtatFeuille& feuille) {
    return carte.saisie.EnSaisie || carte.saisie.NbModifs != 0 || ecran.question ||
           ecran.locator.montre || ecran.classer.montre || ecran.jumelage.montre ||
           feuille.vue.panneau || feuille.vue.controle;
}

struct Raison {
    Condition condition;
    std::string_view mots;
};

// What stands in the way, first what must go first.
constexpr std::array<Raison, 15> kRaisons = {{
    {kSansGel, "un instant, un travail est en cours"},
    {kSansControle, "répondez d'abord au contrôle de l'impression"},
    {kSansFeuille, "quittez d'abord la feuille d'étiquettes"},
    {kHorsSaisie, "terminez d'abord la saisie"},
    {kSansReponse, "répondez d'abord Oui ou Non"},
    {kHorsEdition, "terminez d'abord la correction"},
    {kEnSaisie, "seulement pendant une saisie"},
    {kCahierPropre, "seulement sur votre propre cahier"},
    {kModifiable, "ce cahier est en lecture seule"},
    {kAuMoinsUn, "le cahier est vide"},
    {kAuMoinsDeux, "il faut au moins deux contacts"},
    {kFicheMontree, "aucune fiche n'est affichée"},
    {kCahierOuvert, "aucun cahier n'est ouvert"},
    {kPret, "le cahier n'est pas encore ouvert"},
    {kSansAttente, "un autre panneau attend votre réponse"},
}};

} // namespace

std::string_view RaisonDuRefus(unsigned requises, unsigned remplies) {
    for (const Raison& raison : kRaisons)
        if (!Permis(requises & raison.condition, remplies))
            return raison.mots;
    return {};
}

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
