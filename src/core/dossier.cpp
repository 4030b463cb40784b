#include "core/dossier.h"

#include "core/chemins.h"
#include "core/erreurs.h"
#include "core/noyau.h"
#include "core/texte.h"

#include <algorithm>
#include <array>
#include <vector>

namespace orvalis {
namespace fs = std::filesystem;
namespace {

struct PointDeMontage {
    std::array<std::string_view, 2> debut; // leading folders, the second may be empty
    std::size_t profondeur;                // components of the volume's root, "/" not counted
};

constexpr std::array<PointDeMontage, 4> kPointsDeMontage = {{
    {{"media", ""}, 3},
    {{"run", "media"}, 4},
    {{"mnt", ""}, 2},
    {{"Volumes", ""}, 2},
}};

std::vector<fs::path> Composants(const fs::path& chemin) {
    std::vector<fs::path> composants;
    for (const fs::path& composant : chemin.lexically_normal().relative_path())
        if (!composant.empty())
            composants.push_back(composant);
    return composants;
}

// Whether a path lies in the folder of mounted volumes.
bool Dedans(const PointDeMontage& point, const std::vector<fs::path>& composants) {
    const bool deux = !point.debut[1].empty();
    return composants.size() > (deux ? 2U : 1U) && composants[0] == point.debut[0] &&
           (!deux || composants[1] == point.debut[1]);
}

// The drive, "C:\", that a path begins with; empty where it begins with none.
std::string LecteurEnTete(std::string_view texte) {
    const bool present =
        texte.size() >= 3 && texte[1] == ':' && (texte[2] == '\\' || texte[2] == '/');
    return std::string(texte.substr(0, present ? 3 : 0));
}

bool EstAbsence(const std::error_code& erreur) {
    return erreur == std::errc::no_such_file_or_directory || erreur == std::errc::not_a_directory;
}

} // namespace

bool Present(const fs::path& chemin) {
    std::error_code erreur;
    const fs::file_status etat = fs::status(chemin, erreur);
    if (erreur && !EstAbsence(erreur))
        throw Erreur(NatureErreur::Ouvrir, chemin, erreur);
    return fs::exists(etat);
}

fs::path CalculerLecteur(const fs::path& courant, const fs::path& maison) {
    if (const auto lecteur = LecteurEnTete(TexteChemin(courant)); !lecteur.empty())
        return CheminTexte(lecteur);
    // A folder of another computer is on no drive.
    if (TexteChemin(courant).starts_with("\\\\"))
        return CheminTexte(LecteurEnTete(TexteChemin(maison)));
    const std::vector<fs::path> composants = Composants(courant);
    for (const PointDeMontage& point : kPointsDeMontage) {
        if (!Dedans(point, composants) || composants.size() < point.profondeur)
            continue;
        fs::path racine = "/";
        for (std::size_t i = 0; i < point.profondeur; ++i)
            racine /= composants[i];
        return racine;
    }
    return maison;
}

bool EstRacineAmovible(const fs::path& racine) {
    const std::vector<fs::path> composants = Composants(racine);
    return std::any_of(
        kPointsDeMontage.begin(), kPointsDeMontage.end(),
        [&composants](const PointDeMontage& point) { return Dedans(point, composants); });
}

std::string TexteLecteur(const fs::path& lecteur) {
    std::string texte = TexteChemin(lecteur);
    if (texte.empty() || (texte.back() != '/' && texte.back() != '\\'))
        texte.push_back(static_cast<char>(fs::path::preferred_separator));
    return texte;
}

fs::path DossierProgramme(const fs::path& lecteur) {
    return CheminTexte(TexteLecteur(lecteur) + std::string{kNomDossier});
}

fs::path TrouverFichier(const fs::path& dossier, std::string_view nom) {
    fs::path exact = dossier / CheminTexte(nom);
    if (Present(exact) && !noyau::kSansCasse)
        return exact;
    std::error_code erreur;
    const std::string cherche = Majuscules(nom);
    fs::path trouve; // not the first that the folder happens to list
    for (auto it = fs::directory_iterator(dossier, erreur);
         !erreur && it != fs::directory_iterator(); it.increment(erreur))
        if (Majuscules(TexteChemin(it->path().filename())) == cherche)
            trouve = std::max(trouve, it->path());
    if (erreur && !EstAbsence(erreur))
        throw Erreur(NatureErreur::LireDossier, dossier, erreur);
    return trouve.empty() ? exact : trouve;
}

fs::path TrouverParametres(const fs::path& dossier) {
    return TrouverFichier(dossier, kNomParametres);
}

std::string NomDuCahier(std::string_view indicatif) {
    constexpr std::size_t kLongueurNom = 8;
    constexpr std::string_view kInterdits = "<>:\"/\\|?*";
    std::string nom;
    for (const char c : Gauche(indicatif, kLongueurNom))
        if (kInterdits.find(c) == std::string_view::npos)
            nom.push_back(c);
    return nom + ".Vek";
}

} // namespace orvalis
