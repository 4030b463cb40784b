// First run, start-up, damaged files, quitting.
#include "ui/banc.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace orvalis::operateur::demarrage {

// Takes these steps in the creation dialog, or in another, as soon as it is open, then cancels it.
void DansLaCreation(Banc& banc, const std::string& chemin, const char* nom = "Dlg1") {
    QTimer::singleShot(0, [&banc, chemin, nom] {
        auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr || dialogue->objectName() != Q(nom))
            return DansLaCreation(banc, chemin, nom);
        dialogue->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialogue));
        QCoreApplication::processEvents();
        banc.Suivre(chemin);
        if (dialogue->isVisible())
            dialogue->reject();
    });
}

TEST(Demarrage, PremierLancementCreeLeCahierPuisLOuvre) {
    Banc banc;
    DansLaCreation(banc, R"(
 Escape ends nothing : touche Esc -> Dlg1Fra2Text1 =
 no callsign : foyer Dlg1Fra2Text2; valide jn99zz -> Dlg1Fra2Text2 = JN99ZZ; foyer = Dlg1Fra2Text1
 no such locator : valide f5abc, jn99zz -> Dlg1Fra2Text2 = ERREUR; rouge Dlg1Fra2Text2
 the callsign as it stands : foyer Dlg1Fra2Text1; tape /p -> Dlg1Conseil contient , vide le locator, puis Locator
 the locator again : foyer Dlg1Fra2Text2; touche Ctrl+A
 advice : tape jn04sd -> Dlg1Conseil contient « JN04SD », puis Valider
 announced : entree 1 -> Dlg1Conseil contient crée le cahier F5ABCP.Vek; Dlg1Fra3Lab2 = "~/F5ABCP.Vek va être créé "; caché Dlg1Fra3Lab3
 a key too many : foyer Dlg1Fra2Text2; tape x -> actif Dlg1Fra3
 typed on : touche Backspace -> caché Dlg1Fra3
 held down : tape d; tient 3 -> actif Dlg1Fra3
 created : entree 1 ->
     demandes = " Création réalisée avec succès|   Le fichier F5ABCP.Vek est créé  \n\n")");
    banc.Ouvrir();
    EXPECT_EQ(banc.Lire("ParVel.cfg"), "\"F5ABC/P\",\"F5ABCP.Vek\",\"JN04SD\"\r\n");
    EXPECT_EQ(banc.Lire("F5ABCP.Vek"), "\\" + std::string(158, ' ') + "JN04SD");
    EXPECT_EQ(S(banc.fenetre->windowTitle().left(29)), " Cahier de Trafic de F5ABC/P ");
    EXPECT_FALSE(banc.systeme.codeDeFin);
}

TEST(Demarrage, CahierDejaLaSansParametres) {
    const std::string perdus = "Dlg1Fra3Lab3 contient \"Le fichier f5abc.VEK contient déjà ";
    for (const auto& [octets, avis] : aides::Textes{
             {Contacts(40) + Fin(), perdus + "40 contacts : le premier sera remplacé et les "
                                             "autres ne se verront plus.\""},
             {"F6XYZ", perdus + "1 contact : il sera remplacé.\""},
             {Fin(), "caché Dlg1Fra3Lab3"}}) {
        Banc banc;
        banc.Installer(octets);
        std::filesystem::remove(banc.Dossier() / "Parvel.cfg");
        std::filesystem::rename(banc.Dossier() / "F5ABC.Vek", banc.Dossier() / "f5abc.VEK");
        const Cahier autreProgramme = aides::Ouvrir(banc.Dossier() / "f5abc.VEK");
        DansLaCreation(banc, "told : valide f5abc, jn04sd -> " + avis);
        banc.Ouvrir();
        EXPECT_EQ(banc.Lire("f5abc.VEK"), octets);
    }
}

TEST(Demarrage, CahierCoupe) {
    Banc banc(Contacts(2) + "F1");
    banc.Suivre("warned : -> ligne = 3/3; averti contient F5ABC.Vek » est peut-être abîmé");
    banc.Suivre("again : menu MnuCourantF -> averti contient peut-être abîmé");
}

TEST(Demarrage, ToutArreterNeCreeRien) {
    Banc banc;
    DansLaCreation(banc,
                   "Enter again, its release lost : foyer Fr1CmdFermer; entree 1 -> caché "
                   "Fr1CmdFermer",
                   "Dlg2");
    DansLaCreation(banc, R"(
 eight characters : tape f5abc/mm -> Dlg1Conseil contient avec 8 caractères, Valider ne fera rien
 seven : touche Backspace -> Dlg1Conseil contient accepte « F5ABC/M », puis Locator
 coordinates : foyer BtAppelLocator; entree 1)");
    banc.Ouvrir();
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
    EXPECT_FALSE(std::filesystem::exists(banc.Dossier()));
}

TEST(Demarrage, CeQuiNeSOuvrePasFinitEnMessage) {
    const std::string incomplet =
        "Le fichier de paramètres « ~/Parvel.cfg » est incomplet : il doit contenir "
        "l'indicatif, le nom du cahier et le locator de la station. Corrigez sa ligne, par "
        "exemple : F5ABC,F5ABC.Vek,JN04SD";
    for (const auto& [parametres, message] : aides::Textes{
             {"\"F5ABC\",\"F5ABC.Vek\"\r\n", incomplet},
             {"", incomplet},
             {"\"F5ABC\",\"absent.Vek\",\"JN04SD\"\r\n",
              "Impossible d'ouvrir le fichier « ~/absent.Vek » : le fichier n'existe pas."},
             {"\"F5ABC\",\"F5ABC.Vek\",\"JN04SD\"\r\n",
              "Le cahier « ~/F5ABC.Vek » est déjà ouvert par un autre programme Orvalis. "
              "Fermez-le d'abord dans l'autre programme."}}) {
        Banc banc;
        banc.Installer(Fin());
        banc.Ecrire("Parvel.cfg", parametres);
        const Cahier autreProgramme = aides::Ouvrir(banc.Dossier() / "F5ABC.Vek");
        banc.Ouvrir();
        EXPECT_EQ(banc.systeme.codeDeFin, 1);
        banc.Suivre("said : -> averti = \"" + message + '"');
        EXPECT_FALSE(std::filesystem::exists(banc.Dossier() / "absent.Vek"));
        EXPECT_EQ(banc.Lire("Parvel.cfg"), parametres);
    }
}

TEST(Demarrage, HorlogeEtFin) {
    Banc banc;
    banc.systeme.maintenant.decalageUtc = 60;
    banc.Installer(Fin());
    banc.Ouvrir();
    EXPECT_THAT(S(banc.Controle<QWidget>("PageText1")->accessibleDescription()),
                testing::HasSubstr("Alt+N"));
    banc.Suivre(R"(
 clock : -> LabHeure LabDate LabUTC = "18:30:15|Samedi 21 Novembre 2026|heure locale, UTC+1";
     caché PictRech
 an empty logbook makes no database : menu MnuCreateMDB refusé -> demandes =
 companion : clic Horloge ->
     demandes = ~/Chronel.exe|~/Chronel|~/installe/Chronel;
     averti = "Impossible de démarrer « ~/Chronel.exe » : refus 1."
 end : clic BtFermerLog -> OrvalisLab03 = " Au revoir ")");
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
}

TEST(Demarrage, CompagnonsDuDossierPuisDeLInstallation) {
    Banc banc(Contacts(1) + Fin());
    std::filesystem::create_directory(banc.Dossier() / "installe");
    for (const auto& [fichier, octets, vu] : std::vector<std::array<std::string, 3>>{
             {"Chronel", "abîmé", "2:~/Chronel"},
             {"CHRONEL.EXE", "abîmé", "1:~/CHRONEL.EXE"},
             {"installe/Chronel", "abîmé", "1:~/CHRONEL.EXE"},
             {"installe/Chronel", "programme", "~/CHRONEL.EXE|~/Chronel|~/installe/Chronel"},
             {"Chronel", "programme", "~/CHRONEL.EXE|~/Chronel"},
             {"CHRONEL.EXE", "programme", "~/CHRONEL.EXE"},
             {"installe/dbOrvalis", "abîmé", "3:~/installe/dbOrvalis"},
             {"installe/dbOrvalis", "programme",
              "~/dbOrvalis.exe|~/dbOrvalis|~/installe/dbOrvalis"},
             {"dbORVALIS.exe", "programme", "~/dbORVALIS.exe"}}) {
        banc.Ecrire(fichier, octets);
        const bool horloge = fichier.find("db") == fichier.npos;
        const bool refus = vu[1] == ':';
        banc.Suivre(fichier + " : " + (horloge ? "clic Horloge" : "menu MnuCreateMDB") + " -> " +
                    (refus ? "averti = \"Impossible de démarrer « " + vu.substr(2) + " » : refus " +
                                 vu[0] + ".\""
                           : "demandes = " + vu));
    }
}

} // namespace orvalis::operateur::demarrage
