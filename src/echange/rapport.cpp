#include "echange/rapport.h"

#include "core/chemins.h"
#include "core/texte.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

constexpr std::array<CompteImport, 7> kComptes = {{
    {"Contacts lus", false, &BilanImport::lus},
    {"Contacts repris dans le cahier", false, &BilanImport::repris},
    {"changés, coupés ou incomplets", true, &BilanImport::changes},
    {"égaux à un contact précédent", true, &BilanImport::egaux},
    {"sans locator de la station (supposé)", true, &BilanImport::locatorsSupposes},
    {"Contacts laissés de côté", false, &BilanImport::laisses},
    {"Anomalies hors des contacts", false, &BilanImport::incidents},
}};

// All of one length, so that they can be written over.
std::string Comptes(const BilanImport& bilan) {
    constexpr std::size_t kLargeurNom = 45;
    constexpr std::size_t kLargeurNombre = 12;
    std::string texte;
    for (const CompteImport& compte : kComptes) {
        const std::size_t debut = texte.size();
        texte.append(compte.dont ? "  dont " : "").append(compte.nom);
        const std::size_t n = Longueur(std::string_view{texte}.substr(debut));
        texte.append(kLargeurNom - std::min(kLargeurNom, n), ' ');
        const std::string nombre = std::to_string(bilan.*compte.nombre);
        texte.append(":").append(kLargeurNombre - std::min(kLargeurNombre, nombre.size()), ' ');
        texte.append(nombre).append("\n");
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

std::span<const CompteImport> ComptesImport() {
    return kComptes;
}

Rapport::Rapport(const DemandeImport& demande, const std::filesystem::path& chemin)
    : fichier_(chemin, demande.ancien) {
    const std::string titre =
        "Importation dans un cahier Orvalis\n\nFichier lu : " + TexteChemin(demande.source) +
        "\nCahier fait : " + TexteChemin(demande.cible) + "\n\n";
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
