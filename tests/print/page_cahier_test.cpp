#include "aides.h"
#include "print/enregistreur.h"
#include "print/page_cahier.h"

namespace orvalis::aides::page_cahier {

using namespace testing;

// What both kinds of page carry.
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

// Prints page `page` of a logbook of these bytes.
Enregistreur Imprimer(const std::string& octets, std::int32_t page,
                      NumeroFiche aiguillage = kPremiereFiche) {
    const Dossier dossier;
    const Cahier cahier = Ouvrir(dossier.Poser("F5ABC.Vek", octets));
    const Station station{{}, "F5XYZ", "JN18AA"};
    Enregistreur imprimante("MS sans Serif");
    ImprimerPage(imprimante, cahier, station,
                 {page, NumeroFiche{page * 25 - 24}, NumeroFiche{page * 25}}, aiguillage);
    return imprimante;
}

TEST(PageCahier, Remplie) {
    QsoRecord fiche;
    for (const DescriptionChamp& d : kChamps)
        MettreChamp(fiche, d.champ, "É2345678901234567890123456789");
    MettreChamp(fiche, Champ::SNOM, "  Jean  Michel B");
    const std::string longue(fiche.octets.begin(), fiche.octets.end());
    EXPECT_THAT(Imprimer(Fois(26, longue), 2).operations,
                UnorderedElementsAreArray(Liste(kCommun + R"(
 T 160 1920 8 000026; T 720 1920 8 É2345678; T 1380 1920 8 É2345; T 1830 1920 8 É2345;
 T 2300 1920 8 É234567890; T 3100 1920 8g É23456789012345; T 5000 1920 8 É2345;
 T 5500 1920 8 É2345; T 6000 1920 8 É2345; T 6600 1920 8 É2345678901234567890;
 T 8600 1920 8 Jean  Michel; T 10100 1920 8 É2345678; T 10800 1920 8 É2345678;
 L 130 2280 11400 2280; T 8900 14100 8 Page n° ; + 8 2;)")));
    EXPECT_EQ(NumeroImprime(NumeroFiche{1234567}), "234567");
}

TEST(PageCahier, Vierge) {
    std::string attendu = kCommun + "T 8900 14100 10 Page n° ;";
    for (int y = 2280; y <= 13800; y += 480)
        attendu += "L 130 " + std::to_string(y) + " 11400 " + std::to_string(y) + ';';
    for (const int aiguillage : {0, -1})
        EXPECT_THAT(Imprimer(Contact("F4ABC"), 1, NumeroFiche{aiguillage}).operations,
                    UnorderedElementsAreArray(Liste(attendu)));
}

TEST(PageCahier, SArreteALaFinDuLog) {
    const std::string dix = Contact("\xC9\xC8XYZ6789A"), onze = Contact("HB9/F4ABC/P");
    // A logbook, the page, its rows, number and callsign of the last one.
    const std::tuple<std::string, std::int32_t, std::int32_t, std::string> cas[] = {
        {Fois(30, dix) + Fin() + dix, 1, 25, "T 160 13440 8 000025; T 3100 13440 10g ÉÈXYZ6789A;"},
        {Fois(30, onze) + Fin() + dix, 2, 5, "T 160 3840 8 000030; T 3100 3840 8g HB9/F4ABC/P;"},
        {Fois(30, dix), 2, 5, "T 160 3840 8 000030;"},
        {Fois(27, dix) + Contact("\\F4ABC") + dix, 2, 2, "T 160 2400 8 000027;"},
        {Fois(30, dix) + Fin() + dix, 3, 0, ""}};
    for (const auto& [octets, numero, rangees, derniere] : cas) {
        const Enregistreur page = Imprimer(octets, numero);
        EXPECT_EQ(page.Compter("T 160 "), rangees);
        EXPECT_EQ(page.Compter("L 130 "), 1 + rangees);
        EXPECT_THAT(page.operations, IsSupersetOf(Liste(derniere)));
    }
}

} // namespace orvalis::aides::page_cahier
