#include "core/remplacement.h"

#include "core/fichier.h"

namespace orvalis {
namespace fs = std::filesystem;

namespace {

// What a link stands for in the end, whether it is there yet or not.
fs::path Suivre(fs::path chemin) {
    constexpr int kLiens = 40; // as far as the system follows them
    std::error_code erreur;
    for (int i = 0; i < kLiens && fs::is_symlink(chemin, erreur); ++i)
        chemin = chemin.parent_path() / fs::read_symlink(chemin, erreur);
    return chemin;
}

} // namespace

void RemplacerFichier(const fs::path& chemin, std::string_view octets) {
    std::error_code erreur;
    const fs::path reel = Suivre(chemin);
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
    noyau::Renommer(provisoire, reel, erreur);
    if (const std::error_code raison = erreur) {
        fs::remove(provisoire, erreur);
        throw Erreur(NatureErreur::Remplacer, reel, raison);
    }
    SynchroniserNom(reel);
}

} // namespace orvalis
