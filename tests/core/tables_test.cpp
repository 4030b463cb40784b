// Texts, dates, departments and the filters of the boxes.
#include "aides.h"
#include "core/dates.h"
#include "core/departements.h"
#include "core/texte.h"
#include "ui/carte/boites.h"

namespace orvalis::aides::tables {

TEST(Texte, ChaqueOctetSurvitALaLectureEtALEcriture) {
    std::string octets;
    for (int o = 0; o < 256; ++o)
        octets.push_back(static_cast<char>(o));
    EXPECT_EQ(Longueur(DepuisCp1252(octets)), 256U);
    EXPECT_EQ(VersCp1252(DepuisCp1252(octets)), octets);
    EXPECT_EQ(DepuisCp1252("\x80\xE9\x9F"), "€éŸ");
}

TEST(Texte, CeQuiNEstPasEnregistrableDevientUnPointDInterrogation) {
    EXPECT_EQ(NettoyerSaisie("Éric € Łódź 漢 😀"), "Éric € ?ód? ? ?");
    EXPECT_EQ(NettoyerSaisie({"a\0b\tc\r\nd\x7F", 9}), "abcd");
    EXPECT_EQ(NettoyerSaisie("a\xC2\x81z a\xFFz\xC3"), "az a?z?");
    EXPECT_EQ(VersCp1252("Łódź 漢 a\xFFz\xC3"), std::string{"?\xF3"} + "d? ? a?z?");
}

TEST(Texte, LesLargeursComptentDesCaracteres) {
    EXPECT_EQ(Cadrer("été", 5) + Cadrer("étéà", 3) + Cadrer("", 2), "été  été  ");
    EXPECT_EQ(std::string{Droite("éàü", 2)} + std::string{Droite("é", 2)}, "àüé");
    EXPECT_EQ(Milieu("éàüo", 2, 2), "àü");
    EXPECT_EQ(Milieu("éà", 3, 1), "");
    EXPECT_EQ(Rogner("  \tà b  "), "\tà b");
}

TEST(Texte, CasseDesLettresAccentuees) {
    EXPECT_EQ(Majuscules("f6abc é ç ÿ œ ž ß µ ÷ 漢"), "F6ABC É Ç Ÿ Œ Ž ß µ ÷ 漢");
    EXPECT_EQ(NomPropre("jean-PIERRE ÉLODIE éRIC  ŒUF"), "Jean-Pierre Élodie Éric  Œuf");
}

TEST(Texte, ValeurDesPremiersChiffres) {
    const auto valeur = [](std::string_view t) { return std::to_string(ValeurNumerique(t)); };
    EXPECT_EQ(Suite(valeur, "A1|2A|007|\" 5\"|-3|99999999999999"), "0|2|7|0|0|999999999");
}

TEST(Dates, Controles) {
    const auto date = [](std::string_view saisie) {
        const auto verification = ControlerDate(saisie);
        return verification.ValiditeOK ? verification.texte : "refusée";
    };
    EXPECT_EQ(Suite(date, "29/02/00|29/02/60|30/04/02|31/12/99|01.05.02"),
              "29/02/00|29/02/60|30/04/02|31/12/99|01/05/02");
    for (const char* non : {"29/02/01", "31/04/02", "00/05/02", "15/13/02", "15/00/02", "ab/05/02"})
        EXPECT_EQ(date(non), "refusée") << non;
    EXPECT_EQ(AnneeComplete(59), 2059);
    EXPECT_EQ(AnneeComplete(60), 1960);
    const auto heure = [](std::string_view saisie) { return ControlerHeure(saisie).texte; };
    EXPECT_EQ(Suite(heure, "00:00|23:59|24:00|12:60|9:.5/|1.../|xx:yy"),
              "00:00|23:59|||09:05|01:00|00:00");
}

TEST(Dates, TextesDeLHorloge) {
    const Instant instant{2026, 8, 2, 7, 5, 9};
    EXPECT_EQ(DateLongue(instant), "Dimanche 02 Août 2026");
    EXPECT_EQ(DateLongue({2000, 2, 29}), "Mardi 29 Février 2000");
    EXPECT_EQ(DateCourte(instant), "02/08/26");
    EXPECT_EQ(HeureLongue(instant), "07:05:09");
    const auto mention = [](const std::string& minutes) {
        return MentionUtc({.decalageUtc = std::stoi(minutes)});
    };
    EXPECT_EQ(Suite(mention, "0|60|330|-210|-15|840"),
              "|heure locale, UTC+1|heure locale, UTC+5:30|heure locale, UTC−3:30|"
              "heure locale, UTC−0:15|heure locale, UTC+14");
}

TEST(Departements, NomDuCode) {
    const auto nom = [](std::string_view code) { return std::string{NomDepartement(code)}; };
    EXPECT_EQ(Suite(nom, "2A|5|20|075|22|974"),
              "Aisne| Hautes-Alpes|Corse|Ville-de-Paris|Côtes-D'Armor|Réunion");
    EXPECT_EQ(Suite(nom, "|96|976|AB|0"), "||||");
}

TEST(Boites, TouchesDeChaqueBoite) {
    using enum Touches;
    const std::pair<Touches, std::string> cas[] = {{Chiffres, "0123456789"},
                                                   {DateHeureFreq, "./0123456789:"},
                                                   {Report, "+./0123456789:"},
                                                   {Hemisphere, "NSns"},
                                                   {Cote, "EOeo"},
                                                   {Decimal, "-./0123456789"}};
    for (const auto& [touches, acceptes] : cas)
        for (int o = 1; o < 256; ++o) {
            const std::string c = DepuisCp1252(std::string(1, static_cast<char>(o)));
            const bool accepte = acceptes.find(c) != acceptes.npos;
            EXPECT_EQ(FiltrerTouches(touches, c), accepte ? orvalis::Majuscules(c) : "") << o;
        }
    EXPECT_EQ(FiltrerTouches(Touches::Majuscules, "f6é-\t\n"), "F6É-");
    EXPECT_EQ(FiltrerTouches(Locator, "j0-é?ÿ\n\xC2\x85\x7F€œ漢😀 "), "J0-É?ÿ ");
    std::string genres; // what each box makes of "a+:1"
    for (const DescriptionBoite& boite : kBoites)
        genres += FiltrerTouches(boite.touches, "a+:1") + " ";
    EXPECT_EQ(genres, "A+:1 :1 :1 :1 :1 A+:1 +:1 +:1 A+:1 A+:1 1 a+:1 A+:1 a+:1 a+:1 A+:1 A+:1 ");
}

TEST(Boites, CeQueLaBoiteGardeDUneEdition) {
    constexpr auto L = Touches::Libres, M = Touches::Majuscules, C = Touches::Chiffres;
    const std::string enorme(10'000, 'z');
    const std::string controles{"a\0\tb", 4};
    const auto verifier = [](const TexteEdite& edite, const std::string& texte,
                             std::size_t curseur) {
        EXPECT_EQ(edite.texte, texte);
        EXPECT_EQ(edite.curseur, curseur) << texte;
    };
    // Keys and length of a box, its text before and after an edit; text and cursor kept of that.
    const std::tuple<Touches, std::size_t, std::string, TexteEdite, std::string, std::size_t>
        cartes[] = {{C, 3, "", {"7a5b12", 6}, "751", 3},
                    {C, 3, "2A", {"2A7x", 4}, "2A7", 3}, // a stored letter stays
                    {M, 15, "abc", {"abxyc", 4}, "abXYc", 4},
                    {M, 15, "ab", {"abab", 2}, "ABab", 2}, // pasted before its like
                    {M, 6, "JN18AA", {"JN18AAx", 7}, "JN18AA", 6},
                    {M, 6, "éa", {"ééa", 2}, "éÉa", 2},
                    {L, 15, "Jean", {"Jea", 3}, "Jea", 3}, // Backspace
                    {L, 15, "Jean", {"", 0}, "", 0},
                    {M, 15, "F", {enorme, 10'000}, "ZZZZZZZZZZZZZZZ", 15},
                    {L, 8, "", {controles, 4}, "ab", 2}};
    for (const auto& [touches, longueur, ancien, nouveau, texte, curseur] : cartes)
        verifier(FiltrerEdition(touches, longueur, ancien, nouveau), texte, curseur);
    // A box of the coordinates, the cursor behind three characters; text and cursor kept.
    const std::tuple<std::size_t, const char*, const char*, std::size_t> coordonnees[] = {
        {2, "4a5", "45", 2},   // dropped before the cut
        {2, "9x844", "44", 0}, // what stood behind the insertion stays
        {2, "4995", "45", 1},        {2, "1234567", "67", 0},
        {0, "1x34567", "134567", 2}, {0, "😀1234", "1234", 2}};
    for (const auto& [longueur, nouveau, texte, curseur] : coordonnees)
        verifier(FiltrerTexte(C, longueur, {nouveau, 3}), texte, curseur);
}

} // namespace orvalis::aides::tables
