#include "echange/exporter.h"

#include "core/chemins.h"
#include "core/texte.h"
#include "echange/fichier_neuf.h"
#include "echange/lettres.h"
#include "echange/refus.h"
#include "echange/sortie.h"

#include <algorithm>

namespace orvalis {
namespace {
namespace fs = std::filesystem;

fs::path Reel(const fs::path& chemin) {
    std::error_code erreur;
    return fs::weakly_canonical(fs::absolute(chemin, erreur), erreur);
}

std::string NomSansCasse(const fs::path& chemin) {
    return Majuscules(TexteChemin(chemin.filename()));
}
} // namespace

bool MemeFichier(const fs::path& a, const fs::path& b) {
    if (a.empty() || b.empty())
        return false;
    std::error_code erreur;
    return fs::equivalent(a, b, erreur) || Reel(a) == Reel(b);
}

bool PrendUnePlace(const fs::path& cible, std::span<const fs::path> proteges) {
    const fs::path reelle = Reel(cible);
    return std::any_of(proteges.begin(), proteges.end(), [&](const fs::path& p) {
        return MemeFichier(cible, p) || (NomSansCasse(reelle) == NomSansCasse(p) &&
                                         MemeFichier(reelle.parent_path(), Reel(p).parent_path()));
    });
}

void RefuserCible(const fs::path& cible, std::span<const fs::path> proteges) {
    std::error_code erreur;
    const fs::path reelle = fs::weakly_canonical(cible, erreur);
    if (PrendUnePlace(cible, proteges) ||
        MajusculesAscii(TexteChemin(cible.extension())) == ".VEK" ||
        MajusculesAscii(TexteChemin(reelle.extension())) == ".VEK")
        throw RefusEchange("« " + TexteChemin(cible) +
                           " » est un fichier d'Orvalis : il n'est pas remplacé.");
}

BilanSortie ExporterAdif(const DemandeExport& demande, const Fuseau& fuseau) {
    RefuserCible(demande.cible, demande.proteges);
    RefuserCible(demande.cible, {&demande.cahier, 1});
    const CahierLu cahier = LireCahierEntier(demande.cahier);
    BilanSortie bilan{cahier.fiches.size(), 0, cahier.finPresente, cahier.longueurEntiere};
    FichierNeuf fichier(demande.cible, Ancien::Remplace);
    fichier.Ecrire(EnteteAdif(demande.genre, demande.creation));
    const auto jumeaux = demande.genre == GenreAdif::Adx ? Jumeaux::Oui : Jumeaux::Non;
    const std::string indicatif = VersAscii(VersCp1252(demande.indicatif));
    ContactAdif contact;
    std::string texte;
    for (const QsoRecord& fiche : cahier.fiches) {
        ExporterFiche(fiche, fuseau, jumeaux, contact);
        contact[Balise::STATION_CALLSIGN] = indicatif;
        bilan.sansDate += contact[Balise::QSO_DATE].empty() ? 1 : 0;
        texte.clear();
        AjouterContact(demande.genre, contact, texte);
        fichier.Ecrire(texte);
    }
    fichier.Ecrire(FinAdif(demande.genre));
    fichier.Terminer();
    return bilan;
}

} // namespace orvalis
