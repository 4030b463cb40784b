#include "geo/dlg2.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include <array>
#include <gtest/gtest.h>

namespace {

using namespace orvalis;

// Keys go through the window, so that they follow the focus as a keyboard's do.
/// A box that is clicked (none: the focus stays), what is typed then, and what shows after it: all
/// boxes in the order of the screen (none: whatever), and the box or button with the focus.
struct Geste {
    const char *boite, *touches, *tout, *foyer;
};

class Dlg2Test : public testing::Test {
  protected:
    void SetUp() override { Montrer(dialogue); }

    static void Montrer(QWidget& fenetre) {
        fenetre.show();
        fenetre.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    }
    QLineEdit* Champ(const char* nom) { return dialogue.findChild<QLineEdit*>(QLatin1String(nom)); }
    void Cliquer(const char* nom) { QTest::mouseClick(Champ(nom), Qt::LeftButton); }
    void Touche(Qt::Key touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) {
        QTest::keyClick(dialogue.windowHandle(), touche, modificateurs);
    }
    // Control characters are their keys: \r Enter, \t Tab, \b Backspace.
    void Taper(const char* texte) {
        for (; *texte != '\0'; ++texte)
            QTest::keyClick(dialogue.windowHandle(), *texte);
    }
    std::string Texte(const char* nom) { return Champ(nom)->text().toStdString(); }
    static std::string Foyer() { return QApplication::focusWidget()->objectName().toStdString(); }
    std::string Tout() {
        std::string tout;
        for (const char* nom : {"Fr1DegText1", "Fr1MinText1", "Fr1SecText1", "Fr1LatSgnText",
                                "Fr1DegText2", "Fr1MinText2", "Fr1SecText2", "Fr1LonSgnText",
                                "Fr1LatCent", "Fr1LonCent", "Fr1TextLocator"})
            tout += Texte(nom) + " ";
        return tout;
    }
    void Jouer(std::initializer_list<Geste> gestes) {
        for (const auto& [boite, touches, tout, foyer] : gestes) {
            if (*boite != '\0')
                Cliquer(boite);
            Taper(touches);
            EXPECT_TRUE(*tout == '\0' || Tout() == tout)
                << boite << ' ' << touches << ' ' << Tout();
            EXPECT_EQ(Foyer(), foyer) << boite << ' ' << touches;
        }
    }

    Dlg2 dialogue;
};

constexpr const char* kOuverture = "44 08 35 N 001 32 10 E 44.1458 -1.5417 JN04SD ";
constexpr const char* kNewYork = "41 43 55 N 072 42 50 O 41.7292 72.7083 FN31PR ";
constexpr const char* kSydney = "33 52 12 S 151 12 34 E -33.8720 -151.2056 QF56OD ";

TEST_F(Dlg2Test, SeRemplitUneFoisParOuverture) {
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    Jouer({{"", "", kOuverture, "Fr1CmdFermer"},
           {"Fr1TextLocator", "fn31pr\r", kNewYork, "Fr1CmdFermer"}});
    {
        QWidget autre;
        Montrer(autre);
        Montrer(dialogue);
    }
    EXPECT_EQ(Tout(), kNewYork);
    Touche(Qt::Key_Enter);
    EXPECT_FALSE(dialogue.isVisible());
    EXPECT_EQ(dialogue.LocatorModifie(), "FN31PR");
    Montrer(dialogue);
    EXPECT_EQ(Tout(), kOuverture);
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    Cliquer("Fr1MinText1");
    Touche(Qt::Key_Escape);
    EXPECT_FALSE(dialogue.isVisible());
}

TEST_F(Dlg2Test, LesDegresMinutesSecondesEntrainentLeReste) {
    Jouer({{"Fr1DegText1", "33", "", "Fr1MinText1"},
           {"", "52", "", "Fr1SecText1"},
           {"", "12", "", "Fr1LatSgnText"},
           {"", "s", "33 52 12 S 001 32 10 E -33.8720 -1.5316 JF06SD ", "Fr1DegText2"},
           {"", "151", "", "Fr1MinText2"},
           {"", "12", "", "Fr1SecText2"},
           {"", "34", "", "Fr1LonSgnText"},
           {"", "e", kSydney, "Fr1CmdFermer"},
           {"Fr1LatSgnText", "x\b", kSydney, "Fr1LatSgnText"}});
    Touche(Qt::Key_Delete); // no letter counts as North
    EXPECT_EQ(Tout(), "33 52 12  151 12 34 E 33.8720 -151.2056 QM53OU ");
    EXPECT_EQ(Foyer(), "Fr1DegText2");
    EXPECT_EQ(dialogue.LocatorModifie(), "QM53OU");
}

TEST_F(Dlg2Test, UneValeurTropGrandeDevientZero) {
    const std::array<const char*, 4> cas[] = {
        {"Fr1DegText1", "89", "90", "00"}, {"Fr1MinText1", "59", "60", "00"},
        {"Fr1SecText1", "59", "95", "00"}, {"Fr1DegText2", "179", "180", "000"},
        {"Fr1MinText2", "59", "60", "00"}, {"Fr1SecText2", "59", "99", "00"}};
    for (const auto& [champ, admis, refuse, zero] : cas) {
        Cliquer(champ);
        Taper(admis);
        EXPECT_EQ(Texte(champ), admis);
        EXPECT_NE(Foyer(), champ);
        Cliquer(champ);
        Taper(refuse);
        EXPECT_EQ(Champ(champ)->selectedText().toStdString(), zero);
        EXPECT_EQ(Foyer(), champ);
    }
    EXPECT_EQ(Tout(), "00 00 00 N 000 00 00 E 0.0000 0.0000 JJ00AA ");
}

TEST_F(Dlg2Test, LesDegresDecimauxEntrainentLeReste) {
    Jouer({
        {"Fr1LatCent", "-33.872", "33 52 12 S 001 32 10 E -33.872 -1.5417 JF06SD ", "Fr1LatCent"},
        // The same notation: entering the next box is enough. 180 itself is out of range.
        {"", "\t18a0,", "33 52 12 S 018 00 00 O -33.872 180 IF16AD ", "Fr1LonCent"},
        {"", "\b", "33 52 12 S 018 00 00 O -33.872 18 IF16AD ", "Fr1LonCent"},
        // Seconds that the notation cannot say are left out.
        {"Fr1LatCent", "44.1375", "44 08 45 N 018 00 00 O 44.1375 18 IN14AD ", "Fr1LatCent"},
    });
    Cliquer("Fr1LatCent");
    Taper("99999999999999999999999999999999999999999999");
    EXPECT_EQ(Texte("Fr1TextLocator"), "IJ18AX"); // of 9, in single precision
}

TEST_F(Dlg2Test, LeLocatorIncompletRevient) {
    Jouer({
        {"Fr1TextLocator", "jn05\r", "44 08 35 N 001 32 10 E 44.1458 -1.5417 JN05 ",
         "Fr1TextLocator"},
        {"", "\t", kOuverture, "Fr1CmdFermer"},
        {"Fr1TextLocator", "JS04SD\r", "44 08 35 N 001 32 10 E 44.1458 -1.5417 JS04SD ",
         "Fr1TextLocator"},
    });
    Touche(Qt::Key_A, Qt::ControlModifier);
    // The seventh character has no room.
    Jouer({{"", "FN31PRX\t", kNewYork, "Fr1CmdFermer"}});
}

TEST_F(Dlg2Test, SeuleLaNotationChoisieEntraine) {
    Touche(Qt::Key_Tab);
    EXPECT_EQ(Champ("Fr1DegText1")->selectedText(), QLatin1String("44"));
    Taper("95");
    EXPECT_EQ(Tout(), "95 08 35 N 001 32 10 E 44.1458 -1.5417 JN04SD ");
    Touche(Qt::Key_D, Qt::AltModifier);
    Taper("43");
    EXPECT_EQ(Tout(), "43 08 35 N 001 32 10 E 43.1358 -1.5316 JN03SD ");
}

TEST_F(Dlg2Test, LeTexteColleSuitLesRegles) {
    QApplication::clipboard()->setText(QStringLiteral("9x5a"));
    Cliquer("Fr1DegText1");
    Touche(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Champ("Fr1DegText1")->selectedText(), QLatin1String("00"));
}

} // namespace
