#include "aides.h"
#include "maint/tri.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace orvalis {
namespace {

using namespace essai;

constexpr std::int64_t kToutDroit = 1'000'000'000;

std::vector<std::string> Decouper(const std::string& octets) {
    std::vector<std::string> fiches;
    for (std::size_t i = 0; i + 165 <= octets.size(); i += 165)
        fiches.push_back(octets.substr(i, 165));
    return fiches;
}

/// Contacts with few distinct dates and times, some of them irregular; each callsign is unique.
std::string Melange(int n) {
    unsigned graine = 7;
    const auto tirer = [&graine](const std::vector<std::string>& textes) {
        graine = graine * 1664525U + 1013904223U;
        return textes[(graine >> 16U) % textes.size()];
    };
    std::string octets;
    for (int i = 0; i < n; ++i)
        octets += Contact("N" + std::to_string(i),
                          tirer({"01/", "02/", "2/", " 1/", "x"}) + tirer({"01/", "02/", "03/"}) +
                              tirer({"98", "99", "00", "01", "59", "60"}),
                          tirer({"08:", "09:", " 9:", "10:"}) + tirer({"10", "11", "5"}));
    return octets;
}

/// The pass's own key, and the text that records must share to be ordered by it.
std::pair<std::string, int> CleDePasse(const std::string& fiche, int passe) {
    const auto rogner = [&fiche](std::size_t debut, std::size_t largeur) {
        std::string champ = fiche.substr(debut, largeur);
        champ.erase(0, std::min(champ.find_first_not_of(' '), largeur));
        champ.resize(largeur, ' ');
        return champ;
    };
    const auto nombre = [](const std::string& texte) {
        return texte[0] < '0' || texte[0] > '9' ? 0 : std::atoi(texte.c_str());
    };
    const std::string date = rogner(15, 8);
    const std::string heure = rogner(23, 5);
    const int annee = (nombre(date.substr(6)) + 40) % 100;
    const int mois = nombre(date.substr(3, 2));
    const int heures = nombre(heure.substr(0, 2));
    const std::array<std::pair<std::string, int>, 5> cles = {{
        {"", annee},
        {std::to_string(annee), mois},
        {std::to_string(mois), nombre(date.substr(0, 2))},
        {date, heures},
        {date + std::to_string(heures), nombre(heure.substr(3))},
    }};
    return cles[static_cast<std::size_t>(passe) - 1];
}

/// What the sort must come to, found another way: a stable sort of each run that shares a text.
std::string TrierAutrement(const std::string& octets) {
    std::vector<std::string> fiches = Decouper(octets);
    for (int passe = 1; passe <= 5; ++passe)
        for (auto debut = fiches.begin(); debut != fiches.end();) {
            const auto fin = std::find_if(debut, fiches.end(), [&](const std::string& f) {
                return CleDePasse(f, passe).first != CleDePasse(*debut, passe).first;
            });
            std::stable_sort(debut, fin, [passe](const std::string& a, const std::string& b) {
                return CleDePasse(a, passe).second < CleDePasse(b, passe).second;
            });
            debut = fin;
        }
    return std::accumulate(fiches.begin(), fiches.end(), std::string{});
}

TEST(Tri, PetitesMarches) {
    const struct {
        std::vector<std::string> debuts; // date and start; contacts are named A, B, C, D
        std::string ordre;
        std::int64_t pas, echanges;
    } cas[] = {
        {{}, "", 0, 0},
        {{"01/01/01"}, "A", 0, 0},
        {{"01/01/01", "01/01/02"}, "AB", 5, 0},
        {{"01/01/00", "31/12/99"}, "BA", 6, 1},
        {{"01/01/04", "01/01/03", "01/01/02", "01/01/01"}, "DCBA", 25, 6},
        {{"20/03/0110:00", "05/03/0209:00"}, "BA", 6, 1}, // the years do not count in pass 3
        {{"01/01/0110:00", "01/01/0110:00"}, "AB", 5, 0},
        {{"1/03/02 12:00", "01/03/0209:00"}, "AB", 5, 0}, // two texts of one day
        {{" 1/03/0212:00", "1/03/02 09:00"}, "BA", 6, 1}, // one text, once shifted
        {{"01/03/02 9:30", "01/03/0209:01"}, "AB", 5, 0}, // minutes of "9:30 " are 0
        {{"01/01/01", "xx/yy/zz"}, "BA", 6, 1},           // no number: year 2000
    };
    for (const auto& c : cas) {
        std::string octets;
        for (const std::string& debut : c.debuts)
            octets += Contact(std::string(1, "ABCD"[octets.size() / 165]), debut);
        const Dossier dossier;
        const auto chemin = dossier.Poser("J.Vek", octets + Fin());
        Session session = Ouvrir(chemin);
        Tri tri(session.journal, session.nbFiches);
        tri.Avancer(kToutDroit);
        std::string ordre;
        for (const std::string& fiche : Decouper(Lire(chemin)))
            ordre += fiche[0];
        EXPECT_EQ(ordre, c.ordre + "\\");
        EXPECT_EQ(tri.Etat().pas, c.pas) << c.ordre;
        EXPECT_EQ(tri.Etat().echanges, c.echanges) << c.ordre;
        EXPECT_TRUE(tri.Etat().termine && tri.Etat().position == 1);
    }
}

TEST(Tri, EgaleUnTriStableEtNePerdRienEnRoute) {
    const std::string depart = Melange(90);
    const std::string suite = Fin() + Contact("PERIME", "01/01/70");
    std::vector<std::string> contacts = Decouper(depart);
    std::sort(contacts.begin(), contacts.end());
    std::set<std::pair<std::int64_t, std::int64_t>> comptes;
    for (const std::int64_t tranche : {std::int64_t{1}, std::int64_t{37}, kToutDroit}) {
        const Dossier dossier;
        const auto chemin = dossier.Poser("J.Vek", depart + suite);
        Session session = Ouvrir(chemin);
        Tri tri(session.journal, session.nbFiches);
        for (std::int64_t vus = 0; !tri.Etat().termine;) {
            tri.Avancer(tranche);
            if (std::exchange(vus, tri.Etat().echanges) == tri.Etat().echanges)
                continue;
            std::vector<std::string> fiches = Decouper(Lire(chemin).substr(0, depart.size()));
            std::sort(fiches.begin(), fiches.end());
            ASSERT_EQ(fiches, contacts);
        }
        EXPECT_EQ(Lire(chemin), TrierAutrement(depart) + suite);
        comptes.emplace(tri.Etat().pas, tri.Etat().echanges);
    }
    EXPECT_EQ(comptes.size(), 1) << "slices change the walk";
}

TEST(Tri, DerniereFicheCourteEtLectureSeule) {
    const Dossier dossier;
    std::string courte = Contact("B", "01/01/01").substr(0, 28);
    const auto chemin = dossier.Poser("J.Vek", Contact("A", "01/01/02") + courte);
    Journal lecture(chemin, ModeFichier::Lecture);
    EXPECT_THROW(Tri(lecture, 2).Avancer(kToutDroit), ErreurFichier);
    Session session = Ouvrir(chemin);
    Tri(session.journal, session.nbFiches).Avancer(kToutDroit);
    courte.resize(165, ' ');
    EXPECT_EQ(Lire(chemin), courte + Contact("A", "01/01/02"));
}

} // namespace
} // namespace orvalis
