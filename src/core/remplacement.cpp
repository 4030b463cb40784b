#include "core/remplacement.h"

#include "core/fichier.h"

namespace orvalis {
namespace fs = std::filesystem;

void RemplacerFichier(const fs::path& chemin, std::string_view octets) {
    std::error_code erreur;
    fs::path reel = fs::canonical(chemin, erreur);
    if (erreur)
        reel = chemin; // not there yet
    const fs::path provisoire = fs::path(reel) += ".tmp";
    fs::remove(provisoire, erreur);
    try {
        Fichier fichier(provisoire, ModeFichier::Creation);
        fichier.Ecrire(0, octets);
        fichier.Synchroniser();
    } catch (const Erreur& echec) {
        fs::remove(provisoire, erreur);
        throw Erreur(echec.Nature(), reel, echec.code());
    }
    fs::rename(provisoire, reel, erreur);
    if (const std::error_code raison = erreur) {
        fs::remove(provisoire, erreur);
        throw Erreur(NatureErreur::Remplacer, reel, raison);
    }
    SynchroniserNom(reel);
}

} // namespace orvalis
