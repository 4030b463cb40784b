#include "core/parametres.h"

#include "core/fichier.h"
#include "core/remplacement.h"
#include "core/texte.h"
#include "geo/locator.h"

#include <algorithm>
#include <vector>

namespace orvalis {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kNbValeurs = 3;
constexpr std::size_t kTailleMaximale = 4096; // far beyond any file this program writes

std::string LireOctets(const fs::path& chemin) {
    const Fichier fichier(chemin, ModeFichier::Lecture);
    std::string octets(kTailleMaximale, '\0');
    octets.resize(fichier.Lire(0, octets));
    return octets;
}

// Blank lines at the head of `reste` are no values.
void PasserLignesVides(std::string_view& reste) {
    const std::size_t debut = std::min(reste.find_first_not_of(" \t\r\n"), reste.size());
    const std::size_t ligne = reste.find_last_of("\r\n", debut);
    if (ligne != std::string_view::npos && ligne < debut)
        reste.remove_prefix(ligne + 1);
    else if (debut == reste.size())
        reste = {};
}

// One value from `reste`, which is left behind its separator; `finDeLigne`: that ended a line.
std::string LireValeur(std::string_view& reste, bool& finDeLigne) {
    std::string valeur;
    reste.remove_prefix(std::min(reste.find_first_not_of(" \t"), reste.size()));
    if (!reste.empty() && reste.front() == '"') {
        reste.remove_prefix(1);
        while (!reste.empty()) {
            const char c = reste.front();
            reste.remove_prefix(1);
            if (c != '"') {
                valeur.push_back(c);
            } else if (!reste.empty() && reste.front() == '"') {
                valeur.push_back('"');
                reste.remove_prefix(1);
            } else {
                break;
            }
        }
        reste.remove_prefix(std::min(reste.find_first_of(",\r\n"), reste.size()));
    } else {
        const std::size_t fin = std::min(reste.find_first_of(",\r\n"), reste.size());
        valeur = Rogner(reste.substr(0, fin));
        reste.remove_prefix(fin);
    }
    finDeLigne = reste.empty() || reste.front() != ',';
    if (!reste.empty() && reste.front() == '\r' && reste.size() > 1 && reste[1] == '\n')
        reste.remove_prefix(1);
    if (!reste.empty())
        reste.remove_prefix(1);
    return valeur;
}

std::string Guillemets(std::string_view texte) {
    std::string sortie = "\"";
    for (const char c : VersCp1252(texte)) {
        sortie.push_back(c);
        if (c == '"')
            sortie.push_back(c);
    }
    return sortie + "\"";
}

} // namespace

Parametres LireParametres(const fs::path& chemin) {
    constexpr std::string_view kMarque = "\xEF\xBB\xBF"; // of an editor that writes UTF-8
    const std::string octets = LireOctets(chemin);
    const bool utf8 = octets.starts_with(kMarque);
    std::string_view reste = std::string_view(octets).substr(utf8 ? kMarque.size() : 0);
    std::vector<std::string> valeurs;
    for (bool nouvelleLigne = true; valeurs.size() < kNbValeurs;) {
        if (nouvelleLigne)
            PasserLignesVides(reste);
        if (reste.empty())
            break;
        const std::string valeur = LireValeur(reste, nouvelleLigne);
        valeurs.push_back(DepuisCp1252(utf8 ? VersCp1252(valeur) : valeur));
    }
    const bool complet = valeurs.size() == kNbValeurs &&
                         std::none_of(valeurs.begin(), valeurs.end(),
                                      [](const auto& valeur) { return Rogner(valeur).empty(); });
    if (!complet)
        throw Erreur(NatureErreur::ParametresIncomplets, chemin);
    return {valeurs[0], valeurs[1], Cadrer(valeurs[2], kLargeurLocator)};
}

void EcrireParametres(const fs::path& chemin, const Parametres& parametres) {
    const std::string ligne = Guillemets(parametres.indicatif) + "," +
                              Guillemets(parametres.nomFichier) + "," +
                              Guillemets(Cadrer(parametres.monLocator, kLargeurLocator)) + "\r\n";
    RemplacerFichier(chemin, ligne);
}

} // namespace orvalis
