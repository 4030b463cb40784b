// Sort, pairing, other logbooks, backup and copy through the window's menus.
#include "ui/banc.h"

#include <algorithm>

namespace orvalis::essais {
namespace {

std::string Inverse(const std::string& octets) {
    std::string sortie;
    for (std::size_t i = octets.size(); i > 0; i -= kTailleFiche)
        sortie += octets.substr(i - kTailleFiche, kTailleFiche);
    return sortie;
}

TEST(Maintenance, ClasserMontreEtGele) {
    Banc banc(Inverse(Contacts(60)) + Fin());
    banc.Faire("MnuClasser");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(60) + Fin()), "");
    EXPECT_EQ(S(banc.Texte("LabEtat_1 LabEtat_2 LabEtat_3 ClasserLab NoFicheLab")),
              "60|Heures|1| Terminé | Fiche N° 60 ");
    for (const char* cache : {"PictClasser", "PictRech", "PictContacts", "BtActiveRech"})
        EXPECT_FALSE(banc.Visible(cache)) << cache;
    EXPECT_TRUE(banc.Actif("ListeLog") && banc.Actif("TxtField_1"));
}

TEST(Maintenance, JumelageAvecSauvegarde) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("AUTRE.Vek", Contacts(2) + Fin("IN88AA"));
    banc.Faire("MnuJumeler");
    EXPECT_EQ(S(banc.Texte("LabPj_2")), "F5ABC.Vek");
    EXPECT_FALSE(banc.Actif("ListeLog"));
    banc.Cliquer("BtPjSauvegarder"); // cancelled
    EXPECT_TRUE(banc.Actif("BtPjSauvegarder"));
    const auto dossier = banc.Chemin("VekSave");
    ASSERT_EQ(banc.systeme.demandes.size(), 1U);
    EXPECT_TRUE(banc.systeme.demandes[0].enregistrer);
    EXPECT_EQ(banc.systeme.demandes[0].dossier, dossier);
    EXPECT_EQ(banc.systeme.demandes[0].nomPropose, QStringLiteral("F5ABC.Vek"));
    banc.systeme.fichierChoisi = dossier + QStringLiteral("/F5ABC.Vek");
    banc.Faire("BtPjSauvegarder");
    EXPECT_FALSE(banc.Actif("BtPjSauvegarder"));
    EXPECT_EQ(banc.Lire("VekSave/F5ABC.Vek"), Contacts(3) + Fin());
    banc.systeme.fichierChoisi = banc.Chemin("AUTRE.Vek");
    banc.Faire("BtPjumeler");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Contacts(2) + Fin()), "");
    EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Fiche N° 5 ");
    EXPECT_TRUE(banc.Visible("PJumelage"));
    banc.Faire("BtPjAnnuler");
    EXPECT_EQ(S(banc.Foyer()), "ListeLog");
}

TEST(Maintenance, AutreCahierEnLectureSeulePuisRetour) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("F6XYZ.Vek", Contacts(30) + Fin("IN88AA"));
    banc.systeme.fichierChoisi = banc.Chemin("F6XYZ.Vek");
    // Cancelled, the dialog leaves even a question that waits as it was.
    const QString choisi = std::exchange(banc.systeme.fichierChoisi, QString());
    banc.Faire("TxtField_12 =luc MnuAutreF");
    EXPECT_TRUE(banc.Visible("FraMsgFiche"));
    banc.Faire("FraCmdNon");
    banc.systeme.fichierChoisi = choisi;
    banc.Faire("MnuAutreF");
    EXPECT_EQ(S(banc.Texte("LabJournal")), "F6XYZ (lecture seule) : 30 contacts");
    EXPECT_FALSE(banc.Actif("BtNewQSO") || banc.Actif("BtKillFiche"));
    EXPECT_TRUE(banc.Actif("BtFermerLog"));
    EXPECT_FALSE(banc.Actif("MnuJumeler") || banc.Actif("MnuSauver"));
    banc.Faire("TxtField_6 =CW");
    EXPECT_FALSE(banc.Visible("FraMsgFiche"));
    // Lists and searches do not give the buttons back.
    banc.Faire("BtActiveRech BtContactsFermer");
    EXPECT_FALSE(banc.Actif("BtNewQSO") || banc.Actif("BtKillFiche"));
    EXPECT_EQ(banc.Lire("F6XYZ.Vek"), Contacts(30) + Fin("IN88AA"));
    banc.Faire("MnuCourantF");
    EXPECT_EQ(S(banc.Texte("LabJournal")), "F5ABC : 3 contacts");
    EXPECT_TRUE(banc.Actif("BtNewQSO") && banc.Actif("BtKillFiche"));
    banc.Faire("BtNewQSO");
    EXPECT_EQ(S(banc.Texte("TxtField_16")), "JN04SD");
    EXPECT_FALSE(banc.Actif("MnuAutreF"));
}

TEST(Maintenance, ErreursDesAutresFichiersSeDisentSansRienPerdre) {
    Banc banc(Contacts(3) + Fin());
    struct Cas {
        const char *menu, *fichier, *message;
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
        banc.systeme.fichierChoisi = banc.Chemin(c.fichier);
        banc.Menu(c.menu);
        EXPECT_TRUE(banc.Averti(c.message));
        EXPECT_EQ(banc.Journal(), Contacts(3) + Fin());
        EXPECT_FALSE(banc.systeme.codeDeFin);
    }
    EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Fiche N° 3 ") << "the cut one is open";
    // A disk that is full at the first byte.
    banc.systeme.fichierChoisi = QStringLiteral("/dev/full");
    banc.Faire("MnuCopieSurDisque");
    EXPECT_TRUE(banc.Averti("le disque est plein"));
}

} // namespace
} // namespace orvalis::essais
