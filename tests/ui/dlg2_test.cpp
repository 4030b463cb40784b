// The coordinates dialog, typed into over the main window.
#include "ui/banc.h"
#include "ui/dialogues/dlg2.h"

#include <QTest>

namespace orvalis::operateur::dlg2 {

constexpr const char* kOuverture = "44|08|35|N|001|32|10|E|44.1458|-1.5417|JN04SD|Fr1CmdFermer";
constexpr const char* kNewYork = "41|43|55|N|072|42|50|O|41.7292|72.7083|FN31PR|Fr1CmdFermer";

struct Dlg2Test : testing::Test {
    Dlg2Test() {
        // Every box in the order of the screen, then what has the focus.
        banc.groupes["vue"] =
            "Fr1DegText1 Fr1MinText1 Fr1SecText1 Fr1LatSgnText Fr1DegText2 Fr1MinText2 Fr1SecText2 "
            "Fr1LonSgnText Fr1LatCent Fr1LonCent Fr1TextLocator foyer";
        Montrer(dialogue);
    }
    static void Montrer(QWidget& fenetre) {
        fenetre.show();
        fenetre.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
        QCoreApplication::processEvents();
    }
    /// A step after which every box is as given.
    void Tout(const std::string& pas, const std::string& vus) {
        banc.Suivre(pas + " -> vue = " + vus);
    }

    Banc banc{Fin()};
    Dlg2 dialogue{banc.fenetre.get()};
};

TEST_F(Dlg2Test, SeRemplitUneFoisParOuverture) {
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    Tout("opened :", kOuverture);
    Tout("locator : clic Fr1TextLocator; valide fn31pr", kNewYork);
    Montrer(*banc.fenetre);
    Montrer(dialogue);
    Tout("still open :", kNewYork);
    banc.Suivre("closed : touche Enter -> caché Fr1CmdFermer");
    EXPECT_EQ(dialogue.LocatorModifie(), "FN31PR");
    Montrer(dialogue);
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    Tout("opened again :", kOuverture);
    banc.Suivre("entered : touche Tab; compose ê");
    EXPECT_EQ(S(banc.Controle<QLineEdit>("Fr1DegText1")->selectedText()), "44");
    // Only the notation that is chosen changes the others, and only when it is in range.
    banc.Suivre(R"(
 out of range : tape 95 -> vue = 95|08|35|N|001|32|10|E|44.1458|-1.5417|JN04SD|Fr1DegText1
 then : touche Alt+D; tape 43 -> vue = 43|08|35|N|001|32|10|E|43.1358|-1.5316|JN03SD|Fr1MinText1
 cancelled : touche Esc -> caché Fr1CmdFermer)");
}

TEST_F(Dlg2Test, LesDegresMinutesSecondesEntrainentLeReste) {
    banc.Suivre(R"(
 degrees : clic Fr1DegText1; tape 33 -> foyer = Fr1MinText1
 minutes : tape 52 -> foyer = Fr1SecText1
 seconds : tape 12 -> foyer = Fr1LatSgnText
 South : tape s -> foyer = Fr1DegText2
 degrees of longitude : tape 151 -> foyer = Fr1MinText2
 minutes of longitude : tape 12 -> foyer = Fr1SecText2
 seconds of longitude : tape 34 -> foyer = Fr1LonSgnText
 East : tape e -> vue = 33|52|12|S|151|12|34|E|-33.8720|-151.2056|QF56OD|Fr1CmdFermer
 no sign : clic Fr1LatSgnText; tape x; touche Backspace -> Fr1LatSgnText foyer = S|Fr1LatSgnText
 none is North : touche Del -> vue = 33|52|12||151|12|34|E|33.8720|-151.2056|QM53OU|Fr1DegText2)");
    EXPECT_EQ(dialogue.LocatorModifie(), "QM53OU");
}

TEST_F(Dlg2Test, UneValeurTropGrandeDevientZero) {
    const std::array<std::string, 3> cas[] = {
        // box, text taken, text refused
        {"Fr1DegText1", "89", "90"},   {"Fr1MinText1", "59", "60"}, {"Fr1SecText1", "59", "95"},
        {"Fr1DegText2", "179", "180"}, {"Fr1MinText2", "59", "60"}, {"Fr1SecText2", "59", "99"}};
    for (const auto& [boite, admis, refuse] : cas) {
        banc.Suivre("taken : clic " + boite + "; tape " + admis + " -> " + boite + " = " + admis +
                    "\n refused : clic " + boite + "; tape " + refuse + " -> foyer = " + boite);
        EXPECT_EQ(S(banc.Controle<QLineEdit>(boite)->selectedText()),
                  std::string(admis.size(), '0'));
    }
    Tout("zeros :", "00|00|00|N|000|00|00|E|0.0000|0.0000|JJ00AA|Fr1SecText2");
    banc.Suivre("pasted : clic Fr1DegText1; colle Fr1DegText1 9x5a -> Fr1DegText1 = 00");
}

TEST_F(Dlg2Test, LesDegresDecimauxEntrainentLeReste) {
    banc.Suivre(R"(
 S : clic Fr1LatCent; tape -33.872 -> vue = 33|52|12|S|001|32|10|E|-33.872|-1.5417|JF06SD|Fr1LatCent
 entering the next box is enough, 180 itself is out of range : touche Tab; tape "18a0,"
     -> vue = 33|52|12|S|018|00|00|O|-33.872|180|IF16AD|Fr1LonCent
 within : touche Backspace -> vue = 33|52|12|S|018|00|00|O|-33.872|18|IF16AD|Fr1LonCent)");
    // In single precision; what is out of range does not hold the other box back.
    banc.Suivre("nines : clic Fr1LatCent; tape " + std::string(44, '9') +
                "; touche Tab; tape 20 -> Fr1TextLocator = IJ08AX");
}

TEST_F(Dlg2Test, LeLocatorIncompletRevient) {
    banc.Suivre(R"(
 degrees : clic Fr1LatCent; tape 44.1375 -> Fr1SecText1 = 45
 four characters : clic Fr1TextLocator; valide jn05 -> foyer = Fr1TextLocator)");
    Tout("the old one comes back : touche Tab", kOuverture);
    banc.Suivre("wrong : clic Fr1TextLocator; valide JS04SD -> foyer = Fr1TextLocator");
    EXPECT_EQ(dialogue.LocatorModifie(), "JN04SD");
    Tout("no room for a seventh : touche Ctrl+A; tape FN31PRX; touche Tab", kNewYork);
}

} // namespace orvalis::operateur::dlg2
