#include "aides.h"
#include "core/recherche.h"

#include <gmock/gmock.h>

namespace orvalis {
namespace {

using namespace essai;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class Recherche : public ::testing::Test {
  protected:
    void Ouvrir(const std::string& octets) {
        EcrireOctets(dossier / "a.Vek", octets);
        journal = Journal(dossier / "a.Vek", ModeFichier::Lecture);
        nb = journal.Compter();
    }
    [[nodiscard]] std::vector<int> Numeros(const ResultatRecherche& resultat) const {
        std::vector<int> numeros;
        for (const std::string& ligne : resultat.lignes)
            numeros.push_back(std::stoi(ligne.substr(0, 6)));
        return numeros;
    }
    DossierTemporaire dossier;
    Journal journal;
    std::int32_t nb = 0;
};

TEST_F(Recherche, ParIndicatif) {
    Ouvrir(Contact("F5ABC", "12/05/02", "18:30", "14.250") + Contact("F5ABCD") +
           Contact("f5abc/p", "1/5/02", "9:5") + Contact("XX1AA/F5ABC") + Contact("") +
           Contact(" F5ABC") + Contact("F5ABC/MM") + Contact("5ABC") + Contact("\xE9T\xE9") +
           FinDeLog() + Contact("F5ABC"));
    const struct {
        std::string_view texte;
        std::vector<int> numeros;
        std::string_view compte;
    } cas[] = {
        {"F5ABC", {1, 3, 4, 6, 7}, "5 Contacts réalisés"},
        {"F5ABCD", {2}, "1 Contact réalisé"},
        {"F5ABC/MM", {7}, "1 Contact réalisé"},
        {" 5ABC ", {8}, "1 Contact réalisé"},
        {"éTÉ", {9}, "1 Contact réalisé"},
        {"F5AB", {}, "0 Contact réalisé"},
        {"18:30", {}, "0 Contact réalisé"}, // too short for a date or a time: a callsign
        {"   ", {}, "0 Contact réalisé"},
    };
    for (const auto& c : cas) {
        const ResultatRecherche resultat = ChercherContacts(journal, nb, c.texte);
        EXPECT_THAT(Numeros(resultat), ElementsAreArray(c.numeros)) << c.texte;
        EXPECT_EQ(resultat.nbreContacts, c.compte) << c.texte;
        EXPECT_EQ(resultat.contactsLab, "") << c.texte;
    }
    const auto lignes = ChercherContacts(journal, nb, "F5ABC").lignes;
    EXPECT_EQ(lignes[0], "1     Le 12/05/02 à 18:30 sur 14.250 Mhz      ");
    EXPECT_EQ(lignes[1], "3     Le 1/5/02   à 9:5   sur  Mhz            ");
}

TEST_F(Recherche, ParDate) {
    const std::string jour = Contact("F1AAA", "12/05/02", "18:30", "7.05");
    const std::string autre = Contact("F2BBB", "13/05/02");
    Ouvrir(jour + autre + jour + Contact("12/05/02") + jour + autre + Contact("F3CCC", "12.05.02"));
    const struct {
        std::string_view texte;
        std::vector<int> numeros;
        std::optional<std::string> lab;
    } cas[] = {
        {"12/05/02", {1, 3, 5}, "Contacts"}, {"13/05/02", {2, 6}, std::nullopt},
        {"12.05.02", {7}, "Contact"},        {"12/05/02 OU 13/05/02", {1, 2, 3, 5, 6}, "Contacts"},
        {"12/05/0", {}, "Contact"},          {"18:30:00", {}, "Contact"},
    };
    for (const auto& c : cas) {
        const ResultatRecherche resultat = ChercherContacts(journal, nb, c.texte);
        EXPECT_THAT(Numeros(resultat), ElementsAreArray(c.numeros)) << c.texte;
        EXPECT_EQ(resultat.nbreContacts, std::to_string(c.numeros.size())) << c.texte;
        EXPECT_EQ(resultat.contactsLab, c.lab) << c.texte;
    }
    EXPECT_EQ(ChercherContacts(journal, nb, "12/05/02").lignes[0],
              "1     Le 12/05/02 à 18:30 sur 7.05 Mhz        ");
}

TEST_F(Recherche, Doublons) {
    const auto contact = [](std::string_view indicatif, std::string_view fin = "18:45",
                            std::string_view mode = "SSB") {
        return Brute(
            {{0, indicatif}, {15, "12/05/02"}, {23, "18:30"}, {28, fin}, {33, "14.2"}, {43, mode}});
    };
    const std::string a = contact("F1AAA");
    const struct {
        std::string octets;
        std::vector<int> numeros;
        std::string_view lab;
    } cas[] = {
        {FinDeLog(), {}, "Doublon trouvé"},
        {a + FinDeLog(), {}, "Doublon trouvé"},
        {a + a + FinDeLog() + a, {1}, "Doublon trouvé"},
        {a + a + a, {1, 2}, "Doublons trouvés"},
        {a + contact("F1AAA", "18:45", "CW"), {1}, "Doublon trouvé"},
        {a + contact("F1AAA", "18:46"), {}, "Doublon trouvé"},
        {a + contact("f1aaa"), {}, "Doublon trouvé"},
        {a + contact(" F1AAA"), {}, "Doublon trouvé"},
        {a + contact("F2BBB") + a, {}, "Doublon trouvé"},
        {FinDeLog() + FinDeLog(), {}, "Doublon trouvé"},
    };
    for (const auto& c : cas) {
        Ouvrir(c.octets);
        const ResultatRecherche resultat = ChercherDoublons(journal, nb);
        EXPECT_THAT(Numeros(resultat), ElementsAreArray(c.numeros));
        EXPECT_EQ(resultat.nbreContacts, std::to_string(c.numeros.size()));
        EXPECT_EQ(resultat.contactsLab, c.lab);
    }
    Ouvrir(contact("VP2/F1AAA/MM") + contact("VP2/F1AAA/MM"));
    EXPECT_THAT(ChercherDoublons(journal, nb).lignes,
                ElementsAre("1      VP2/F1AAA/Le 12/05/02 à 18:30          "));
}

TEST_F(Recherche, GrandCahier) {
    std::string octets;
    for (int k = 1; k <= 40'000; ++k)
        octets += Contact(k % 20'000 < 2 ? std::string{"F5ABC"} : std::to_string(k));
    Ouvrir(octets + FinDeLog());
    EXPECT_THAT(Numeros(ChercherContacts(journal, nb, "f5abc")),
                ElementsAre(1, 20'000, 20'001, 40'000));
    EXPECT_THAT(Numeros(ChercherDoublons(journal, nb)), ElementsAre(20'000));
}

} // namespace
} // namespace orvalis
