// First run, start-up, damaged files, quitting.
#include "ui/banc.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace orvalis::essais {
namespace {

// Runs `suite` inside the creation dialog as soon as it is open.
void DansLaCreation(const std::function<void(QDialog&)>& suite) {
    QTimer::singleShot(0, [suite] {
        auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) {
            DansLaCreation(suite);
            return;
        }
        dialogue->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialogue));
        suite(*dialogue);
        if (dialogue->isVisible())
            dialogue->reject(); // the suite failed to close it
    });
}

void TaperDans(QDialog& dialogue, const char* texte) {
    for (const char* c = texte; *c != '\0'; ++c)
        QTest::keyClick(dialogue.windowHandle(), *c == '\n' ? '\r' : *c);
}

TEST(Demarrage, PremierLancementCreeLeCahierPuisLOuvre) {
    Banc banc;
    QString apercu;
    DansLaCreation([&](QDialog& dialogue) {
        TaperDans(dialogue, "f5abc/p\n");
        auto* locator = dialogue.findChild<QLineEdit*>(QStringLiteral("Dlg1Fra2Text2"));
        TaperDans(dialogue, "jn99zz\n");
        EXPECT_EQ(locator->text(), QStringLiteral("ERREUR"));
        TaperDans(dialogue, "jn04sd\n");
        apercu = dialogue.findChild<QLabel*>(QStringLiteral("Dlg1Fra3Lab2"))->text();
        TaperDans(dialogue, "\n");
    });
    banc.Ouvrir();
    EXPECT_EQ(apercu, banc.disque.path() + QStringLiteral("/Orvalis/F5ABCP.Vek va être créé "));
    ASSERT_EQ(banc.systeme.informations.size(), 1U);
    EXPECT_EQ(
        banc.systeme.informations[0],
        QStringLiteral(" Création réalisée avec succès|   Le fichier F5ABCP.Vek est créé  \n\n"));
    EXPECT_EQ(banc.Lire("ParVel.cfg"), "\"F5ABC/P\",\"F5ABCP.Vek\",\"JN04SD\"\r\n");
    EXPECT_EQ(banc.Lire("F5ABCP.Vek"), "\\" + std::string(158, ' ') + "JN04SD");
    EXPECT_TRUE(
        banc.fenetre->windowTitle().startsWith(QStringLiteral(" Cahier de Trafic de F5ABC/P")));
    EXPECT_EQ(S(banc.Texte("LabPage")), "Page 1 / 1");
    EXPECT_FALSE(banc.systeme.codeDeFin);
}

TEST(Demarrage, ToutArreterNeCreeRien) {
    Banc banc;
    DansLaCreation([](QDialog& dialogue) { dialogue.reject(); });
    banc.Ouvrir();
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
    EXPECT_FALSE(std::filesystem::exists(banc.Dossier()));
}

TEST(Demarrage, FichiersAbimesFinissentEnMessage) {
    const std::string bon = "\"F5ABC\",\"F5ABC.Vek\",\"JN04SD\"\r\n";
    struct Cas {
        const char* nom;
        std::string parametres;
        bool journal;
        const char* message;
    };
    const std::vector<Cas> cas = {
        {"two values", "\"F5ABC\",\"F5ABC.Vek\"\r\n", true, "incomplet"},
        {"empty settings", "", true, "incomplet"},
        {"logbook missing", bon, false, "F5ABC.Vek » : le fichier n'existe pas."},
        {"logbook is a folder", "\"F5ABC\",\"dossier\",\"JN04SD\"\r\n", true, "c'est un dossier"},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        Banc banc;
        banc.Installer(Contacts(2) + Fin());
        banc.Ecrire("Parvel.cfg", c.parametres);
        std::filesystem::create_directory(banc.Dossier() / "dossier");
        if (!c.journal)
            std::filesystem::remove(banc.Dossier() / "F5ABC.Vek");
        banc.Ouvrir();
        EXPECT_EQ(banc.systeme.codeDeFin, 1);
        EXPECT_TRUE(banc.Averti(c.message));
        EXPECT_EQ(std::filesystem::exists(banc.Dossier() / "F5ABC.Vek"), c.journal);
        EXPECT_EQ(banc.Lire("Parvel.cfg"), c.parametres);
    }
}

TEST(Demarrage, UnSecondProgrammeEstRefuse) {
    Banc banc(Contacts(3) + Fin());
    SystemeDEssai second;
    second.lecteur = banc.systeme.lecteur;
    Orvalis autre(second);
    autre.show();
    autre.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&second] { return second.codeDeFin.has_value(); }));
    ASSERT_EQ(second.avertissements.size(), 1U);
    EXPECT_TRUE(second.avertissements[0].contains(QStringLiteral("déjà ouvert")));
    EXPECT_EQ(second.codeDeFin, 1);
    EXPECT_EQ(S(banc.Texte("TxtField_1")), "F3QSO");
}

TEST(Demarrage, HorlogeEtFin) {
    Banc banc(Fin());
    EXPECT_EQ(S(banc.Texte("LabHeure LabDate")), "18:30:15|Samedi 21 Novembre 2026");
    EXPECT_FALSE(banc.Visible("PictRech"));
    banc.Faire("MnuCreateMDB");
    EXPECT_TRUE(banc.systeme.lances.empty()) << "an empty logbook makes no database";
    banc.systeme.refusDeLancer = QStringLiteral("le programme n'existe pas");
    banc.Faire("Horloge");
    ASSERT_EQ(banc.systeme.lances.size(), 2U) << "with, then without the suffix";
    EXPECT_TRUE(banc.systeme.lances[0].endsWith(QStringLiteral("/Orvalis/Chronel.exe")));
    EXPECT_TRUE(banc.Averti("Chronel.exe"));
    EXPECT_FALSE(banc.systeme.codeDeFin);
    banc.Faire("BtFermerLog");
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
    EXPECT_EQ(S(banc.Texte("OrvalisLab03")), " Au revoir ");
}

} // namespace
} // namespace orvalis::essais
