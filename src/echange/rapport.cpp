#include "echange/rapport.h"

#include <array>

namespace orvalis {
namespace {

constexpr std::size_t kLargeurCompte = 12;

struct Compte {
    std::string_view texte; ///< all of one width
    std::int64_t BilanImport::*nombre;
};
constexpr std::array<Compte, 7> kComptes = {{
    {"Contacts lus                                 ", &BilanImport::lus},
    {"Contacts repris dans le cahier               ", &BilanImport::repris},
    {"  dont changés, coupés ou incomplets         ", &BilanImport::changes},
    {"  dont égaux à un contact précédent          ", &BilanImport::egaux},
    {"  dont sans locator de la station (supposé)  ", &BilanImport::locatorsSupposes},
    {"Contacts laissés de côté                     ", &BilanImport::laisses},
    {"Anomalies hors des contacts                  ", &BilanImport::incidents},
}};

std::string Comptes(const BilanImport& bilan) {
    std::string texte;
    for (const Compte& compte : kComptes) {
        const std::string nombre = std::to_string(bilan.*compte.nombre);
        texte += compte.texte;
        texte += ':';
        texte += std::string(kLargeurCompte - std::min(kLargeurCompte, nombre.size()), ' ');
        texte += nombre + "\n";
    }
    return texte;
}

// A cell of a line: whatever would end it becomes a blank.
void AjouterCase(std::string& texte, std::string_view valeur, char fin) {
    for (const char c : valeur)
        texte += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    texte += fin;
}

} // namespace

Rapport::Rapport(const DemandeImport& demande, const std::filesystem::path& chemin)
    : fichier_(chemin, demande.ancien) {
    const std::string titre =
        "Importation dans un cahier Orvalis\n\nFichier lu : " + demande.source.string() +
        "\nCahier fait : " + demande.cible.string() + "\n\n";
    comptes_ = static_cast<std::int64_t>(titre.size());
    fichier_.Ecrire(titre);
    fichier_.Ecrire(Comptes({}));
    fichier_.Ecrire("\nLe cahier garde les heures sans les secondes. Dans les lignes qui suivent, "
                    "les colonnes sont séparées par des tabulations.\n\n"
                    "Ligne\tIndicatif\tChamp\tIl y avait\tCe qu'il en est devenu\n");
}

void Rapport::Ajouter(const LigneRapport& ligne) {
    std::string texte = std::to_string(ligne.ligne) + "\t";
    AjouterCase(texte, ligne.indicatif, '\t');
    AjouterCase(texte, ligne.champ, '\t');
    AjouterCase(texte, ligne.avant, '\t');
    AjouterCase(texte, ligne.devenu, '\n');
    fichier_.Ecrire(texte);
}

void Rapport::Terminer(const BilanImport& bilan) {
    if (!bilan.inconnus.empty())
        fichier_.Ecrire("\nChamps sans place dans le cahier, et leur nombre :\n");
    for (const auto& [nom, nombre] : bilan.inconnus) {
        std::string texte;
        AjouterCase(texte, nom, '\t');
        fichier_.Ecrire(texte + std::to_string(nombre) + "\n");
    }
    fichier_.Recrire(comptes_, Comptes(bilan));
    fichier_.Terminer();
}

} // namespace orvalis
