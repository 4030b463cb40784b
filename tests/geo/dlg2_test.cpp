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
class Dlg2Test : public testing::Test {
  protected:
    void SetUp() override { Montrer(); }

    void Montrer() {
        dialogue.show();
        dialogue.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogue));
    }
    QLineEdit* Champ(const char* nom) { return dialogue.findChild<QLineEdit*>(QLatin1String(nom)); }
    void Cliquer(const char* nom) { QTest::mouseClick(Champ(nom), Qt::LeftButton); }
    void Touche(Qt::Key touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) {
        QTest::keyClick(dialogue.windowHandle(), touche, modificateurs);
    }
    void Taper(const char* texte) {
        for (; *texte != '\0'; ++texte)
            QTest::keyClick(dialogue.windowHandle(), *texte);
    }
    void Coller(const char* nom, const char* texte) {
        QApplication::clipboard()->setText(QString::fromUtf8(texte));
        Cliquer(nom);
        Touche(Qt::Key_V, Qt::ControlModifier);
    }
    std::string Texte(const char* nom) { return Champ(nom)->text().toStdString(); }
    std::string Focus() {
        const QWidget* foyer = QApplication::focusWidget();
        return foyer == nullptr ? "" : foyer->objectName().toStdString();
    }
    // Every box in the order of the screen.
    std::string Tout() {
        std::string tout;
        for (const char* nom : {"Fr1DegText1", "Fr1MinText1", "Fr1SecText1", "Fr1LatSgnText",
                                "Fr1DegText2", "Fr1MinText2", "Fr1SecText2", "Fr1LonSgnText",
                                "Fr1LatCent", "Fr1LonCent", "Fr1TextLocator"}) {
            tout += Texte(nom) + " ";
        }
        return tout;
    }

    Dlg2 dialogue;
};

constexpr const char* kOuverture = "44 08 35 N 001 32 10 E 44.1458 -1.5417 JN04SD ";
constexpr const char* kNewYork = "41 43 55 N 072 42 50 O 41.7292 72.7083 FN31PR ";

TEST_F(Dlg2Test, SeRemplitUneFoisParOuverture) {
    EXPECT_EQ(Tout(), kOuverture);
    EXPECT_EQ(Focus(), "Fr1CmdFermer");
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);

    Cliquer("Fr1TextLocator");
    Taper("fn31pr");
    Touche(Qt::Key_Return);
    EXPECT_EQ(Tout(), kNewYork);
    EXPECT_EQ(Focus(), "Fr1CmdFermer");
    {
        QWidget autre;
        autre.show();
        autre.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&autre));
        dialogue.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogue));
    }
    EXPECT_EQ(Tout(), kNewYork);

    Touche(Qt::Key_Enter);
    EXPECT_FALSE(dialogue.isVisible());
    EXPECT_EQ(dialogue.LocatorModifie(), "FN31PR");
    Montrer();
    EXPECT_EQ(Tout(), kOuverture);
    EXPECT_EQ(dialogue.LocatorModifie(), std::nullopt);
    Cliquer("Fr1MinText1");
    Touche(Qt::Key_Escape);
    EXPECT_FALSE(dialogue.isVisible());
}

TEST_F(Dlg2Test, LesDegresMinutesSecondesEntrainentLeReste) {
    Cliquer("Fr1DegText1");
    const std::pair<const char*, const char*> frappes[] = {
        {"33", "Fr1MinText1"},   {"52", "Fr1SecText1"},  {"12", "Fr1LatSgnText"},
        {"s", "Fr1DegText2"},    {"151", "Fr1MinText2"}, {"12", "Fr1SecText2"},
        {"34", "Fr1LonSgnText"}, {"e", "Fr1CmdFermer"}};
    for (const auto& [touches, suivant] : frappes) {
        Taper(touches);
        EXPECT_EQ(Focus(), suivant);
    }
    EXPECT_EQ(Tout(), "33 52 12 S 151 12 34 E -33.8720 -151.2056 QF56OD ");
    EXPECT_EQ(dialogue.LocatorModifie(), "QF56OD");

    Cliquer("Fr1LatSgnText");
    Taper("x");
    Touche(Qt::Key_Backspace);
    EXPECT_EQ(Texte("Fr1LatSgnText"), "S");
    Touche(Qt::Key_Delete); // no letter counts as North
    EXPECT_EQ(Texte("Fr1LatCent"), "33.8720");
    EXPECT_EQ(Focus(), "Fr1DegText2");
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
        EXPECT_NE(Focus(), champ);
        Cliquer(champ);
        Taper(refuse);
        EXPECT_EQ(Champ(champ)->selectedText().toStdString(), zero);
        EXPECT_EQ(Focus(), champ);
    }
    EXPECT_EQ(Tout(), "00 00 00 N 000 00 00 E 0.0000 0.0000 JJ00AA ");
}

TEST_F(Dlg2Test, LesDegresDecimauxEntrainentLeReste) {
    Cliquer("Fr1LatCent");
    Taper("-33.872");
    EXPECT_EQ(Tout(), "33 52 12 S 001 32 10 E -33.872 -1.5417 JF06SD ");
    Touche(Qt::Key_Tab); // the same notation: entering the next box is enough
    Taper("18a0,");
    EXPECT_EQ(Texte("Fr1LonCent"), "180");
    EXPECT_EQ(Texte("Fr1DegText2"), "018"); // 180 itself is out of range
    Touche(Qt::Key_Backspace);
    EXPECT_EQ(Tout(), "33 52 12 S 018 00 00 O -33.872 18 IF16AD ");
    Cliquer("Fr1LatCent");
    Taper("99999999999999999999999999999999999999999999");
    EXPECT_EQ(Texte("Fr1TextLocator"), "IJ18AX"); // of 9, in single precision
}

TEST_F(Dlg2Test, LeLocatorIncompletRevient) {
    Cliquer("Fr1LatCent");
    Taper("44.1375");
    EXPECT_EQ(Texte("Fr1SecText1"), "45");
    Cliquer("Fr1TextLocator");
    Taper("jn05");
    Touche(Qt::Key_Return); // not complete: nothing happens
    EXPECT_EQ(Focus(), "Fr1TextLocator");
    Touche(Qt::Key_Tab);
    EXPECT_EQ(Tout(), kOuverture);
    Cliquer("Fr1TextLocator");
    Taper("JS04SD");
    Touche(Qt::Key_Return);
    EXPECT_EQ(Focus(), "Fr1TextLocator");
    EXPECT_EQ(dialogue.LocatorModifie(), "JN04SD");
    Touche(Qt::Key_A, Qt::ControlModifier);
    Taper("FN31PRX"); // the seventh character has no room
    Touche(Qt::Key_Tab);
    EXPECT_EQ(Tout(), kNewYork);
}

TEST_F(Dlg2Test, SeuleLaNotationChoisieEntraine) {
    Touche(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Fr1DegText1");
    EXPECT_EQ(Champ("Fr1DegText1")->selectedText(), QLatin1String("44"));
    Taper("95");
    EXPECT_EQ(Tout(), "95 08 35 N 001 32 10 E 44.1458 -1.5417 JN04SD ");
    Touche(Qt::Key_D, Qt::AltModifier);
    Taper("43");
    EXPECT_EQ(Tout(), "43 08 35 N 001 32 10 E 43.1358 -1.5316 JN03SD ");
}

TEST_F(Dlg2Test, LeTexteColleSuitLesRegles) {
    const std::array<const char*, 3> cas[] = {{"Fr1DegText1", "4a5", "45"},
                                              {"Fr1DegText2", "12345", "123"},
                                              {"Fr1LonSgnText", "ouest", "O"},
                                              {"Fr1LatCent", " +12.5\xC2\xB0", "12.5"},
                                              {"Fr1TextLocator", "\tjn04sdxx", "JN04SD"}};
    for (const auto& [champ, texte, attendu] : cas) {
        Coller(champ, texte);
        EXPECT_EQ(Texte(champ), attendu);
    }
    Coller("Fr1DegText1", "95");
    EXPECT_EQ(Champ("Fr1DegText1")->selectedText(), QLatin1String("00"));
}

} // namespace
