#include "ui/carte/creation_cahier.h"

#include "core/creation.h"
#include "core/dossier.h"
#include "core/texte.h"
#include "geo/locator.h"
#include "ui/carte/saisie.h"

namespace orvalis {
namespace {

bool PrendreIndicatif(Creation& creation) {
    if (Rogner(creation.texteIndicatif).empty())
        return false;
    creation.indicatif = Majuscules(Rogner(creation.texteIndicatif));
    creation.nomFichier = NomDuCahier(creation.indicatif);
    return true;
}

void DireAcceptation(Phrase& p, const Creation& creation) {
    Creation apres = creation;
    const bool indicatif = creation.foyer == CibleCreation::Indicatif;
    const std::string texte = indicatif ? creation.texteIndicatif : creation.texteLocator;
    const bool videLocator = indicatif && !creation.texteLocator.empty();
    (indicatif ? AccepterIndicatif : AccepterLocator)(apres);
    if (apres.erreur)
        p.Dire("affiche ERREUR").Dire(kPointVirgule).Dire("il faut un locator comme JN18DU");
    else if (apres.foyer == CibleCreation::Indicatif)
        p.Dire(indicatif ? "reste ici" : "revient à l'indicatif")
            .Dire(kPointVirgule)
            .Dire("il faut un indicatif");
    else
        p.Dire("accepte ")
            .Citer(texte)
            .Dire(videLocator ? ", vide le locator" : "")
            .Dire(apres.foyer == CibleCreation::Locator ? ", puis Locator de la station"
                                                        : ", puis Valider");
}

} // namespace

void AccepterIndicatif(Creation& creation) {
    if (!PrendreIndicatif(creation))
        return;
    creation.texteLocator.clear();
    creation.complete = false;
    creation.foyer = CibleCreation::Locator;
}

void AccepterLocator(Creation& creation) {
    // What the callsign box shows is what will be created, whether Enter was pressed there or not.
    if (!PrendreIndicatif(creation)) {
        creation.foyer = CibleCreation::Indicatif;
        return;
    }
    creation.erreur = !LocatorValide(creation.texteLocator);
    creation.complete = !creation.erreur;
    if (creation.erreur) {
        creation.texteLocator = kErreur;
        return;
    }
    creation.monLocator = creation.texteLocator;
    creation.foyer = CibleCreation::Valider;
}

Conseil ConseillerCreation(const Creation& creation) {
    Phrase p;
    // The callsign that Valider would take.
    Creation essai = creation;
    if (creation.foyer != CibleCreation::Valider)
        static_cast<void>(PrendreIndicatif(essai));
    const bool creable = essai.indicatif.empty() || IndicatifCreable(essai.indicatif);
    const std::string longueur =
        Compte(static_cast<std::int64_t>(Longueur(essai.indicatif)), "caractère");
    if (creation.foyer == CibleCreation::Indicatif || creation.foyer == CibleCreation::Locator)
        DireAcceptation(p, creation);
    else if (creation.foyer == CibleCreation::Valider)
        p.Dire(creable ? "crée le cahier " + creation.nomFichier : "ne fait rien");
    Conseil conseil;
    if (!p.texte.empty())
        conseil.entree = "Entrée" + std::string{kDeuxPoints} + p.texte;
    if (!creable)
        conseil.etat = "avec " + longueur + ", Valider ne fera rien";
    conseil.cle = std::to_string(static_cast<int>(creation.foyer)) + p.cle + conseil.etat;
    return conseil;
}

} // namespace orvalis
