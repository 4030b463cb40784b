// A small logbook of arbitrary bytes. The first byte of the input chooses what is done to it.
#include "core/carte.h"
#include "core/fiches.h"
#include "core/page_texte.h"
#include "core/pages.h"
#include "core/recherche.h"
#include "core/texte.h"
#include "fichier_fuzz.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/tri.h"

#include <algorithm>
#include <vector>

namespace orvalis {
namespace {

using fuzz::Exiger;

std::vector<QsoRecord> Contacts(const Session& session) {
    std::vector<QsoRecord> fiches;
    for (std::int32_t k = 1; k <= session.nbFiches; ++k)
        fiches.push_back(session.journal.Lire(k));
    return fiches;
}

void Regarder(Session& session) {
    for (std::int32_t k = 1; k <= session.nbFiches + 1; ++k) {
        LireFiche(session, k);
        Exiger(Longueur(LigneListe(k, session.tampon)) == 40);
        static_cast<void>(LignePage(CellulesDeFiche(k, session.tampon)));
        static_cast<void>(TextesDeFiche(session, k));
    }
    LireFiche(session, 1);
    for (const std::string& texte : {session.zones[1], session.zones[2], session.zones[3]})
        static_cast<void>(ChercherContacts(session.journal, session.nbFiches, texte));
    static_cast<void>(ChercherDoublons(session.journal, session.nbFiches));
    static_cast<void>(ExaminerJournal(session));
}

void Recrire(Session& session, std::int32_t k) {
    // A record read and written again keeps its bytes, but for blanks in front of a text.
    LireFiche(session, k);
    EcrireFiche(session, k);
    const Zones zones = session.zones;
    LireFiche(session, k);
    Exiger(session.zones == zones);
}

void Trier(Session& session) {
    const auto texte = [](const QsoRecord& f) {
        return std::string(f.octets.begin(), f.octets.end());
    };
    std::vector<std::string> avant;
    for (const QsoRecord& fiche : Contacts(session))
        avant.push_back(texte(fiche));
    Tri tri(session.journal, session.nbFiches);
    while (!tri.Etat().termine)
        tri.Avancer(1000);
    std::vector<std::string> apres;
    for (const QsoRecord& fiche : Contacts(session))
        apres.push_back(texte(fiche));
    std::sort(avant.begin(), avant.end());
    std::sort(apres.begin(), apres.end());
    Exiger(avant == apres);
}

void Ajouter(Session& session) {
    std::vector<QsoRecord> attendues = Contacts(session);
    session.zones[1] = "F6NEW";
    attendues.push_back(FicheDesZones(session.zones));
    AjouterFiche(session, FicheFinDeLog(session.monLocator));
    CompterFiches(session);
    Exiger(Contacts(session) == attendues);
}

void Supprimer(Session& session, std::int32_t k) {
    std::vector<QsoRecord> attendues = Contacts(session);
    attendues.erase(attendues.begin() + (k - 1));
    SupprimerFiche(session, k);
    CompterFiches(session);
    Exiger(Contacts(session) == attendues);
}

void Jumeler(Session& session, const std::filesystem::path& autre) {
    const auto nb = static_cast<std::size_t>(session.nbFiches);
    const std::vector<QsoRecord> anciennes = Contacts(session);
    JumelerJournal(session, autre);
    const std::vector<QsoRecord> toutes = Contacts(session);
    Exiger(toutes.size() >= nb && std::equal(anciennes.begin(), anciennes.end(), toutes.begin()));
}

void Copier(Session& session) {
    const std::filesystem::path cible = fuzz::Dossier() / "copie.Vek";
    CopierJournal(session, cible);
    const Journal copie(cible, ModeFichier::Lecture);
    Exiger(copie.Compter() == session.nbFiches);
    for (std::int32_t k = 1; k <= session.nbFiches; ++k)
        Exiger(copie.Lire(k) == session.journal.Lire(k));
}

void Agir(std::uint8_t action, Session& session, const std::filesystem::path& chemin) {
    const std::int32_t k = session.nbFiches == 0 ? 0 : 1 + action / 8 % session.nbFiches;
    switch (action % 8) {
    case 0:
        return Trier(session);
    case 1:
        return Ajouter(session);
    case 2:
        return k == 0 ? Regarder(session) : Supprimer(session, k);
    case 3:
        return Jumeler(session, chemin);
    case 4:
        return Copier(session);
    case 5:
        return k == 0 ? Regarder(session) : Recrire(session, k);
    default:
        return Regarder(session);
    }
}

} // namespace
} // namespace orvalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    using namespace orvalis;
    if (n == 0)
        return 0;
    const auto chemin = fuzz::Poser("cahier.Vek", octets + 1, n - 1);
    Session session;
    session.lecteur = fuzz::Dossier();
    session.monLocator = "JN18AA";
    OuvrirJournal(session, chemin);
    CompterFiches(session);
    // The last contact may be cut short, but it begins in the file.
    fuzz::Exiger(session.nbFiches == 0 ||
                 PositionFiche(session.nbFiches) < session.journal.Support().Taille());
    Agir(octets[0], session, chemin);
    return 0;
}
