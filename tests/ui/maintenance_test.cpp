// Sort, pairing, other logbooks, backup and copy through the window's menus.
#include "ui/banc.h"

#include <QAction>
#include <QWidget>

#include <algorithm>
#include <gtest/gtest.h>

namespace orvalis::essais {
namespace {

std::string Inverse(const std::string& octets) {
    std::string sortie;
    for (std::size_t i = octets.size(); i > 0; i -= kTailleFiche)
        sortie += octets.substr(i - kTailleFiche, kTailleFiche);
    return sortie;
}

TEST(Maintenance, ClasserMontreEtGele) {
    Banc banc;
    banc.Installer(Inverse(Contacts(60)) + Fin());
    banc.Ouvrir();
    banc.Menu("MnuClasser");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(60) + Fin()), "");
    EXPECT_EQ(banc.Texte("LabEtat_1"), QStringLiteral("60"));
    EXPECT_EQ(banc.Texte("LabEtat_2"), QStringLiteral("Heures"));
    EXPECT_EQ(banc.Texte("LabEtat_3"), QStringLiteral("1"));
    EXPECT_EQ(banc.Texte("ClasserLab"), QStringLiteral(" Terminé "));
    EXPECT_EQ(banc.Texte("NoFicheLab"), QStringLiteral(" Fiche N° 60 "));
    for (const char* cache : {"PictClasser", "PictRech", "PictContacts", "BtActiveRech"})
        EXPECT_FALSE(banc.Visible(cache)) << cache;
    EXPECT_TRUE(banc.Controle<QWidget>("ListeLog")->isEnabled());
    EXPECT_TRUE(banc.Controle<QWidget>("TxtField_1")->isEnabled());
}

TEST(Maintenance, JumelageAvecSauvegarde) {
    Banc banc;
    banc.Installer(Contacts(3) + Fin());
    banc.Ouvrir();
    banc.Ecrire("AUTRE.Vek", Contacts(2) + Fin("IN88AA"));
    banc.Menu("MnuJumeler");
    EXPECT_EQ(banc.Texte("LabPj_2"), QStringLiteral("F5ABC.Vek"));
    EXPECT_FALSE(banc.Controle<QWidget>("ListeLog")->isEnabled());
    banc.Cliquer("BtPjSauvegarder"); // cancelled
    EXPECT_TRUE(banc.Controle<QWidget>("BtPjSauvegarder")->isEnabled());
    const auto dossier = QString::fromStdString((banc.Dossier() / "VekSave").string());
    ASSERT_EQ(banc.systeme.demandes.size(), 1U);
    EXPECT_TRUE(banc.systeme.demandes[0].enregistrer);
    EXPECT_EQ(banc.systeme.demandes[0].dossier, dossier);
    EXPECT_EQ(banc.systeme.demandes[0].nomPropose, QStringLiteral("F5ABC.Vek"));
    banc.systeme.fichierChoisi = dossier + QStringLiteral("/F5ABC.Vek");
    banc.Cliquer("BtPjSauvegarder");
    EXPECT_FALSE(banc.Controle<QWidget>("BtPjSauvegarder")->isEnabled());
    EXPECT_EQ(banc.Lire("VekSave/F5ABC.Vek"), Contacts(3) + Fin());
    banc.systeme.fichierChoisi = QString::fromStdString((banc.Dossier() / "AUTRE.Vek").string());
    banc.Cliquer("BtPjumeler");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Contacts(2) + Fin()), "");
    EXPECT_EQ(banc.Texte("NoFicheLab"), QStringLiteral(" Fiche N° 5 "));
    EXPECT_TRUE(banc.Visible("PJumelage"));
    banc.Cliquer("BtPjAnnuler");
    EXPECT_EQ(banc.Foyer(), QStringLiteral("ListeLog"));
}

TEST(Maintenance, AutreCahierEnLectureSeulePuisRetour) {
    Banc banc;
    banc.Installer(Contacts(3) + Fin());
    banc.Ouvrir();
    banc.Ecrire("F6XYZ.Vek", Contacts(30) + Fin("IN88AA"));
    banc.systeme.fichierChoisi = QString::fromStdString((banc.Dossier() / "F6XYZ.Vek").string());
    // Cancelled, the dialog leaves even a question that waits as it was.
    const QString choisi = std::exchange(banc.systeme.fichierChoisi, QString());
    banc.Cliquer("TxtField_12");
    banc.Taper("luc\n");
    banc.Menu("MnuAutreF");
    EXPECT_TRUE(banc.Visible("FraMsgFiche"));
    banc.Cliquer("FraCmdNon");
    banc.systeme.fichierChoisi = choisi;
    banc.Menu("MnuAutreF");
    EXPECT_EQ(banc.Texte("LabJournal"), QStringLiteral("F6XYZ (lecture seule) : 30 contacts"));
    EXPECT_FALSE(banc.Controle<QWidget>("BtNewQSO")->isEnabled());
    EXPECT_FALSE(banc.Controle<QWidget>("BtKillFiche")->isEnabled());
    EXPECT_TRUE(banc.Controle<QWidget>("BtFermerLog")->isEnabled());
    EXPECT_FALSE(banc.Controle<QAction>("MnuJumeler")->isEnabled());
    EXPECT_FALSE(banc.Controle<QAction>("MnuSauver")->isEnabled());
    banc.Cliquer("TxtField_6");
    banc.Taper("CW\n");
    EXPECT_FALSE(banc.Visible("FraMsgFiche"));
    // Lists and searches do not give the buttons back.
    banc.Cliquer("BtActiveRech");
    banc.Cliquer("BtContactsFermer");
    EXPECT_FALSE(banc.Controle<QWidget>("BtNewQSO")->isEnabled());
    EXPECT_FALSE(banc.Controle<QWidget>("BtKillFiche")->isEnabled());
    EXPECT_EQ(banc.Lire("F6XYZ.Vek"), Contacts(30) + Fin("IN88AA"));
    banc.Menu("MnuCourantF");
    EXPECT_EQ(banc.Texte("LabJournal"), QStringLiteral("F5ABC : 3 contacts"));
    EXPECT_TRUE(banc.Controle<QWidget>("BtNewQSO")->isEnabled());
    EXPECT_TRUE(banc.Controle<QWidget>("BtKillFiche")->isEnabled());
    banc.Cliquer("BtNewQSO");
    EXPECT_EQ(banc.Texte("TxtField_16"), QStringLiteral("JN04SD"));
    EXPECT_FALSE(banc.Controle<QAction>("MnuAutreF")->isEnabled());
}

TEST(Maintenance, ErreursDesAutresFichiersSeDisentSansRienPerdre) {
    Banc banc;
    banc.Installer(Contacts(3) + Fin());
    banc.Ouvrir();
    struct Cas {
        const char* menu;
        const char* fichier;
        const char* message;
    };
    const std::vector<Cas> cas = {
        {"MnuAutreF", "absent.Vek", "absent.Vek » : le fichier n'existe pas."},
        {"MnuSauver", "absent/copie.Vek", "copie.Vek » : le fichier n'existe pas."},
        {"MnuCopieSurDisque", "VekSave", "c'est un dossier"},
        {"MnuAutreF", "coupe.Vek", "pas d'enregistrement de fin et sa longueur"},
    };
    banc.Ecrire("coupe.Vek", Contacts(2) + "F1");
    std::filesystem::create_directory(banc.Dossier() / "VekSave");
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.fichier);
        banc.systeme.avertissements.clear();
        banc.systeme.fichierChoisi = QString::fromStdString((banc.Dossier() / c.fichier).string());
        banc.Menu(c.menu);
        ASSERT_EQ(banc.systeme.avertissements.size(), 1U);
        EXPECT_TRUE(banc.systeme.avertissements[0].contains(QString::fromUtf8(c.message)))
            << banc.systeme.avertissements[0].toStdString();
        EXPECT_EQ(banc.Journal(), Contacts(3) + Fin());
        EXPECT_FALSE(banc.systeme.codeDeFin);
    }
    EXPECT_EQ(banc.Texte("NoFicheLab"), QStringLiteral(" Fiche N° 3 ")) << "the cut one is open";
    // A disk that is full at the first byte.
    banc.systeme.avertissements.clear();
    banc.systeme.fichierChoisi = QStringLiteral("/dev/full");
    banc.Menu("MnuCopieSurDisque");
    ASSERT_EQ(banc.systeme.avertissements.size(), 1U);
    EXPECT_TRUE(banc.systeme.avertissements[0].contains(QStringLiteral("le disque est plein")));
}

} // namespace
} // namespace orvalis::essais
