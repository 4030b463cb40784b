#include "maint/sauvegardes.h"

#include "core/chemins.h"
#include "core/dossier.h"
#include "core/fichier_fiches.h"
#include "core/texte.h"

#include <algorithm>
#include <cctype>
#include <chrono>

namespace orvalis {
namespace fs = std::filesystem;
namespace {

bool EstUneSauvegardeDe(const fs::path& chemin, const fs::path& cahier) {
    const std::string nom = Majuscules(TexteChemin(chemin.stem()));
    const std::string voulu = Majuscules(TexteChemin(cahier.stem()));
    if (!nom.starts_with(voulu) ||
        Majuscules(TexteChemin(chemin.extension())) != Majuscules(TexteChemin(cahier.extension())))
        return false;
    return nom.size() == voulu.size() ||
           std::isalnum(static_cast<unsigned char>(nom[voulu.size()])) == 0;
}

} // namespace

std::optional<Sauvegarde> DerniereSauvegarde(const fs::path& lecteur, std::string_view nom,
                                             const std::optional<Sauvegarde>& connue) {
    const fs::path dossier = TrouverFichier(DossierProgramme(lecteur), kNomSauvegardes);
    const fs::path cahier = CheminTexte(nom);
    std::optional<Sauvegarde> derniere;
    std::error_code raison;
    for (const fs::directory_entry& entree : fs::directory_iterator(dossier, raison)) {
        if (!EstUneSauvegardeDe(entree.path().filename(), cahier))
            continue;              // before asking the system about it
        std::error_code illisible; // gone meanwhile, or not ours to see
        const auto date = entree.last_write_time(illisible);
        if (!illisible && entree.is_regular_file(illisible) && (!derniere || date > derniere->date))
            derniere = Sauvegarde{entree.path(), date, 0};
    }
    if (!derniere)
        return std::nullopt;
    if (connue && connue->chemin == derniere->chemin && connue->date == derniere->date)
        return connue;
    derniere->nbFiches = FichierFiches(derniere->chemin, ModeFichier::Lecture).Compter();
    return derniere;
}

int JoursDepuis(const Sauvegarde& sauvegarde) {
    using Jours = std::chrono::duration<int, std::ratio<86400>>;
    const auto age = fs::file_time_type::clock::now() - sauvegarde.date;
    return std::max(0, std::chrono::floor<Jours>(age).count());
}

} // namespace orvalis
