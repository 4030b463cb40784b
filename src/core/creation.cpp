#include "core/creation.h"

#include "core/cahier.h"
#include "core/chemins.h"
#include "core/dossier.h"
#include "core/texte.h"
#include "geo/locator.h"

namespace orvalis {
namespace fs = std::filesystem;

// Kept on purpose, for the operators: the lengths of locator and callsign must have a binary digit
// in common. A locator has 6 characters, binary 110, so a callsign passes when the 2 or the 4 is in
// its length: 2 to 7, 10 to 15 and 18 to 20 characters do; 1, 8, 9, 16 and 17 create nothing.
bool IndicatifCreable(std::string_view indicatif) {
    return (Longueur(indicatif) & kLargeurLocator) != 0;
}

bool CreerCahier(const fs::path& lecteur, const Parametres& parametres) {
    const fs::path dossier = DossierProgramme(lecteur);
    std::error_code erreur;
    fs::create_directory(dossier, erreur);
    if (!fs::is_directory(dossier, erreur))
        return false;
    if (!IndicatifCreable(parametres.indicatif))
        return false;
    FichierFiches fichier(TrouverFichier(dossier, parametres.nomFichier), ModeFichier::Creation);
    if (!fichier.Support().Verrouiller())
        throw Erreur(NatureErreur::DejaOuvert, dossier / CheminTexte(parametres.nomFichier));
    EcrireParametres(TrouverParametres(dossier), parametres);
    // An existing logbook is not emptied: only its first record becomes the end of the log.
    fichier.Ecrire(kPremiereFiche, FicheFinDeLog(parametres.monLocator));
    fichier.Support().Synchroniser();
    SynchroniserNom(fichier.Support().Chemin());
    SynchroniserNom(dossier);
    return true;
}

CahierDejaLa ContactsDejaLa(const fs::path& lecteur, std::string_view nomFichier) {
    try {
        const fs::path chemin = TrouverFichier(DossierProgramme(lecteur), nomFichier);
        if (!Present(chemin))
            return {};
        return {TexteChemin(chemin.filename()),
                FichierFiches(chemin, ModeFichier::Lecture).Compter()};
    } catch (const std::exception&) {
        return {}; // the creation itself will say what is wrong with it
    }
}

std::string CheminProgrammeTexte(const fs::path& lecteur, std::string_view nom) {
    std::string texte = TexteLecteur(lecteur) + std::string{kNomDossier};
    const char separateur = texte.size() > 1 && texte[1] == ':'
                                ? '\\'
                                : static_cast<char>(fs::path::preferred_separator);
    return texte + separateur + std::string{nom};
}

} // namespace orvalis
