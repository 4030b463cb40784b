#include "aides.h"
#include "maint/tri.h"

#include <set>

#ifndef _WIN32
static int synchronisations = 0;

extern "C" int fdatasync(int f) {
    ++synchronisations;
    return static_cast<int>(::syscall(SYS_fdatasync, f));
}
#endif

namespace orvalis::aides::tri {

constexpr std::int64_t kToutDroit = 1'000'000'000;

// A logbook of these bytes, and its sort.
struct CahierATrier {
    Dossier dossier;
    Cahier cahier;
    Tri tri;

    explicit CahierATrier(const std::string& octets)
        : cahier(Ouvrir(dossier.Poser("J.Vek", octets))), tri(cahier) {}
    [[nodiscard]] std::string Octets() const { return Lire(dossier / "J.Vek"); }
};

TEST(Tri, PetitesMarches) {
    const auto trier = [](const std::string& debuts) {
        std::string octets, bilan;
        for (std::size_t i = 0; i < debuts.size(); i += 14)
            octets += Contact(std::string(1, "ABCDE"[i / 14]), debuts.substr(i, 13));
        CahierATrier cahier(octets + Fin());
        const EtatTri& etat = cahier.tri.Etat();
        int passes = 0;
        for (; !etat.termine; ++passes)
            cahier.tri.Avancer(kToutDroit);
        EXPECT_EQ(passes, octets.size() > 165 ? kNbPasses : 0);
        EXPECT_EQ(etat.position, 1);
        for (std::size_t i = 0; i < octets.size(); i += 165)
            bilan += cahier.Octets()[i];
        return bilan + ' ' + std::to_string(etat.pas) + ' ' + std::to_string(etat.echanges);
    };
    // Dates and starts of contacts A to E: their order, steps, exchanges.
    Verifier(trier, Textes{{"", " 0 0"},
                           {"01/01/01", "A 0 0"},
                           {"01/01/60      01/01/59", "AB 5 0"}, // 1960 to 2059
                           {"01/01/00      31/12/99", "BA 6 1"},
                           {"01/01/05      01/01/04      01/01/03      01/01/02      01/01/01",
                            "EDCBA 39 10"},
                           {"20/03/0110:00 05/03/0209:00", "BA 6 1"}, // pass 3 ignores the years
                           {"01/01/0110:00 01/01/01xx:00", "BA 6 1"}, // no number: 0
                           {"1/03/02 12:00 01/03/0209:00", "AB 5 0"}, // two texts of one day
                           {" 1/03/0212:00 1/03/02 09:00", "BA 6 1"}, // one text, once shifted
                           {"01/03/02 9:30 01/03/0209:01", "AB 5 0"}, // minutes of "9:30 " are 0
                           {"01/03/0210:5  01/03/0210:04", "BA 6 1"}, // a number of one digit
                           {"01/01/01      xx/yy/zz", "BA 6 1"}});    // no number: year 2000
}

TEST(Tri, EgaleUnTriStableEtNePerdRienEnRoute) {
    std::size_t graine = 7;
    const auto tirer = [&graine](const char* textes) { // one of three
        graine = graine * 31 % 1009;
        return std::string(textes).substr(graine % 3 * 3, 3);
    };
    std::string depart, trie;
    const std::string suite = Fin() + Contact("PERIME", "01/01/70");
    // Records of one moment stay in their order.
    std::multimap<std::array<std::string, 5>, std::string> ordre;
    for (int i = 0; i < 90; ++i) {
        const auto an = tirer("00/01/02/"), mois = tirer("01/02/12/"), jour = tirer("01/02/31/"),
                   heure = tirer("08:09:10:"), minute = tirer("00:01:59:");
        const auto fiche = Brute(
            {{0, 'N' + std::to_string(i)}, {15, jour + mois}, {21, an}, {23, heure + minute}});
        depart += fiche;
        ordre.emplace(std::array{an, mois, jour, heure, minute}, fiche);
    }
    for (const auto& [moment, fiche] : ordre)
        trie += fiche;
    std::set<std::pair<std::int64_t, std::int64_t>> comptes;
    for (const std::int64_t tranche : {std::int64_t{1}, std::int64_t{37}, kToutDroit}) {
        CahierATrier cahier(depart + suite);
        const EtatTri& etat = cahier.tri.Etat();
        while (!etat.termine) {
            cahier.tri.Avancer(tranche);
            const std::string octets = cahier.Octets();
            for (const auto& [moment, fiche] : ordre)
                ASSERT_NE(octets.find(fiche), octets.npos) << "lost, step " << etat.pas;
        }
        EXPECT_EQ(cahier.Octets(), trie + suite);
        comptes.emplace(etat.pas, etat.echanges);
    }
    EXPECT_EQ(comptes.size(), 1) << "slices change the walk";
}

TEST(Tri, DerniereFicheCourteEtLectureSeule) {
    std::string courte = Contact("B", "01/01/01").substr(0, 28);
    CahierATrier cahier(Contact("A", "01/01/02") + courte);
    while (!cahier.tri.Etat().termine)
        cahier.tri.Avancer(kToutDroit);
    courte.resize(165, ' ');
    EXPECT_EQ(cahier.Octets(), courte + Contact("A", "01/01/02"));
    cahier.cahier.fichier = FichierFiches(cahier.dossier / "J.Vek", ModeFichier::Lecture);
    EXPECT_THROW(Tri(cahier.cahier).Avancer(kToutDroit), Erreur);
}

#ifndef _WIN32 // where no other program can write into an open logbook
TEST(Tri, UnCahierChangeParUnAutreProgrammeNEstPlusTouche) {
    std::string fiches;
    for (int i = 0; i < 60; ++i)
        fiches += Contact(std::to_string(i), i % 2 == 0 ? "01/01/02" : "01/01/01");
    const std::string changes[] = {fiches.substr(1), Contact("A"), "",
                                   fiches + Contact("B") + Fin(),
                                   fiches.substr(165) + Fin() + Fin()};
    for (const std::string& change : changes) {
        CahierATrier cahier(fiches + Fin());
        cahier.tri.Avancer(10);
        EXPECT_FALSE(cahier.tri.Etat().interrompu);
        static_cast<void>(cahier.dossier.Poser("J.Vek", change));
        synchronisations = 0;
        cahier.tri.Avancer(10);
        EXPECT_EQ(synchronisations, 1) << "what was sorted until then is flushed";
        EXPECT_TRUE(cahier.tri.Etat().interrompu && cahier.tri.Etat().termine);
        EXPECT_EQ(cahier.Octets(), change);
    }
}
#endif

} // namespace orvalis::aides::tri
