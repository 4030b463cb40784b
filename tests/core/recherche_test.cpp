#include "aides.h"
#include "core/recherche.h"

namespace orvalis::aides::recherche {

struct Recherche : ::testing::Test {
    void Poser(const std::string& octets) {
        cahier = {};
        cahier = Ouvrir(dossier.Poser("a.Vek", octets));
    }
    [[nodiscard]] ResultatRecherche Chercher(std::string_view texte) const {
        return ChercherContacts(cahier, texte);
    }
    Dossier dossier;
    Cahier cahier;
};

// Record numbers found, then both texts of the panel; "-": the label keeps what it shows.
std::string Dire(const ResultatRecherche& resultat) {
    std::string numeros;
    for (const std::string& ligne : resultat.lignes)
        numeros += ligne.substr(0, ligne.find(' ')) + " ";
    return numeros + "| " + resultat.nbreContacts + " | " + resultat.contactsLab.value_or("-");
}

TEST_F(Recherche, ParIndicatif) {
    Poser(Contact("F5ABC", "12/05/02", "18:30", "14.250") + Contact("F5ABCD") +
          Contact("f5abc/p", "1/5/02", "9:5") + Contact("XX1AA/F5ABC") + Contact("") +
          Contact(" F5ABC") + Contact("F5ABC/MM") + Contact("5ABC") + Contact("\xE9T\xE9") + Fin() +
          Contact("F5ABC"));
    const auto dire = [this](std::string_view texte) { return Dire(Chercher(texte)); };
    Verifier(dire, Textes{{"F5ABC", "1 3 4 6 7 | 5 Contacts réalisés | "},
                          {"F5ABCD", "2 | 1 Contact réalisé | "},
                          {"F5ABC/MM", "7 | 1 Contact réalisé | "},
                          {" 5ABC ", "8 | 1 Contact réalisé | "},
                          {"éTÉ", "9 | 1 Contact réalisé | "},
                          {"F5AB", "| 0 Contact réalisé | "},
                          {"18:30",
                           "| 0 Contact réalisé | "}, // too short for a date or a time: a callsign
                          {"   ", "| 0 Contact réalisé | "}});
    const auto lignes = Chercher("F5ABC").lignes;
    EXPECT_EQ(lignes[0], "1     Le 12/05/02 à 18:30 sur 14.250 Mhz      ");
    EXPECT_EQ(lignes[1], "3     Le 1/5/02   à 9:5   sur  Mhz            ");
}

TEST_F(Recherche, ParDate) {
    const std::string jour = Contact("F1AAA", "12/05/02", "18:30", "7.05");
    const std::string autre = Contact("F2BBB", "13/05/02");
    Poser(jour + autre + jour + Contact("12/05/02") + jour + autre + Contact("F3CCC", "12.05.02"));
    const auto dire = [this](std::string_view texte) { return Dire(Chercher(texte)); };
    Verifier(dire, Textes{{"12/05/02", "1 3 5 | 3 | Contacts"},
                          {"13/05/02", "2 6 | 2 | -"},
                          {"12.05.02", "7 | 1 | Contact"},
                          {"12/05/02 OU 13/05/02", "1 2 3 5 6 | 5 | Contacts"},
                          {"12/05/0", "| 0 | Contact"},
                          {"18:30:00", "| 0 | Contact"}});
    EXPECT_EQ(Chercher("12/05/02").lignes[0], "1     Le 12/05/02 à 18:30 sur 7.05 Mhz        ");
}

TEST_F(Recherche, Doublons) {
    const auto contact = [](std::string_view indicatif, std::string_view fin = "18:45",
                            std::string_view mode = "SSB", std::string_view mhz = "14.2") {
        return Brute(
            {{0, indicatif}, {15, "12/05/02"}, {23, "18:30"}, {28, fin}, {33, mhz}, {43, mode}});
    };
    const std::string a = contact("F1AAA");
    const std::pair<std::string, std::string_view> cas[] = {
        {Fin() + Fin(), "| 0 | Doublon trouvé"},
        {a + Fin(), "| 0 | Doublon trouvé"},
        {a + a + Fin() + a, "1 | 1 | Doublon trouvé"},
        {a + a + a, "1 2 | 2 | Doublons trouvés"},
        {a + contact("F1AAA", "18:45", "CW"), "1 | 1 | Doublon trouvé"},
        {a + contact("F1AAA", "18:46"), "| 0 | Doublon trouvé"},
        {a + contact("F1AAA", "18:45", "SSB", "7.05"), "| 0 | Doublon trouvé"},
        {a + contact("f1aaa"), "| 0 | Doublon trouvé"},
        {a + contact(" F1AAA"), "| 0 | Doublon trouvé"},
        {a + contact("F2BBB") + a, "| 0 | Doublon trouvé"}};
    for (const auto& [octets, attendu] : cas) {
        Poser(octets);
        EXPECT_EQ(Dire(ChercherDoublons(cahier)), attendu);
    }
    Poser(contact("VP2/F1AAA/MM") + contact("VP2/F1AAA/MM"));
    EXPECT_EQ(ChercherDoublons(cahier).lignes.at(0),
              "1      VP2/F1AAA/Le 12/05/02 à 18:30          ");
    // Of two contacts that began together, the one further down is the last; two of the added ones
    // that are alike were not there before.
    const std::string b = contact("F1AAA", "18:46");
    Poser(a + b + a + b + contact("F1AAA", "18:47") + contact("F1AAA", "18:47"));
    EXPECT_EQ(CompterDejaLa(cahier, kPremiereFiche + 2), 2);
    Poser(a + b);
    EXPECT_EQ(ChercherStation(cahier, "f1aaa").derniere, Enregistrement(b));
}

} // namespace orvalis::aides::recherche
