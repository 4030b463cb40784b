// Dates, departments, pages and the filters of the boxes.
#include "core/boites.h"
#include "core/dates.h"
#include "core/departements.h"
#include "core/pages.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

TEST(Dates, ControleDesDates) {
    const struct {
        std::string_view saisie, normale; // an empty text: refused
    } cas[] = {
        {"29/02/00", "29/02/00"}, {"29/02/01", ""},         {"29/02/60", "29/02/60"},
        {"31/04/02", ""},         {"30/04/02", "30/04/02"}, {"31/12/99", "31/12/99"},
        {"00/05/02", ""},         {"15/13/02", ""},         {"15/00/02", ""},
        {"01.05.02", "01/05/02"}, {"ab/05/02", ""},         {"", ""},
    };
    for (const auto& c : cas) {
        const Controle controle = ControlerDate(c.saisie);
        EXPECT_EQ(controle.ValiditeOK, !c.normale.empty()) << c.saisie;
        EXPECT_EQ(controle.texte, c.normale) << c.saisie;
    }
    EXPECT_EQ(AnneeComplete(59), 2059);
    EXPECT_EQ(AnneeComplete(60), 1960);
}

TEST(Dates, ControleDesHeures) {
    const struct {
        std::string_view saisie, normale;
    } cas[] = {{"18:30", "18:30"}, {"00:00", "00:00"}, {"23:59", "23:59"}, {"24:00", ""},
               {"12:60", ""},      {"9:.5/", "09:05"}, {"1.../", "01:00"}, {"xx:yy", "00:00"}};
    for (const auto& c : cas)
        EXPECT_EQ(ControlerHeure(c.saisie).texte, c.normale) << c.saisie;
}

TEST(Dates, TextesDeLHorloge) {
    const Instant instant{2026, 8, 2, 7, 5, 9};
    EXPECT_EQ(DateLongue(instant), "Dimanche 02 Août 2026");
    EXPECT_EQ(DateLongue({2000, 2, 29}), "Mardi 29 Février 2000");
    EXPECT_EQ(DateCourte(instant), "02/08/26");
    EXPECT_EQ(HeureCourte(instant), "07:05");
    EXPECT_EQ(HeureLongue(instant), "07:05:09");
}

TEST(Departements, NomDuCode) {
    const struct {
        std::string_view code, nom;
    } cas[] = {{"", ""},
               {"75", "Ville-de-Paris"},
               {"075", "Ville-de-Paris"},
               {"2A", "Aisne"},
               {"02A", "Aisne"},
               {"5", " Hautes-Alpes"},
               {"20", "Corse"},
               {"22", "Côtes-D'Armor"},
               {"971", "Guadeloupe"},
               {"974", "Réunion"},
               {"96", ""},
               {"976", ""},
               {"AB", ""},
               {"0", ""},
               {"95", "Val-d'Oise"}};
    for (const auto& c : cas)
        EXPECT_EQ(NomDepartement(c.code), c.nom) << c.code;
}

TEST(Pages, NombreEtPlages) {
    const struct {
        std::int32_t nb, pages, premiere, derniere; // range of the last page
    } cas[] = {{0, 1, 1, 0},    {1, 1, 1, 1},    {25, 1, 1, 25},
               {26, 2, 26, 26}, {50, 2, 26, 50}, {51, 3, 51, 51}};
    for (const auto& c : cas) {
        EXPECT_EQ(CalculerPages(c.nb), c.pages) << c.nb;
        const PlagePage plage = CalculerPlage(c.pages, c.nb);
        EXPECT_EQ(plage.premiere, c.premiere) << c.nb;
        EXPECT_EQ(plage.derniere, c.derniere) << c.nb;
    }
    EXPECT_EQ(CalculerPlage(CalculerPages(32767), 40000).derniere, 32767);
}

TEST(Pages, LigneDeLaListe) {
    QsoRecord fiche;
    MettreChamp(fiche, Champ::CSGN, "F5XYZ");
    MettreChamp(fiche, Champ::DQSO, "12/05/02");
    MettreChamp(fiche, Champ::HDEB, "18:30");
    EXPECT_EQ(LigneListe(7, fiche), "7      : F5XYZ     :12/05/02:18:30      ");
    MettreChamp(fiche, Champ::CSGN, "VP2/F5XYZ/MM");
    EXPECT_EQ(LigneListe(32767, fiche), "32767  : VP2/F5XYZ/:12/05/02:18:30      ");
    EXPECT_EQ(NumeroDeLigne("32767  : VP2/F5XYZ/"), 32767);
}

TEST(Boites, TouchesDeChaqueBoite) {
    const struct {
        Touches touches;
        std::string_view saisie, pris;
    } cas[] = {
        {Boite(1).touches, "f6é-\t\n", "F6É-"},    {Boite(2).touches, "-./09:;+a 漢", "./09:"},
        {Boite(5).touches, "14.250,5", "14.2505"}, {Boite(7).touches, "5+9a-*,", "5+9"},
        {Boite(11).touches, "2A./:+b", "2"},       {Boite(12).touches, "jean €漢", "jean €?"},
    };
    for (const auto& c : cas)
        EXPECT_EQ(FiltrerTouches(c.touches, c.saisie), c.pris);
    const std::string_view chiffresMajuscules = "MAAAAMBBMMCFMFFMM"; // boxes 1 to 17
    for (const DescriptionBoite& boite : kBoites) {
        const std::string pris = FiltrerTouches(boite.touches, "a+:1");
        const char attendu = chiffresMajuscules[boite.index - 1];
        EXPECT_EQ(pris, attendu == 'M'   ? "A+:1"
                        : attendu == 'A' ? ":1"
                        : attendu == 'B' ? "+:1"
                        : attendu == 'C' ? "1"
                                         : "a+:1")
            << boite.index;
    }
}

TEST(Boites, UneEditionNeFiltreQueCeQuElleApporte) {
    const std::string enorme(10'000, 'z');
    const struct {
        Touches touches;
        std::size_t longueur;
        std::string_view ancien, nouveau;
        std::size_t curseur;
        std::string_view texte;
        std::size_t curseurApres;
    } cas[] = {
        {Touches::Chiffres, 3, "", "7a5b12", 6, "751", 3},
        {Touches::Chiffres, 3, "2A", "2A7x", 4, "2A7", 3}, // a stored letter stays
        {Touches::Majuscules, 15, "abc", "abxyc", 4, "abXYc", 4},
        {Touches::Majuscules, 15, "ab", "abab", 2, "ABab", 2}, // pasted before its like
        {Touches::Majuscules, 6, "JN18AA", "JN18AAx", 7, "JN18AA", 6},
        {Touches::Majuscules, 6, "éa",
         "é\xC3\xA9"
         "a",
         2, "éÉa", 2},
        {Touches::Libres, 15, "Jean", "Jea", 3, "Jea", 3}, // Backspace
        {Touches::Libres, 15, "Jean", "", 0, "", 0},
        {Touches::Majuscules, 15, "F", enorme, 10'000, "ZZZZZZZZZZZZZZZ", 15},
        {Touches::Libres, 8, "",
         std::string_view{"a\0\x1B"
                          "b",
                          4},
         4, "ab", 2},
    };
    for (const auto& c : cas) {
        const TexteEdite edite =
            FiltrerEdition(c.touches, c.longueur, c.ancien, {std::string{c.nouveau}, c.curseur});
        EXPECT_EQ(edite.texte, c.texte);
        EXPECT_EQ(edite.curseur, c.curseurApres) << c.texte;
    }
}

} // namespace
} // namespace orvalis
