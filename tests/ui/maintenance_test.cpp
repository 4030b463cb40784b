// Sort, pairing, other logbooks, backup and copy through the window's menus.
#include "ui/banc.h"

#include <QMouseEvent>

namespace orvalis::operateur::maintenance {

TEST(Maintenance, ClasserMontreEtGele) {
    Banc banc(Contacts(60).substr(30 * kTailleFiche) + Contacts(30) + Fin());
    banc.Suivre(R"(
 steps : menu MnuClasser -> LabEtat_1 LabEtat_2 LabEtat_3 = 60|Heures|1
 sorted : -> ClasserLab NoFicheLab = " Terminé | Fiche N° 60 "
 afterwards : -> caché PictClasser PictRech PictContacts BtActiveRech; actif ListeLog PictFiche)");
    EXPECT_EQ(Difference(banc.OctetsCahier(), Contacts(60) + Fin()), "");
}

TEST(Maintenance, JumelageAvecSauvegarde) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("AUTRE.Vek", Contacts(2) + Fin("IN88AA"));
    banc.Suivre(R"(
 opened : menu MnuJumeler -> LabPj_2 = F5ABC.Vek; grisé ListeLog
 no : clic BtPjSauvegarder -> demandes = enregistrer|~/VekSave|F5ABC.Vek; actif BtPjSauvegarder
 onto itself : fichier F5ABC.Vek; clic BtPjSauvegarder -> actif BtPjSauvegarder; averti =
     "Le fichier « ~/F5ABC.Vek » est le cahier ouvert lui-même : rien n'a été copié. Choisissez
     un autre nom ou un autre dossier."
 backup : fichier VekSave/F5ABC.Vek; clic BtPjSauvegarder -> grisé BtPjSauvegarder
 pairing : fichier AUTRE.Vek; clic BtPjumeler -> NoFicheLab = " Fiche N° 5 "; actif PJumelage
 a question beside it : clic TxtField_12; valide luc; touche Alt+N -> foyer = BtPjumeler
 closed : clic BtPjAnnuler -> foyer = ListeLog
 Escape : menu MnuJumeler; clic TxtField_12; valide luc; touche Esc
     -> caché FraMsgFiche; foyer = BtPjSauvegarder
 Escape again : touche Esc -> caché PJumelage; foyer = ListeLog
 and no more : touche Esc -> actif BtFermerLog)");
    EXPECT_EQ(banc.Lire("VekSave/F5ABC.Vek"), Contacts(3) + Fin());
    EXPECT_EQ(Difference(banc.OctetsCahier(), Contacts(3) + Contacts(2) + Fin()), "");
}

TEST(Maintenance, AutreCahierEnLectureSeulePuisRetour) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("F6XYZ.Vek", Contacts(30) + Fin("IN88AA"));
    banc.Suivre(R"(
 cancelled, a question waits on : clic TxtField_12; valide luc; menu MnuAutreF -> actif FraMsgFiche
 another logbook : clic FraCmdNon; fichier F6XYZ.Vek; menu MnuAutreF
     -> LabJournal = "F6XYZ (consultation) : 30 contacts"; actif BtFermerLog; caché LabDossier;
     grisé BtNewQSO BtKillFiche MnuJumeler MnuSauver
 for reading only : clic TxtField_6; valide CW -> caché FraMsgFiche)");
    auto* boite = banc.Controle<QLineEdit>("TxtField_6");
    for (const auto& [type, x] :
         {std::pair{QEvent::MouseButtonPress, 0}, {QEvent::MouseMove, 99}}) {
        QMouseEvent evenement(type, QPointF(x, 9), boite->mapToGlobal(QPointF(x, 9)),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(boite, &evenement);
    }
    EXPECT_EQ(boite->selectedText(), u"SSB") << "to be copied";
    banc.Suivre(R"(
 still : clic BtActiveRech, BtContactsFermer -> grisé BtNewQSO BtKillFiche
 the own one : menu MnuCourantF -> LabJournal = "F5ABC : 3 contacts"; actif BtNewQSO BtKillFiche
 the list of another is gone : clic BtActiveRech; fichier F6XYZ.Vek; menu MnuAutreF -> ContactsListe =
 leaving the pairing : menu MnuCourantF, MnuJumeler; tape x; menu MnuCourantF -> caché PJumelage
 a text searched : foyer RechText; tape f6; menu MnuCourantF -> RechText =
 entry : clic BtNewQSO -> TxtField_16 = JN04SD; grisé MnuAutreF)");
    EXPECT_EQ(banc.Lire("F6XYZ.Vek"), Contacts(30) + Fin("IN88AA"));
}

TEST(Maintenance, ErreursDesAutresFichiersSeDisentSansRienPerdre) {
    Banc banc(Contacts(3) + Fin());
    banc.Ecrire("coupe.Vek", Contacts(2) + "F1");
    std::filesystem::create_directory(banc.Dossier() / "VekSave");
    banc.Ecrire("VekSave/F5ABC.Vek", Contacts(2) + Fin());
    banc.Suivre(R"(
 opened, missing : fichier absent.Vek; menu MnuAutreF -> averti =
     "Impossible d'ouvrir le fichier « ~/absent.Vek » : le fichier n'existe pas."
 saved into no folder : fichier absent/copie.Vek; menu MnuSauver -> averti =
     "Impossible de créer le fichier « ~/absent/copie.Vek » : le dossier n'existe pas."
 copied onto a folder : fichier VekSave; menu MnuCopieSurDisque -> averti =
     "Impossible de créer le fichier « ~/VekSave » : c'est un dossier, pas un fichier."
 copied to a device : fichier /dev/full; menu MnuCopieSurDisque -> averti =
     "Impossible de créer le fichier « /dev/full » : c'est un périphérique ou un tube, pas un
     fichier."
 opened, damaged : fichier coupe.Vek; menu MnuAutreF -> NoFicheLab = " Fiche N° 3 "; averti =
     "Le cahier « ~/coupe.Vek » est peut-être abîmé : il n'a pas d'enregistrement de fin
     et sa longueur n'est pas un nombre entier de fiches. Copiez-le à l'abri, puis vérifiez ses
     derniers contacts."
 one named like the own : fichier VekSave/F5ABC.Vek; menu MnuAutreF
     -> LabJournal = "F5ABC : 2 contacts"; LabDossier = "Autre cahier, du dossier ~/VekSave"
 the own one again : menu MnuCourantF -> caché LabDossier)");
    EXPECT_EQ(banc.OctetsCahier(), Contacts(3) + Fin());
    EXPECT_FALSE(banc.systeme.codeDeFin);
}

#ifndef _WIN32
TEST(Maintenance, UnCahierProtegeNeSeClassePas) {
    Banc banc(Contacts(3) + Fin());
    const std::string octets = Contacts(60).substr(30 * kTailleFiche) + Contacts(30) + Fin();
    banc.Ecrire("F6XYZ.Vek", octets);
    std::filesystem::permissions(banc.Dossier() / "F6XYZ.Vek", std::filesystem::perms::owner_read);
    const aides::SansPrivileges root;
    banc.Suivre(R"(
 looked at : fichier F6XYZ.Vek; menu MnuAutreF -> ligne = 10/10
 not sorted : menu MnuClasser -> averti =
     "Ce cahier est protégé en écriture : il ne peut pas être classé."; actif ListeLog PictRech)");
    EXPECT_EQ(banc.Lire("F6XYZ.Vek"), octets);
    EXPECT_FALSE(banc.systeme.codeDeFin);
}
#endif

} // namespace orvalis::operateur::maintenance
