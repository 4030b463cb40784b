#include "print/enregistreur.h"
#include "print/page_journal.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace orvalis {
namespace {

using testing::UnorderedElementsAreArray;

/// What both kinds of page carry.
const std::string kCommun = R"(P A4 portrait;
 T 400 400 14g Cahier de Trafic de ; R 2950 340 4500 720; T 3050 390 14g F5XYZ;
 R 120 1080 11400 13800;
 T 320 1100 10 Nr; T 200 1480 10 QSO; L 700 1080 700 13800; T 750 1340 10 DATE;
 L 1350 1080 1350 13800; T 1450 1100 10 HEURE; L 1400 1440 2200 1440; T 1400 1480 10 Déb;
 L 1800 1560 1800 13800; T 1900 1480 10 Fin; L 2250 1080 2250 13800; T 2400 1340 10 QRG;
 L 3000 1080 3000 13800; T 3550 1340 10g INDICATIF; L 4900 1080 4900 13800;
 T 5200 1100 10 R S T; L 5000 1440 5850 1440; T 5050 1480 10 Lui; L 5450 1560 5450 13800;
 T 5550 1480 10 Moi; L 5950 1080 5950 13800; T 6050 1340 8 Mode; L 6500 1080 6500 13800;
 T 7300 1340 10 QTH; L 8550 1080 8550 13800; T 9100 1340 10 NOM; L 10050 1080 10050 13800;
 T 10500 1100 10 QSL; L 10150 1440 11300 1440; T 10300 1480 10 Ma; L 10750 1560 10750 13800;
 T 10950 1480 10 Sa; L 130 1800 11400 1800; FIN;)";

struct PageJournalTest : testing::Test {
    std::filesystem::path chemin =
        std::filesystem::path(testing::TempDir()) /
        (std::string{"page_"} + testing::UnitTest::GetInstance()->current_test_info()->name());
    Session session;
    std::vector<QsoRecord> fiches;

    void Ouvrir(std::int32_t nbFiches, std::int32_t page) {
        std::ofstream flux(chemin, std::ios::binary);
        for (const QsoRecord& f : fiches)
            flux.write(f.octets.data(), kTailleFiche);
        flux.close();
        session.journal = Journal(chemin, ModeFichier::Lecture);
        session.indicatif = "F5XYZ";
        session.nbFiches = nbFiches;
        session.pageAffichee = page;
        session.premiereAffichee = page * 25 - 24;
    }
    void Ajouter(int combien) {
        QsoRecord f;
        MettreChamp(f, Champ::CSGN, "F4ABC");
        fiches.resize(fiches.size() + static_cast<std::size_t>(combien), f);
    }
    Enregistreur Imprimer(std::int32_t aiguillage) {
        Enregistreur imprimante("MS sans Serif");
        ImprimerPage(imprimante, session, aiguillage);
        return imprimante;
    }
    ~PageJournalTest() override { std::filesystem::remove(chemin); }
};

TEST_F(PageJournalTest, PageRemplie) {
    Ajouter(25);
    QsoRecord longue;
    for (const DescriptionChamp& d : kChamps)
        MettreChamp(longue, d.champ, "É2345678901234567890123456789");
    MettreChamp(longue, Champ::SNOM, "  Jean  Michel B");
    fiches.push_back(longue);
    fiches.push_back(FicheFinDeLog("JN18DU"));
    Ajouter(3); // left behind by a deletion
    Ouvrir(26, 2);
    EXPECT_THAT(Imprimer(1).operations, UnorderedElementsAreArray(Liste(kCommun + R"(
 T 160 1920 8 000026; T 720 1920 8 É2345678; T 1380 1920 8 É2345; T 1830 1920 8 É2345;
 T 2300 1920 8 É234567890; T 3100 1920 8g É23456789012345; T 5000 1920 8 É2345;
 T 5500 1920 8 É2345; T 6000 1920 8 É2345; T 6600 1920 8 É2345678901234567890;
 T 8600 1920 8 Jean  Michel; T 10100 1920 8 É2345678; T 10800 1920 8 É2345678;
 L 130 2280 11400 2280; T 8900 14100 8 Page n° ; + 8 2;)")));
}

TEST_F(PageJournalTest, PageVierge) {
    Ouvrir(0, 1);
    std::string attendu = kCommun + "T 8900 14100 10 Page n° ;";
    for (int y = 2280; y <= 13800; y += 480)
        attendu += "L 130 " + std::to_string(y) + " 11400 " + std::to_string(y) + ';';
    EXPECT_THAT(Imprimer(0).operations, UnorderedElementsAreArray(Liste(attendu)));
    EXPECT_THAT(Imprimer(-1).operations, UnorderedElementsAreArray(Liste(attendu)));
}

TEST_F(PageJournalTest, LaPageSArreteALaFinDuLog) {
    const struct {
        const char* cas;
        int avant;
        const char* marque; ///< callsign of the record after `avant`; empty for none
        std::int32_t nbFiches, page;
        int rangees;
    } cas[] = {
        {"page entière", 30, "\\", 30, 1, 25},
        {"fin de log", 30, "\\", 30, 2, 5},
        {"sans fin de log", 30, "", 30, 2, 5},
        {"indicatif commençant par la marque", 27, "\\F4ABC", 40, 2, 2},
        {"page au-delà de la fin", 30, "\\", 30, 3, 0},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.cas);
        fiches.clear();
        Ajouter(c.avant);
        if (*c.marque != '\0') {
            QsoRecord fin;
            MettreChamp(fin, Champ::CSGN, c.marque);
            fiches.push_back(fin);
            Ajouter(12);
        }
        Ouvrir(c.nbFiches, c.page);
        const Enregistreur imprimante = Imprimer(session.premiereAffichee);
        EXPECT_EQ(imprimante.Compter("T 160 "), c.rangees);
        EXPECT_EQ(imprimante.Compter("L 130 "), 1 + c.rangees);
        const int y = 1920 + 480 * (c.rangees - 1);
        EXPECT_EQ(imprimante.Compter("T 160 " + std::to_string(y) + " 8 " +
                                     NumeroImprime(c.page * 25 - 25 + c.rangees)),
                  c.rangees == 0 ? 0 : 1);
    }
}

TEST_F(PageJournalTest, CorpsDeLIndicatif) {
    Ajouter(1);
    Ouvrir(1, 1);
    for (const auto& [indicatif, corps] :
         {std::pair{"ÉÈF4ABC/PM", "10g "}, {"HB9/F4ABC/P", "8g "}}) {
        MettreChamp(fiches[0], Champ::CSGN, indicatif);
        Ouvrir(1, 1);
        EXPECT_EQ(Imprimer(1).Compter(std::string{"T 3100 1920 "} + corps + indicatif), 1);
    }
}

TEST(NumeroImprimeTest, SixDerniersChiffres) {
    EXPECT_EQ(NumeroImprime(12), "000012");
    EXPECT_EQ(NumeroImprime(123456), "123456");
    EXPECT_EQ(NumeroImprime(1234567), "234567");
}

} // namespace
} // namespace orvalis
