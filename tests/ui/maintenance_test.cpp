// Sort, pairing, other logbooks, backup and copy through the window's menus.
#include "ui/banc.h"

namespace orvalis::operateur {
namespace {

TEST(Maintenance, ClasserMontreEtGele) {
    Banc banc(Contacts(60).substr(30 * kTailleFiche) + Contacts(30) + Fin());
    banc.Suivre({
        {"MnuClasser", "LabEtat_1 LabEtat_2 LabEtat_3 ClasserLab NoFicheLab",
         "60|Heures|1| Terminé | Fiche N° 60 "},
        {"", "?PictClasser ?PictRech ?PictContacts ?BtActiveRech ?ListeLog ?TxtField_1",
         "C|C|C|C|A|A"},
    });
    EXPECT_EQ(Difference(banc.Journal(), Contacts(60) + Fin()), "");
}

TEST(Maintenance, JumelageAvecSauvegarde) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("AUTRE.Vek", Contacts(2) + Fin("IN88AA"));
    banc.Suivre({
        {"MnuJumeler", "LabPj_2 ?ListeLog", "F5ABC.Vek|G"},
        {"BtPjSauvegarder", "?BtPjSauvegarder !", "A|>|~/VekSave|F5ABC.Vek"}, // cancelled
        {"<VekSave/F5ABC.Vek BtPjSauvegarder", "?BtPjSauvegarder", "G"},
        {"<AUTRE.Vek BtPjumeler", "NoFicheLab ?PJumelage", " Fiche N° 5 |A"},
        {"BtPjAnnuler", "@", "ListeLog"},
    });
    EXPECT_EQ(banc.Lire("VekSave/F5ABC.Vek"), Contacts(3) + Fin());
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Contacts(2) + Fin()), "");
}

TEST(Maintenance, AutreCahierEnLectureSeulePuisRetour) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("F6XYZ.Vek", Contacts(30) + Fin("IN88AA"));
    banc.Suivre({
        // Cancelled, the dialog leaves even a question that waits as it was.
        {"TxtField_12 =luc MnuAutreF", "?FraMsgFiche", "A"},
        {"FraCmdNon <F6XYZ.Vek MnuAutreF",
         "LabJournal ?BtNewQSO ?BtKillFiche ?BtFermerLog ?MnuJumeler ?MnuSauver",
         "F6XYZ (lecture seule) : 30 contacts|G|G|A|G|G"},
        {"TxtField_6 =CW", "?FraMsgFiche", "C"},
        // Lists and searches do not give the buttons back.
        {"BtActiveRech BtContactsFermer", "?BtNewQSO ?BtKillFiche", "G|G"},
        {"MnuCourantF", "LabJournal ?BtNewQSO ?BtKillFiche", "F5ABC : 3 contacts|A|A"},
        {"BtNewQSO", "TxtField_16 ?MnuAutreF", "JN04SD|G"},
    });
    EXPECT_EQ(banc.Lire("F6XYZ.Vek"), Contacts(30) + Fin("IN88AA"));
}

TEST(Maintenance, ErreursDesAutresFichiersSeDisentSansRienPerdre) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("coupe.Vek", Contacts(2) + "F1");
    std::filesystem::create_directory(banc.Dossier() / "VekSave");
    banc.Suivre({
        {"<absent.Vek MnuAutreF", "",
         "Impossible d'ouvrir le fichier « ~/absent.Vek » : le fichier n'existe pas."},
        {"<absent/copie.Vek MnuSauver", "",
         "Impossible de créer le fichier « ~/absent/copie.Vek » : le dossier n'existe pas."},
        {"<VekSave MnuCopieSurDisque", "",
         "Impossible de créer le fichier « ~/VekSave » : c'est un dossier, pas un fichier."},
        {"</dev/full MnuCopieSurDisque", "",
         "Impossible d'écrire dans le fichier « /dev/full » : le disque est plein."},
        {"<coupe.Vek MnuAutreF", "NoFicheLab",
         " Fiche N° 3 |Le cahier « ~/coupe.Vek » est peut-être abîmé : il n'a pas d'enregistrement "
         "de fin et sa longueur n'est pas un nombre entier de fiches."},
    });
    EXPECT_EQ(banc.Journal(), Contacts(3) + Fin());
    EXPECT_FALSE(banc.systeme.codeDeFin);
}

} // namespace
} // namespace orvalis::operateur
