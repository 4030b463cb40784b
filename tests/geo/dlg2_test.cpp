// The coordinates dialog, typed into over the main window.
#include "geo/dlg2.h"
#include "ui/banc.h"

#include <QLineEdit>
#include <QTest>

namespace orvalis::operateur {
namespace {

// Every box in the order of the screen, then what has the focus.
constexpr const char* kTout = "Fr1DegText1 Fr1MinText1 Fr1SecText1 Fr1LatSgnText Fr1DegText2 "
                              "Fr1MinText2 Fr1SecText2 Fr1LonSgnText Fr1LatCent Fr1LonCent "
                              "Fr1TextLocator @";
constexpr const char* kOuverture = "44|08|35|N|001|32|10|E|44.1458|-1.5417|JN04SD|Fr1CmdFermer";
constexpr const char* kNewYork = "41|43|55|N|072|42|50|O|41.7292|72.7083|FN31PR|Fr1CmdFermer";

struct Dlg2Test : testing::Test {
    Dlg2Test() { Montrer(dialogue); }
    static void Montrer(QWidget& fenetre) {
        fenetre.show();
        fenetre.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
        QCoreApplication::processEvents();
    }
    std::string Choisi(const char* boite) {
        return S(banc.Controle<QLineEdit>(boite)->selectedText());
    }

    Banc banc{Fin()};
    Dlg2 dialogue{banc.fenetre.get()};
};

TEST_F(Dlg2Test, SeRemplitUneFoisParOuverture) {
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    banc.Suivre({{"", kTout, kOuverture}, {"Fr1TextLocator =fn31pr", kTout, kNewYork}});
    Montrer(*banc.fenetre);
    Montrer(dialogue);
    banc.Suivre({{"", kTout, kNewYork}, {"!Enter", "?Fr1CmdFermer", "C"}});
    EXPECT_EQ(dialogue.LocatorModifie(), "FN31PR");
    Montrer(dialogue);
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    banc.Suivre({{"", kTout, kOuverture}, {"Fr1MinText1 !Esc", "?Fr1CmdFermer", "C"}});
}

TEST_F(Dlg2Test, LesDegresMinutesSecondesEntrainentLeReste) {
    banc.Suivre({
        {"Fr1DegText1 :33", "@", "Fr1MinText1"},
        {":52", "@", "Fr1SecText1"},
        {":12", "@", "Fr1LatSgnText"},
        {":s", "@", "Fr1DegText2"},
        {":151", "@", "Fr1MinText2"},
        {":12", "@", "Fr1SecText2"},
        {":34", "@", "Fr1LonSgnText"},
        {":e", kTout, "33|52|12|S|151|12|34|E|-33.8720|-151.2056|QF56OD|Fr1CmdFermer"},
        {"Fr1LatSgnText :x !Backspace", "Fr1LatSgnText @", "S|Fr1LatSgnText"},
        // No letter counts as North.
        {"!Del", kTout, "33|52|12||151|12|34|E|33.8720|-151.2056|QM53OU|Fr1DegText2"},
    });
    EXPECT_EQ(dialogue.LocatorModifie(), "QM53OU");
}

TEST_F(Dlg2Test, UneValeurTropGrandeDevientZero) {
    const std::array<const char*, 4> cas[] = {
        {"Fr1DegText1", "89", "90", "00"}, {"Fr1MinText1", "59", "60", "00"},
        {"Fr1SecText1", "59", "95", "00"}, {"Fr1DegText2", "179", "180", "000"},
        {"Fr1MinText2", "59", "60", "00"}, {"Fr1SecText2", "59", "99", "00"}};
    for (const auto& [boite, admis, refuse, zero] : cas) {
        banc.Suivre({{boite + std::string(" :") + admis, boite, admis},
                     {boite + std::string(" :") + refuse, "@", boite}});
        EXPECT_EQ(Choisi(boite), zero);
    }
    banc.Suivre({{"", kTout, "00|00|00|N|000|00|00|E|0.0000|0.0000|JJ00AA|Fr1SecText2"},
                 {"Fr1DegText1 Fr1DegText1+9x5a", "Fr1DegText1", "00"}}); // pasted
}

TEST_F(Dlg2Test, LesDegresDecimauxEntrainentLeReste) {
    banc.Suivre({
        {"Fr1LatCent :-33.872", kTout, "33|52|12|S|001|32|10|E|-33.872|-1.5417|JF06SD|Fr1LatCent"},
        // The same notation: entering the next box is enough. 180 itself is out of range.
        {"!Tab :18a0,", kTout, "33|52|12|S|018|00|00|O|-33.872|180|IF16AD|Fr1LonCent"},
        {"!Backspace", kTout, "33|52|12|S|018|00|00|O|-33.872|18|IF16AD|Fr1LonCent"},
        // Of 9, in single precision; what is out of range does not hold the other box back.
        {"Fr1LatCent :" + std::string(44, '9') + " !Tab :20", "Fr1TextLocator", "IJ08AX"},
    });
}

TEST_F(Dlg2Test, LeLocatorIncompletRevient) {
    banc.Suivre({
        {"Fr1LatCent :44.1375", "Fr1SecText1", "45"},
        {"Fr1TextLocator =jn05", "@", "Fr1TextLocator"},
        {"!Tab", kTout, kOuverture},
        {"Fr1TextLocator =JS04SD", "@", "Fr1TextLocator"},
    });
    EXPECT_EQ(dialogue.LocatorModifie(), "JN04SD");
    // The seventh character has no room.
    banc.Suivre({{"!Ctrl+A :FN31PRX !Tab", kTout, kNewYork}});
}

TEST_F(Dlg2Test, SeuleLaNotationChoisieEntraine) {
    banc.Faire("!Tab");
    EXPECT_EQ(Choisi("Fr1DegText1"), "44");
    banc.Suivre({
        {":95", kTout, "95|08|35|N|001|32|10|E|44.1458|-1.5417|JN04SD|Fr1DegText1"},
        {"^D :43", kTout, "43|08|35|N|001|32|10|E|43.1358|-1.5316|JN03SD|Fr1MinText1"},
    });
}

} // namespace
} // namespace orvalis::operateur
