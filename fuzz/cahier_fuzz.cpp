// A small logbook of arbitrary bytes. The first byte of the input chooses what is done to it.
#include "core/cahier.h"
#include "core/page_texte.h"
#include "core/pages.h"
#include "core/recherche.h"
#include "core/texte.h"
#include "fichier_fuzz.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/tri.h"
#include "ui/carte/carte.h"

#include <algorithm>
#include <vector>

namespace orvalis {
namespace {

using fuzz::Exiger;

constexpr const char* kLocator = "JN18AA";

std::vector<QsoRecord> Contacts(const Cahier& cahier) {
    std::vector<QsoRecord> fiches;
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere(); ++k)
        fiches.push_back(FicheDuCahier(cahier, k));
    return fiches;
}

void Regarder(const Cahier& cahier) {
    Carte carte;
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Prochaine(); ++k) {
        LireFiche(carte, cahier, k);
        Exiger(Longueur(LigneListe(k, carte.tampon)) == 40);
        static_cast<void>(LignePage(CellulesDeFiche(k, carte.tampon)));
        MontrerLabels(carte, k);
    }
    LireFiche(carte, cahier, kPremiereFiche);
    for (const Boite boite : {Boite::Indicatif, Boite::Date, Boite::Debut})
        static_cast<void>(ChercherContacts(cahier, carte.zones[boite]));
    static_cast<void>(ChercherDoublons(cahier));
    static_cast<void>(ExaminerCahier(cahier));
}

void Recrire(Cahier& cahier, NumeroFiche k) {
    // A record read and written again keeps its bytes, but for blanks in front of a text.
    Carte carte;
    LireFiche(carte, cahier, k);
    Exiger(EcrireFiche(carte, cahier, k));
    const Zones zones = carte.zones;
    LireFiche(carte, cahier, k);
    Exiger(carte.zones == zones);
}

void Trier(Cahier& cahier) {
    const auto texte = [](const QsoRecord& f) {
        return std::string(f.octets.begin(), f.octets.end());
    };
    std::vector<std::string> avant;
    for (const QsoRecord& fiche : Contacts(cahier))
        avant.push_back(texte(fiche));
    Tri tri(cahier);
    while (!tri.Etat().termine)
        tri.Avancer(1000);
    std::vector<std::string> apres;
    for (const QsoRecord& fiche : Contacts(cahier))
        apres.push_back(texte(fiche));
    std::sort(avant.begin(), avant.end());
    std::sort(apres.begin(), apres.end());
    Exiger(avant == apres);
}

void Ajouter(Cahier& cahier) {
    std::vector<QsoRecord> attendues = Contacts(cahier);
    QsoRecord contact;
    MettreChamp(contact, Champ::CSGN, "F6NEW");
    attendues.push_back(contact);
    AjouterFiche(cahier, contact, FicheFinDeLog(kLocator));
    CompterFiches(cahier);
    Exiger(Contacts(cahier) == attendues);
}

void Supprimer(Cahier& cahier, NumeroFiche k) {
    std::vector<QsoRecord> attendues = Contacts(cahier);
    attendues.erase(attendues.begin() + (k - kPremiereFiche));
    Exiger(SupprimerFiche(cahier, k, FicheDuCahier(cahier, k), kLocator));
    CompterFiches(cahier);
    Exiger(Contacts(cahier) == attendues);
}

void Jumeler(Cahier& cahier, const std::filesystem::path& autre) {
    const auto nb = static_cast<std::size_t>(cahier.nbFiches);
    const std::vector<QsoRecord> anciennes = Contacts(cahier);
    JumelerCahier(cahier, {{}, {}, kLocator}, autre);
    const std::vector<QsoRecord> toutes = Contacts(cahier);
    Exiger(toutes.size() >= nb && std::equal(anciennes.begin(), anciennes.end(), toutes.begin()));
}

void Copier(const Cahier& cahier) {
    const std::filesystem::path cible = fuzz::Dossier() / "copie.Vek";
    CopierCahier(cahier, {{}, {}, kLocator}, cible);
    const FichierFiches copie(cible, ModeFichier::Lecture);
    Exiger(copie.Compter() == cahier.nbFiches);
    for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere(); ++k)
        Exiger(copie.Lire(k) == FicheDuCahier(cahier, k));
}

void Agir(std::uint8_t action, Cahier& cahier, const std::filesystem::path& chemin) {
    const NumeroFiche k{cahier.nbFiches == 0 ? 0 : 1 + action / 8 % cahier.nbFiches};
    switch (action % 8) {
    case 0:
        return Trier(cahier);
    case 1:
        return Ajouter(cahier);
    case 2:
        return k == kAucuneFiche ? Regarder(cahier) : Supprimer(cahier, k);
    case 3:
        return Jumeler(cahier, chemin);
    case 4:
        return Copier(cahier);
    case 5:
        return k == kAucuneFiche ? Regarder(cahier) : Recrire(cahier, k);
    default:
        return Regarder(cahier);
    }
}

} // namespace
} // namespace orvalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    using namespace orvalis;
    if (n == 0)
        return 0;
    const auto chemin = fuzz::Poser("cahier.Vek", octets + 1, n - 1);
    Cahier cahier;
    OuvrirCahier(cahier, chemin);
    CompterFiches(cahier);
    // The last contact may be cut short, but it begins in the file.
    fuzz::Exiger(cahier.nbFiches == 0 ||
                 PositionFiche(cahier.Derniere()) < cahier.fichier.Support().Taille());
    Agir(octets[0], cahier, chemin);
    return 0;
}
