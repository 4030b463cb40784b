#include "aides.h"
#include "print/enregistreur.h"
#include "print/etiquette.h"
#include "ui/carte/apercu_etiquette.h"
#include "ui/carte/donnees_etiquette.h"

namespace orvalis::aides::etiquette {

// Frame, table and texts of every label, from its own corner.
const std::string kCommun = R"(R 0 0 5200 1780;
 L 120 600 5100 600; L 120 880 5100 880; L 120 1160 5100 1160;
 L 120 600 120 1160; L 1600 600 1600 1160; L 2300 600 2300 1160; L 2810 600 2810 1160;
 L 3780 600 3780 1160; L 4500 600 4500 1160; L 5100 600 5100 1160;
 T 380 620 8g TO RADIO; T 1680 620 8g  DATE; T 2380 620 8g UTC; T 2840 620 8g  Frequency;
 T 4010 620 8g RST; T 4600 620 8g Mode; T 200 1460 10g TNX for NICE QSO HPE CUAGN ,73's;)";

TEST(Etiquette, Remplie) {
    DonneesEtiquette donnees = {"F4ABC    ", "SALUT ", " F6KQV ", "BUREAU ", "12/05/02",
                                "18:30",     "14.250", "599 ",    "CW   "};
    std::string enTete;
    Enregistreur imprimante("Comic sans MS", 6100, 2380);
    ImprimerEtiquette(imprimante, {2, 2}, GenreEtiquette::Remplie, donnees, "F5XYZ", enTete);
    EXPECT_THAT(imprimante.operations, testing::UnorderedElementsAreArray(Liste(kCommun + R"(
 T 950 20 10g SALUT  Confirming QSO with  F4ABC; T 2100 300 10g Via QSL Manager F6KQV;
 T 620 920 8g Courrier F4ABC; T 1566 920 8g Courrier 12/05/02; T 2315 920 8g Courrier 18:30;
 T 3007 920 8g Courrier 14.250; T 3996 920 8g Courrier 599; T 4704 920 8g Courrier CW;
 T 400 1250 8g Courrier Pse / Tnx  QSL via  BUREAU;)")));
    EXPECT_EQ(donnees.texte2 + donnees.route + donnees.mode, "F6KQVBUREAUCW") << "trimmed in place";
    EXPECT_EQ(OrigineDeEtiquette({2, 9}), (OrigineEtiquette{6100, 0}));
    EXPECT_EQ(OrigineDeEtiquette({1, 0}), (OrigineEtiquette{300, 0}));
}

TEST(Etiquette, ApercuEtCeQuiYEstDouteux) {
    // Callsign, heading and remark of the boxes; what is printed as heading and manager, and what
    // of both is to be looked at twice. The own callsign is F5AB.
    const auto dire = [](const std::string& boites) {
        EtatFeuille feuille;
        const auto b = Couper(boites, ",");
        std::tie(feuille.boites[kBoiteIndicatif], feuille.boites[kBoiteLigne1],
                 feuille.boites[kBoiteLigne2]) = std::tie(b.at(0), b.at(1), b.at(2));
        feuille.fraiche = true;
        const auto apercu = VoirApercu(feuille, "F5AB");
        if (!apercu)
            return std::string{"rien"};
        const DonneesEtiquette d = DonneesDeEtiquette(apercu->etiquette);
        return d.texte1 + '|' + d.texte2 + (apercu->sansIndicatif ? " indicatif" : "") +
               (apercu->sansManager ? " manager" : "");
    };
    Verifier(dire, Textes{{"F6A,de f5ab/p,dl9abc/p", "de f5ab/p|dl9abc/p"},
                          {"F6A,F5ABC,", "F5ABC| indicatif"},
                          {"F6A,,BEAM 3", "|BEAM 3 indicatif manager"},
                          {"F6A,F5ABC F5AB,73", "F5ABC F5AB|73 manager"},
                          {"F6A,F5AB,59ANTENNE 12", "F5AB|59ANTENNE 12 manager"},
                          {"F6A,F5AB,5W", "F5AB|5W manager"},
                          {"F6A,F5AB,100W", "F5AB|100W manager"},
                          {"F6A,F5AB,73s", "F5AB|73s manager"},
                          {"F6A,F5AB,JN18DU", "F5AB|JN18DU manager"},
                          {"F6A,F5AB,2E0ABC", "F5AB|2E0ABC"},
                          {"F6A,F5AB,9A1A", "F5AB|9A1A"},
                          {"F6A,F5AB,3D2AG", "F5AB|3D2AG"},
                          // A label takes fifteen characters of what its boxes show.
                          {"F6A,de la part de F5AB,BEAM 3 EL      DL9ABC",
                           "de la part de F|BEAM 3 EL indicatif manager"},
                          {",F5AB,", "rien"},
                          {"***,F5AB,", "rien"}});
}

TEST(FeuilleImprimee, EtiquettesAuxLongsEnTetes) {
    DonneesEtiquette longue, courte;
    longue.indicatif = courte.indicatif = "HB9/F4ABCP";
    longue.texte1 = "ÉSALUT DE 13 C"; // a heading of 47 characters
    courte.texte1 = "ÉSALUT DE 13C";
    std::vector<EtiquettePlacee> etiquettes = {{Place{3}, longue}, {kDernierePlace, courte}};
    std::string enTete;
    Enregistreur feuille("Comic sans MS"), vide;
    ImprimerFeuille(feuille, etiquettes, enTete);
    EXPECT_THAT(feuille.operations, testing::IsSupersetOf(Liste(R"(
 R 300 2380 5500 4160; T 1020 2400 8g ÉSALUT DE 13 C  Confirming QSO with  HB9/F4ABCP;
 R 6100 14260 11300 16040; T 6400 14280 10g ÉSALUT DE 13C  Confirming QSO with  HB9/F4ABCP;)")));
    EXPECT_EQ(feuille.operations.front() + feuille.operations.back(), "P A4 portraitFIN");
    EXPECT_EQ(feuille.operations.size(), 2 + 2 * (Liste(kCommun).size() + 8)) << "no manager";
    ImprimerFeuille(vide, {}, enTete);
    EXPECT_TRUE(vide.operations.empty());
}

TEST(FeuilleImprimee, Vierge) {
    const std::string longue(47, 'R'); // the heading of the last filled label
    std::string enTete = longue;
    Enregistreur feuille("Comic sans MS", 300, 400); // from the corner of the first label
    ImprimerFeuilleVierge(feuille, "F5XYZ", enTete);
    const auto premiere = Liste(kCommun + R"(
 T 200 20 10g  F5XYZ   Confirming QSO with; T 400 1250 8g Courrier Pse / Tnx  QSL via  ;)");
    EXPECT_THAT(feuille.operations, testing::IsSupersetOf(premiere));
    EXPECT_EQ(feuille.operations.front() + feuille.operations.back(), "P A4 portraitFIN");
    EXPECT_EQ(feuille.operations.size(), 2 + 16 * premiere.size());
    for (const std::string& coin :
         Liste(R"(0 0; 5800 0; 0 1980; 5800 1980; 0 3960; 5800 3960; 0 5940; 5800 5940; 0 7920;
 5800 7920; 0 9900; 5800 9900; 0 11880; 5800 11880; 0 13860; 5800 13860)"))
        EXPECT_EQ(feuille.Compter("R " + coin + ' '), 1) << coin;
    EXPECT_EQ(enTete, longue);
}

} // namespace orvalis::aides::etiquette
