// A Settings file of arbitrary bytes: refused in French, or read, written and read alike.
#include "core/erreurs.h"
#include "core/parametres.h"
#include "core/texte.h"
#include "fichier_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    using namespace orvalis;
    const auto chemin = fuzz::Poser("Parvel.cfg", octets, n);
    Parametres lus;
    try {
        lus = LireParametres(chemin);
    } catch (const Erreur& refus) {
        fuzz::Exiger(std::string_view(refus.what()).starts_with("Le fichier de paramètres"));
        return 0;
    }
    fuzz::Exiger(Longueur(lus.monLocator) == 6);
    EcrireParametres(chemin, lus);
    const Parametres relus = LireParametres(chemin);
    fuzz::Exiger(relus.indicatif == lus.indicatif && relus.nomFichier == lus.nomFichier &&
                 relus.monLocator == lus.monLocator);
    return 0;
}
