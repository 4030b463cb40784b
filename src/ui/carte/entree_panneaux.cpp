#include "ui/carte/entree_panneaux.h"

#include "core/texte.h"
#include "qsl/vie_etiquette.h"
#include "ui/carte/foyer.h"
#include "ui/carte/saisie.h"

namespace orvalis {
namespace {

// None when the button is hidden.
void DonnerFoyerValider(const EtatFeuille& feuille, Carte& carte, Ecran& ecran,
                        const Station& station) {
    if (feuille.vue.valider)
        DeplacerFoyer(carte, ecran, station, {Cible::ValiderEtiquette});
}

} // namespace

void CederAuxContacts(Carte& carte, Ecran& ecran, const Station& station) {
    ecran.recherche = {false, {}};
    ecran.contacts.montree = true;
    ecran.activeRech |= !carte.Texte(Boite::Indicatif).empty();
    DeplacerFoyer(carte, ecran, station,
                  carte.saisie.EnSaisie ? SurBoite(carte.saisie.DerniereZone)
                                        : Foyer{Cible::Liste});
}

VerdictLocator EntrerLocator(Carte& carte, Ecran& ecran, const Station& station) {
    const VerdictLocator verdict = JugerLocatorStation(ecran.locator.texte);
    if (verdict == VerdictLocator::Accepte) {
        ecran.locator.valider = true;
        DeplacerFoyer(carte, ecran, station, {Cible::ValiderLocator});
    } else if (verdict == VerdictLocator::Refuse) {
        MontrerTexteLocator(carte, ecran, kErreur);
        ecran.foyer.selection = Foyer{Cible::TexteLocator};
    }
    return verdict;
}

void GarderLocator(Ecran& ecran, bool garder) {
    ecran.locator.garder = garder;
}

void ChoisirTempsReel(Carte& carte, Ecran& ecran, const Station& station, bool tempsReel) {
    carte.saisie.tempsReel = tempsReel;
    DeplacerFoyer(carte, ecran, station, SurBoite(Boite::Indicatif));
}

void FermerChangLocator(Carte& carte, Ecran& ecran, const Station& station) {
    const bool dansUneBoite = BoiteDuFoyer(ecran.foyer.ici).has_value();
    const std::string saisi = carte.saisie.TexteSaisi;
    if (!dansUneBoite)
        LacherFoyer(carte, ecran);
    ecran.locator.montre = false;
    ecran.activeRech |= !carte.Texte(Boite::Indicatif).empty();
    MontrerTexte(carte, Boite::MonLocator, Rogner(station.monLocator));
    if (dansUneBoite)
        carte.saisie.TexteSaisi = saisi;
    else
        DeplacerFoyer(carte, ecran, station, SurBoite(carte.saisie.DerniereZone));
}

void EntrerEtiquette(EtatFeuille& feuille, Carte& carte, Ecran& ecran, const Station& station,
                     std::size_t boite) {
    EntrerBoiteEtiquette(feuille);
    if (feuille.fraiche && boite == kBoiteNumeroFiche)
        DonnerFoyerEtiquette(carte, ecran, station, kBoiteIndicatif);
    else if (!feuille.fraiche || boite >= kBoiteManager)
        DonnerFoyerValider(feuille, carte, ecran, station);
    else if (boite == kBoiteLigne2)
        DeplacerFoyer(carte, ecran, station, FoyerDeLaVoie(feuille));
    else
        DonnerFoyerEtiquette(carte, ecran, station, boite + 1);
}

void EntrerVoie(EtatFeuille& feuille, Carte& carte, Ecran& ecran, const Station& station,
                VoieQSL voie) {
    const bool confirmee = feuille.voie == voie;
    ChoisirVoie(feuille, voie);
    if (confirmee)
        DonnerFoyerValider(feuille, carte, ecran, station);
}

void DonnerFoyerEtiquette(Carte& carte, Ecran& ecran, const Station& station, std::size_t boite) {
    const Foyer cible{Cible::BoiteEtiquette, static_cast<int>(boite)};
    DeplacerFoyer(carte, ecran, station, cible);
    ecran.foyer.selection = cible;
}

Foyer FoyerDeLaVoie(const EtatFeuille& feuille) {
    return {feuille.voie == VoieQSL::Direct ? Cible::VoieDirecte : Cible::VoieBureau};
}

} // namespace orvalis
