#include "print/enregistreur.h"
#include "print/etiquette.h"

#include <gmock/gmock.h>
#include <vector>

namespace orvalis {
namespace {

using testing::UnorderedElementsAreArray;

/// Frame, table and texts of every label, from its own corner.
const std::string kCommun = R"(R 0 0 5200 1780;
 L 120 600 5100 600; L 120 880 5100 880; L 120 1160 5100 1160;
 L 120 600 120 1160; L 1600 600 1600 1160; L 2300 600 2300 1160; L 2810 600 2810 1160;
 L 3780 600 3780 1160; L 4500 600 4500 1160; L 5100 600 5100 1160;
 T 380 620 8g TO RADIO; T 1680 620 8g  DATE; T 2380 620 8g UTC; T 2840 620 8g  Frequency;
 T 4010 620 8g RST; T 4600 620 8g Mode; T 200 1460 10g TNX for NICE QSO HPE CUAGN ,73's;)";

DonneesEtiquette Exemple() {
    return {"F4ABC          ", "SALUT          ", "               ",
            "BUREAU         ", "12/05/02",        "18:30",
            "14.250    ",      "599     ",        "CW   "};
}

TEST(EtiquetteTest, Remplie) {
    Enregistreur imprimante("Comic sans MS", 6100, 2380);
    DonneesEtiquette donnees = Exemple();
    donnees.texte2 = " F6KQV ";
    EnTetesEtiquettes enTetes{"", "d'avant"};
    ImprimerEtiquette(imprimante, PlaceDeEtiquette(4), GenreEtiquette::Remplie, donnees, "F5XYZ",
                      enTetes);
    EXPECT_THAT(imprimante.operations, UnorderedElementsAreArray(Liste(kCommun + R"(
 T 950 20 10g SALUT  Confirming QSO with  F4ABC; T 2100 300 10g Via QSL Manager F6KQV;
 T 620 920 8g Courrier F4ABC; T 1566 920 8g Courrier 12/05/02; T 2315 920 8g Courrier 18:30;
 T 3007 920 8g Courrier 14.250; T 3996 920 8g Courrier 599; T 4704 920 8g Courrier CW;
 T 400 1250 8g Courrier Pse / Tnx  QSL via  BUREAU;)")));
    EXPECT_EQ(donnees.texte2 + donnees.route + donnees.mode, "F6KQVBUREAUCW") << "trimmed in place";
    EXPECT_EQ(enTetes.vierge, "d'avant");
}

TEST(EtiquetteTest, Vierge) {
    Enregistreur imprimante("Comic sans MS", 300, 14260);
    DonneesEtiquette rien = Exemple();
    EnTetesEtiquettes enTetes{std::string(47, 'x'), ""};
    ImprimerEtiquette(imprimante, PlaceDeEtiquette(15), GenreEtiquette::Vierge, rien, "F5XYZ",
                      enTetes);
    EXPECT_THAT(imprimante.operations, UnorderedElementsAreArray(Liste(kCommun + R"(
 T 200 20 10g  F5XYZ   Confirming QSO with; T 400 1250 8g Courrier Pse / Tnx  QSL via  ;)")));
    EXPECT_EQ(enTetes.remplie, std::string(47, 'x'));
}

TEST(EtiquetteTest, CorpsDeLEnTete) {
    const struct {
        const char* texte1;
        const char* operation; ///< the heading and its place
    } cas[] = {
        {"ÉSALUT DE 13 C", "T 720 20 8g ÉSALUT DE 13 C  Confirming QSO with  HB9/F4ABCP"},
        {"ÉSALUT DE 13C", "T 300 20 10g ÉSALUT DE 13C  Confirming QSO with  HB9/F4ABCP"},
    };
    for (const auto& c : cas) {
        Enregistreur imprimante("Comic sans MS", 300, 400);
        DonneesEtiquette donnees = Exemple();
        donnees.indicatif = "HB9/F4ABCP";
        donnees.texte1 = c.texte1;
        EnTetesEtiquettes enTetes;
        ImprimerEtiquette(imprimante, {1, 1}, GenreEtiquette::Remplie, donnees, {}, enTetes);
        EXPECT_EQ(imprimante.Compter(c.operation), 1) << c.operation;
        EXPECT_EQ(imprimante.Compter("T 2100 300"), 0) << "no manager";
    }
}

TEST(EtiquetteTest, Places) {
    const OrigineEtiquette attendu[] = {{300, 400},   {6100, 400},   {300, 2380},  {6100, 2380},
                                        {300, 4360},  {6100, 4360},  {300, 6340},  {6100, 6340},
                                        {300, 8320},  {6100, 8320},  {300, 10300}, {6100, 10300},
                                        {300, 12280}, {6100, 12280}, {300, 14260}, {6100, 14260}};
    for (std::int16_t k = 1; k <= kEtiquettesParPlanche; ++k)
        EXPECT_EQ(OrigineDeEtiquette(PlaceDeEtiquette(k)), attendu[k - 1]) << k;
    EXPECT_EQ(OrigineDeEtiquette({2, 9}), (OrigineEtiquette{6100, 0}));
    EXPECT_EQ(OrigineDeEtiquette({1, 0}), (OrigineEtiquette{300, 0}));
}

TEST(PlancheTest, UneSeuleFeuille) {
    EnTetesEtiquettes enTetes;
    Enregistreur vide;
    ImprimerPlanche(vide, {}, enTetes);
    EXPECT_TRUE(vide.operations.empty());

    Enregistreur deux;
    std::vector<EtiquettePlacee> etiquettes = {{3, Exemple()}, {16, Exemple()}};
    ImprimerPlanche(deux, etiquettes, enTetes);
    EXPECT_EQ(deux.operations.front(), "P A4 portrait");
    EXPECT_EQ(deux.operations.back(), "FIN");
    EXPECT_EQ(deux.Compter("FIN"), 1);
    EXPECT_EQ(deux.Compter("R "), 2);
    EXPECT_EQ(deux.Compter("R 300 2380 5500 4160") + deux.Compter("R 6100 14260 11300 16040"), 2);

    Enregistreur seize;
    ImprimerPlancheVierge(seize, "F5XYZ", enTetes);
    EXPECT_EQ(seize.operations.front(), "P A4 portrait");
    EXPECT_EQ(seize.operations.back(), "FIN");
    EXPECT_EQ(seize.Compter("R "), 16);
    EXPECT_EQ(seize.Compter("FIN"), 1);
}

} // namespace
} // namespace orvalis
