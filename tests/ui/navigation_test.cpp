// Browsing: pages, list keys, scroll bar, sheet, card.
#include "ui/banc.h"
#include "ui/feuille_log.h"

#include <QListWidget>
#include <QScrollBar>
#include <QTest>

namespace orvalis::essais {
namespace {

TEST(Navigation, TaillesDeJournal) {
    struct Cas {
        int n;
        const char* page;
        int lignes;
        bool boutons;
        const char* carte;
    };
    const std::vector<Cas> cas = {
        {0, "Page 1 / 1", 0, false, "  Fiche N° 0  "},
        {1, "Page 1 / 1", 1, false, " Fiche N° 1 "},
        {25, "Page 1 / 1", 25, false, " Fiche N° 25 "},
        {26, "Page 2 / 2", 1, true, " Fiche N° 26 "},
        {33000, "Page 1311 / 1311", 17, true, " Fiche N° 32767 "},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.n);
        Banc banc(Contacts(c.n) + Fin());
        EXPECT_EQ(S(banc.Texte("LabPage")), c.page);
        EXPECT_EQ(banc.Lignes("ListeLog").size(), c.lignes);
        EXPECT_EQ(S(banc.Texte("NoFicheLab")), c.carte);
        EXPECT_EQ(banc.Actif("CmdPageMoins"), c.boutons);
        EXPECT_EQ(banc.Controle<QScrollBar>("VScroll1")->maximum(), c.n);
        EXPECT_EQ(banc.Foyer(), c.n == 0 ? QStringLiteral("BtNewQSO") : QStringLiteral("ListeLog"));
    }
}

TEST(Navigation, TouchesEtBoutons) {
    Banc banc(Contacts(60) + Fin());
    struct Cas {
        std::function<void()> geste;
        const char *page, *carte;
    };
    const auto touche = [&](int t) { return [&banc, t] { banc.Touche(t); }; };
    const auto bouton = [&](const char* nom) { return [&banc, nom] { banc.Cliquer(nom); }; };
    const std::vector<Cas> cas = {
        {touche(Qt::Key_PageDown), "Page 3 / 3", " Fiche N° 60 "},
        {touche(Qt::Key_PageUp), "Page 2 / 3", " Fiche N° 26 "},
        {touche(Qt::Key_Up), "Page 1 / 3", " Fiche N° 25 "},
        {touche(Qt::Key_Down), "Page 2 / 3", " Fiche N° 26 "},
        {touche(Qt::Key_Down), "Page 2 / 3", " Fiche N° 27 "},
        {touche(Qt::Key_PageDown), "Page 3 / 3", " Fiche N° 51 "},
        {bouton("CmdSensHaut"), "Page 1 / 3", " Fiche N° 1 "},
        {bouton("CmdPageMoins"), "Page 1 / 3", " Fiche N° 1 "},
        {bouton("CmdPagePlus"), "Page 2 / 3", " Fiche N° 1 "},
        {bouton("CmdPagePlus"), "Page 3 / 3", " Fiche N° 1 "},
        {bouton("CmdPageMoins"), "Page 2 / 3", " Fiche N° 26 "},
        {bouton("CmdSensBas"), "Page 3 / 3", " Fiche N° 26 "},
        {[&] { banc.Controle<QScrollBar>("VScroll1")->setValue(25); }, "Page 1 / 3",
         " Fiche N° 26 "},
    };
    for (std::size_t i = 0; i < cas.size(); ++i) {
        SCOPED_TRACE(i);
        cas[i].geste();
        EXPECT_EQ(S(banc.Texte("LabPage")), cas[i].page);
        EXPECT_EQ(S(banc.Texte("NoFicheLab")), cas[i].carte);
    }
}

// A list that takes the focus without a current line must not choose one by itself.
TEST(Navigation, LaCarteNeChangePasToutSeule) {
    Banc banc(Contacts(60) + Fin());
    banc.Faire("CmdPageMoins CmdPagePlus");
    ASSERT_EQ(banc.Texte("NoFicheLab"), QStringLiteral(" Fiche N° 26 "));
    const std::vector<std::function<void()>> gestes = {
        [&] { banc.Controle<QListWidget>("ListeLog")->setFocus(); },
        [&] { banc.Cliquer("BtKillFiche"), banc.Cliquer("FraCmdNon"); },
        [&] { banc.Cliquer("BtActiveRech"), banc.Cliquer("BtContactsFermer"); },
        [&] { banc.Faire("TxtField_12 =Zoe FraCmdOui"); },
    };
    for (std::size_t i = 0; i < gestes.size(); ++i) {
        banc.Faire("CmdSensBas");
        gestes[i]();
        EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Fiche N° 26 ") << i;
        EXPECT_TRUE(banc.Actif("BtNewQSO")) << i;
    }
    EXPECT_EQ(banc.Journal().substr(25 * kTailleFiche + 98, 3), "Zoe");
}

TEST(Navigation, CarteListeEtFeuilleMontrentLesOctets) {
    Banc banc(
        Octets("F6ABCDEFGHIJ/P|12/05/02|18:30||||||Besançon|JO62QM|2A|Éloïse|ANTENNE YAGI 3 F5XYZ",
               "JN04SD") +
        Octets("F5XYZ") + Fin());
    EXPECT_EQ(banc.Texte("LabDist").trimmed(), QStringLiteral("0 Km")) << "both locators empty";
    EXPECT_EQ(S(banc.Texte("LabAzim")), "... ");
    auto* page = banc.Controle<FeuilleLog>("PageText1");
    QTest::mouseClick(page->viewport(), Qt::LeftButton, {}, page->RectDeRangee(0).center());
    EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Fiche N° 1 ");
    EXPECT_EQ(banc.Lignes("ListeLog")[0],
              QStringLiteral("1      : F6ABCDEFGH:12/05/02:18:30      "));
    EXPECT_EQ(S(banc.Texte("TxtField_1 TxtField_13 TxtField_17 LabDept LabDist LabAzim")),
              "F6ABCDEFGHIJ/P|ANTENNE YAGI 3|F5XYZ|Aisne|1275.5 Km |321°");
    EXPECT_TRUE(page->toPlainText().contains(QStringLiteral("Besançon             Éloïse")));
}

} // namespace
} // namespace orvalis::essais
