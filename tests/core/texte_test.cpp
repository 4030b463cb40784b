#include "core/texte.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

TEST(Texte, ChaqueOctetSurvitALaLectureEtALEcriture) {
    std::string octets;
    for (int o = 0; o < 256; ++o)
        octets.push_back(static_cast<char>(o));
    const std::string utf8 = DepuisCp1252(octets);
    EXPECT_EQ(Longueur(utf8), 256U);
    EXPECT_EQ(VersCp1252(utf8), octets);
    EXPECT_EQ(DepuisCp1252("\x80\xE9\x9F"), "€éŸ");
}

TEST(Texte, CeQuiNEstPasEnregistrableDevientUnPointDInterrogation) {
    const struct {
        std::string_view saisi, nettoye;
    } cas[] = {
        {"Éric €", "Éric €"},
        {"Łódź 漢 😀", "?ód? ? ?"},
        {std::string_view{"a\0b\tc\r\nd\x7F", 9}, "abcd"},
        {"a\xC2\x81z", "az"},
        {"a\xFFz\xC3", "a?z?"},
    };
    for (const auto& c : cas) {
        EXPECT_EQ(NettoyerSaisie(c.saisi), c.nettoye);
        EXPECT_EQ(Longueur(NettoyerSaisie(c.saisi)), VersCp1252(c.nettoye).size());
    }
}

TEST(Texte, LesLargeursComptentDesCaracteres) {
    EXPECT_EQ(Cadrer("été", 5), "été  ");
    EXPECT_EQ(Cadrer("étéà", 3), "été");
    EXPECT_EQ(Cadrer("", 2), "  ");
    EXPECT_EQ(Gauche("éàü", 2), "éà");
    EXPECT_EQ(Droite("éàü", 2), "àü");
    EXPECT_EQ(Droite("é", 2), "é");
    EXPECT_EQ(Milieu("éàüo", 2, 2), "àü");
    EXPECT_EQ(Milieu("éà", 3, 1), "");
    EXPECT_EQ(Rogner("  à b  "), "à b");
    EXPECT_EQ(Rogner("   "), "");
    EXPECT_EQ(Rogner("\t a"), "\t a");
}

TEST(Texte, CasseDesLettresAccentuees) {
    EXPECT_EQ(Majuscules("f6abc é ç ÿ œ ž ß µ ÷ 漢"), "F6ABC É Ç Ÿ Œ Ž ß µ ÷ 漢");
    const struct {
        std::string_view saisi, propre;
    } cas[] = {
        {"jean PIERRE", "Jean Pierre"},
        {"jean-PIERRE", "Jean-Pierre"},
        {"ÉLODIE", "Élodie"},
        {"éRIC  ŒUF", "Éric  Œuf"},
        {"", ""},
    };
    for (const auto& c : cas)
        EXPECT_EQ(NomPropre(c.saisi), c.propre);
}

TEST(Texte, ValeurDesPremiersChiffres) {
    const struct {
        std::string_view texte;
        int valeur;
    } cas[] = {{"", 0},   {"A1", 0},   {"2A", 2}, {"007", 7},
               {" 5", 0}, {"12/", 12}, {"-3", 0}, {"99999999999999999999", 999'999'999}};
    for (const auto& c : cas)
        EXPECT_EQ(ValeurNumerique(c.texte), c.valeur) << c.texte;
}

} // namespace
} // namespace orvalis
