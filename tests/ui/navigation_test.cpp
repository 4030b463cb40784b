// Browsing: pages, list keys, scroll bar, sheet, card.
#include "ui/banc.h"
#include "ui/feuille_log.h"

#include <QScrollBar>

namespace orvalis::operateur {
namespace {

TEST(Navigation, TaillesDeJournal) {
    const std::pair<int, const char*> cas[] = {
        {0, "Page 1 / 1|-1/0|  Fiche N° 0  |G|BtNewQSO"},
        {1, "Page 1 / 1|0/1| Fiche N° 1 |G|ListeLog"},
        {25, "Page 1 / 1|24/25| Fiche N° 25 |G|ListeLog"},
        {26, "Page 2 / 2|0/1| Fiche N° 26 |A|ListeLog"},
        {33000, "Page 1311 / 1311|16/17| Fiche N° 32767 |A|ListeLog"},
    };
    for (const auto& [n, vu] : cas) {
        const Banc banc(Contacts(n) + Fin());
        EXPECT_EQ(banc.Texte("LabPage #ListeLog NoFicheLab ?CmdPageMoins @"), vu);
        EXPECT_EQ(banc.Controle<QScrollBar>("VScroll1")->maximum(), n);
    }
}

TEST(Navigation, TouchesEtBoutons) {
    Banc banc(Contacts(60) + Fin());
    constexpr auto kVue = "LabPage NoFicheLab";
    banc.Suivre({
        {"!PgDown", kVue, "Page 3 / 3| Fiche N° 60 "},
        {"!PgUp", kVue, "Page 2 / 3| Fiche N° 26 "},
        {"!Up", kVue, "Page 1 / 3| Fiche N° 25 "},
        {"!Down", kVue, "Page 2 / 3| Fiche N° 26 "},
        {"!Down", kVue, "Page 2 / 3| Fiche N° 27 "},
        {"!PgDown", kVue, "Page 3 / 3| Fiche N° 51 "},
        {"CmdSensHaut", kVue, "Page 1 / 3| Fiche N° 1 "},
        {"CmdPageMoins", kVue, "Page 1 / 3| Fiche N° 1 "},
        {"CmdPagePlus", kVue, "Page 2 / 3| Fiche N° 1 "},
        {"CmdPagePlus", kVue, "Page 3 / 3| Fiche N° 1 "},
        {"CmdPageMoins", kVue, "Page 2 / 3| Fiche N° 26 "},
        {"CmdSensBas", kVue, "Page 3 / 3| Fiche N° 26 "},
    });
    banc.Controle<QScrollBar>("VScroll1")->setValue(25);
    EXPECT_EQ(banc.Texte(kVue), "Page 1 / 3| Fiche N° 26 ");
}

// A list that takes the focus without a current line must not choose one by itself.
TEST(Navigation, LaCarteNeChangePasToutSeule) {
    Banc banc(Contacts(60) + Fin());
    constexpr auto kVue = "NoFicheLab ?BtNewQSO", kFiche26 = " Fiche N° 26 |A";
    banc.Suivre({
        {"CmdPageMoins CmdPagePlus", kVue, kFiche26},
        {"CmdSensBas @ListeLog", kVue, kFiche26},
        {"CmdSensBas BtKillFiche FraCmdNon", kVue, kFiche26},
        {"CmdSensBas BtActiveRech BtContactsFermer", kVue, kFiche26},
        {"CmdSensBas TxtField_12 =Zoe FraCmdOui", kVue, kFiche26},
    });
    EXPECT_EQ(banc.Journal().substr(25 * kTailleFiche + 98, 3), "Zoe");
}

TEST(Navigation, CarteListeEtFeuilleMontrentLesOctets) {
    Banc banc(
        Octets("F6ABCDEFGHIJ/P|12/05/02|18:30||||||Besançon|JO62QM|2A|Éloïse|ANTENNE YAGI 3 F5XYZ",
               "JN04SD") +
        Octets("F5XYZ") + Fin());
    banc.Suivre({
        {"", "LabDist LabAzim", "0 Km      |... "}, // both locators empty
        {"%0", "ListeLog",
         "1      : F6ABCDEFGH:12/05/02:18:30      |2      : F5XYZ     :        :           "},
        {"", "NoFicheLab TxtField_1 TxtField_13 TxtField_17 LabDept LabDist LabAzim",
         " Fiche N° 1 |F6ABCDEFGHIJ/P|ANTENNE YAGI 3|F5XYZ|Aisne|1275.5 Km |321°"},
    });
    const QString page = banc.Controle<FeuilleLog>("PageText1")->toPlainText();
    EXPECT_TRUE(page.contains(Q("Besançon             Éloïse")));
}

} // namespace
} // namespace orvalis::operateur
