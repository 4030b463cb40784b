#include "ui/carte/foyer.h"

#include "ui/carte/modification.h"

#include <utility>

namespace orvalis {
namespace {

void Quitter(Carte& carte, EtatFoyer& foyer) {
    if (const auto boite = BoiteDuFoyer(foyer.ici))
        carte = QuitterFoyer(carte, *boite);
}

void Prendre(Carte& carte, Ecran& ecran, const Station& station) {
    if (const auto boite = BoiteDuFoyer(ecran.foyer.ici)) {
        Appliquer(carte, ecran, station, PrendreFoyer(carte, *boite));
    } else if (ecran.foyer.ici.cible == Cible::TexteLocator) {
        // As the box takes it, whatever the Settings file holds.
        MontrerTexteLocator(carte, ecran, FiltrerTouches(Touches::Majuscules, station.monLocator));
        ecran.foyer.selection = ecran.foyer.ici;
    }
}

} // namespace

bool Joignable(const Carte& carte, const Ecran& ecran, const Foyer& foyer) {
    switch (foyer.cible) {
    case Cible::Boite:
        return !ecran.classer.montre;
    case Cible::Liste:
        return ecran.liste.active;
    case Cible::Contacts:
        return ecran.contacts.montree;
    case Cible::Recherche:
        return ecran.recherche.montre;
    case Cible::Nouveau:
        return !carte.saisie.EnSaisie && ecran.menuActif && !ecran.contacts.boutonsGrises;
    case Cible::Suivant:
        return carte.saisie.EnSaisie && ecran.suivantArme;
    case Cible::Annuler:
        return carte.saisie.EnSaisie && ecran.annulerActif;
    case Cible::Terminer:
    case Cible::OptionReel:
    case Cible::OptionDiffere:
        return carte.saisie.EnSaisie;
    case Cible::Oui:
    case Cible::Non:
        return ecran.question.has_value();
    case Cible::TexteLocator:
    case Cible::AnnulerLocator:
    case Cible::GarderLocator:
        return ecran.locator.montre;
    case Cible::ValiderLocator:
        return ecran.locator.montre && ecran.locator.valider;
    case Cible::Sauvegarder:
        return ecran.jumelage.montre && !ecran.jumelage.sauvegardeFaite;
    case Cible::Jumeler:
        return ecran.jumelage.montre;
    default:
        return true;
    }
}

void DeplacerFoyer(Carte& carte, Ecran& ecran, const Station& station, const Foyer& cible) {
    EtatFoyer& foyer = ecran.foyer;
    // With the focus nowhere the wish stands: AccorderFoyer finds where the operator goes on.
    if (foyer.ici != Foyer{} && !Joignable(carte, ecran, cible))
        return;
    foyer.voeu = cible;
    if (foyer.ici == cible)
        return;
    Quitter(carte, foyer);
    foyer.ici = cible;
    Prendre(carte, ecran, station);
}

void SuivreFoyer(Carte& carte, Ecran& ecran, const Station& station, const Foyer& ici) {
    EtatFoyer& foyer = ecran.foyer;
    if (foyer.ici == ici && ici.cible != Cible::Autre)
        return;
    Quitter(carte, foyer);
    foyer.ici = ici;
    Prendre(carte, ecran, station);
}

void LacherFoyer(Carte& carte, Ecran& ecran) {
    Quitter(carte, ecran.foyer);
    ecran.foyer.ici = {};
    ecran.foyer.voeu = Foyer{};
}

void RendreFoyerALaBoite(Carte& carte, Ecran& ecran, const Station& station) {
    if (BoiteDuFoyer(ecran.foyer.ici))
        return;
    const Boite boite = carte.saisie.DerniereZone;
    DeplacerFoyer(carte, ecran, station, SurBoite(boite));
    // A box that was merely pressed looks as it did before something else had the focus.
    if (carte.saisie.EnModification && carte.saisie.pressee == boite)
        ColorerZone(carte, boite, Couleur::RougeClair);
}

void Appliquer(Carte& carte, Ecran& ecran, const Station& station, Reponse reponse) {
    const Effets& effets = reponse.effets;
    carte = std::move(reponse.carte);
    ecran.activeRech |= effets.montrerActiveRech;
    ecran.annulerActif |= effets.activerAnnuler;
    ecran.suivantArme |= effets.activerSuivant;
    if (effets.poserQuestion)
        ecran.question = QuestionModifier(carte);
    if (effets.selection)
        ecran.foyer.selection = SurBoite(*effets.selection);
    if (effets.ouvrirLocator)
        OuvrirChangLocator(carte, ecran, station);
    if (effets.foyer)
        DeplacerFoyer(carte, ecran, station, *effets.foyer);
}

void MontrerTexteLocator(Carte& carte, Ecran& ecran, std::string_view texte) {
    if (ecran.locator.texte != texte)
        SaisirTexteLocator(carte, ecran, texte);
}

void SaisirTexteLocator(Carte& carte, Ecran& ecran, std::string_view texte) {
    ecran.locator.texte = texte;
    ecran.locator.valider = false;
    carte.saisie.TexteSaisi = ecran.locator.texte;
}

void OuvrirChangLocator(Carte& carte, Ecran& ecran, const Station& station) {
    ecran.locator.montre = true;
    ecran.locator.valider = false;
    ecran.locator.garder = false;
    DeplacerFoyer(carte, ecran, station, {Cible::TexteLocator});
}

} // namespace orvalis
