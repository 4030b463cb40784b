// Labels and printed pages through the real window; the files are read back after each step.
#include "print/enregistreur.h"
#include "ui/banc.h"
#include "ui/bureau/imprimante_qt.h"

#include <QPrinter>

#include <fcntl.h>

namespace orvalis::operateur::qsl {

const std::string kLibre = aides::Brute({{0, "***"}}, 106);

// Two contacts, the sent QSL of each as given.
std::string Cahier(std::string_view maQsl1, std::string_view maQsl2) {
    std::string octets =
        Contacts(1) + Octets("F6XYZ/P|01/02/26|09:05|09:10|14.250|SSB|59+20dB||||||"
                             "BÉAM 3 EL      DL9ABC");
    octets.replace(143, maQsl1.size(), maQsl1);
    octets.replace(kTailleFiche + 143, maQsl2.size(), maQsl2);
    return octets + Fin();
}

// Where the logbook, then the sheet differ from what they should be; `feuille` begins the sheet.
std::string Ecart(const Banc& banc, const std::string& cahier, std::string feuille) {
    while (feuille.size() < 16 * kLibre.size())
        feuille += kLibre;
    return Difference(banc.OctetsCahier(), cahier) +
           Difference(banc.Lire("FeuilleQSL.txt"), feuille);
}

const std::string kEtiquetteXyz = "F6XYZ/P        F5ABC          B\311AM 3 EL      BUREAU         "
                                  "01/02/2609:0514.250    59+20dB SSB  3         ";
const std::string kEtiquette1 = "F1QSO          F5ABC                         F6?X           "
                                "12/05/0200:0114.210            SSB  2         ";

TEST(Qsl, VieDUneEtiquette) {
    const std::string autre = Contacts(2).substr(kTailleFiche);
    Banc banc(autre + Cahier("", ""));
    // With the mouse and mnemonics.
    banc.Suivre(R"(
 press on box 14 : clic TxtField_14 -> actif PictFeuilleQSL; caché PictFiche; grisé PictListe
 a fresh label : -> NrTag FLdText_8 = Etiquette N° 1|BÉAM 3 EL      DL9ABC; caché BtValidQSL
 meanwhile : -> grisé MnuCourantF MnuClasser MnuImpPage MnuDoublons MnuVirginTags
     MnuGestionFeuilleQSL; actif MnuQuitter MnuEditLocator MnuVoir
 label as stored, not as typed : -> EtiquetteApercu contient
     "  Confirming QSO with  F6XYZ/P\nVia QSL Manager BÉAM 3 EL\nTO"; LabApercu =
     "L'en-tête ne porte pas votre indicatif, F5ABC.\nAprès « Via QSL Manager » il y a
     une remarque, pas un manager."
 own callsign : touche Alt+M -> FLdText_7 foyer = F5ABC|FLdText_7; LabApercu =
     "Après « Via QSL Manager » il y a une remarque, pas un manager."
 heading : entree 1 -> actif BtValidQSL; foyer = FLdText_8
 stored : touche Alt+B, Alt+V -> caché PictFeuilleQSL; actif PictFiche PictListe
 marked : -> TxtField_14 foyer ligne = En cours|ListeLog|3/3
 the next one : menu MnuGestionFeuilleQSL; clic BtTag_5 -> FLdText_1 FLdText_7 = |F5ABC
 not now : touche Alt+Q -> caché PictFeuilleQSL)");
    EXPECT_EQ(Ecart(banc, autre + Cahier("", "En cours"), kEtiquetteXyz), "");
    // With the keyboard alone; the header is that of the last label.
    banc.Suivre("F2 in box 14 : ligne 2; foyer TxtField_14; touche F2 "
                "-> FLdText_7 foyer = F5ABC|OptBureau\n"
                "manager : touche Return; colle FLdText_9 f6 -> actif OptBureau\n"
                "bureau instead : touche Return -> coché OptBureau; FLdText_9 =\n"
                "manager again : colle FLdText_9 f6\u0002Ωx -> actif OptBureau; FLdText_9 = F6?X\n"
                "Enter : foyer FLdText_9; touche Enter -> foyer = BtValidQSL\n"
                "stored : touche Enter -> caché PictFeuilleQSL");
    EXPECT_EQ(Ecart(banc, autre + Cahier("En cours", "En cours"), kEtiquetteXyz + kEtiquette1), "");

    // Another day what was prepared is there; without the first contact its numbers are stale. A
    // label is reviewed, then taken off the sheet.
    banc.fenetre.reset();
    banc.Ecrire("F5ABC.Vek", Cahier("En cours", "En cours"));
    banc.Ouvrir();
    std::vector<std::string> operations;
    banc.systeme.imprimante = [&] { return std::make_unique<Enregistreur>(operations); };
    banc.Suivre(R"(
 sheet : menu MnuGestionFeuilleQSL -> caché EtiquetteApercu; EtiquetteVue_3 =;
     EtiquetteVue_1 contient 59+20dB\nSSB; BtTag_1 BtTag_3 foyer = F6XYZ/P [1]|Etiquette  [3] libre|BtChoix_1
 on paper : clic BtPrintQSL; touche Return -> foyer = BtChoix_1)");
    EXPECT_EQ(S(banc.Controle<QWidget>("BtChoix_1")->accessibleName()), "Effacer : F6XYZ/P [1]");
    banc.Suivre(R"(
 review : touche Return -> FLdText_5 FLdText_6 = 59+20dB|SSB; lecture FLdText_7;
     EtiquetteApercu contient 59+20dB\nSSB; grisé BtIndicatifQSL
 the way out : -> caché BtQuitQSL; foyer = BtLeaveQSL
 taken off : touche Alt+S -> BtTag_1 EtiquetteVue_1 = Etiquette  [1] libre|;
     caché EtiquetteApercu)");
    EXPECT_THAT(operations, testing::IsSupersetOf(Liste(R"(
 R 300 400 5500 2180; T 1150 420 10g Comic sans MS F5ABC  Confirming QSO with  F6XYZ/P;
 T 2400 700 10g Comic sans MS Via QSL Manager BÉAM 3 EL; T 824 1320 8g Courrier F6XYZ/P;
 T 1866 1320 8g Courrier 01/02/26; T 2615 1320 8g Courrier 09:05;
 T 3307 1320 8g Courrier 14.250; T 4104 1320 8g Courrier 59+20dB;
 T 4956 1320 8g Courrier SSB; T 700 1650 8g Courrier Pse / Tnx  QSL via  BUREAU;)")));
    const std::string liberee = aides::Brute({{0, "***"}, {96, "3"}}, 106); // its number stays
    EXPECT_EQ(Ecart(banc, Cahier("En cours", ""), liberee + kEtiquette1), "");

    // Withdrawn places are skipped and never written. Printed: cancelled, failed, to be seen again.
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    banc.systeme.imprimante = nullptr;
    banc.Suivre(R"(
 withdrawn : clic BtChoix_1 -> BtChoix_1 NrTag = Libérer|Etiquette N° 3; grisé BtTag_1
 restored : clic BtRestore -> NrTag = Etiquette N° 1; caché BtRestore
 print cancelled : clic BtPrintQSL -> caché PictCtrlImpression)");
    banc.systeme.imprimante = [&pdf] { return std::make_unique<ImprimanteQt>(pdf); };
    pdf.setOutputFileName(QStringLiteral("/dev/full"));
    banc.Suivre("print failed : clic BtPrintQSL -> caché PictCtrlImpression; averti = Impossible "
                "d'écrire le fichier PDF « /dev/full ». Choisissez un autre fichier par "
                "« Configurer imprimante ».");
    pdf.setOutputFileName(banc.Chemin("essai.pdf"));
    banc.Suivre(R"(
 printed : clic BtPrintQSL; touche Alt+Q, Alt+I, Alt+V refusé -> actif PictFeuilleQSL
     PictCtrlImpression; grisé BtChoix_2 MnuVoir; foyer = BtCtrl_Revoir
 to be seen again : touche Return -> caché PictCtrlImpression)");
    EXPECT_TRUE(banc.Lire("essai.pdf").starts_with("%PDF"));
    EXPECT_EQ(Ecart(banc, Cahier("En cours", ""), liberee + kEtiquette1), "");

    // For good, once the own logbook is on show.
    operations.clear();
    banc.systeme.imprimante = [&] { return std::make_unique<Enregistreur>(operations); };
    banc.Ecrire("AUTRE.Vek", Contacts(1) + Fin());
    banc.Suivre("another logbook : touche Alt+Q; fichier AUTRE.Vek; menu MnuAutreF, "
                "MnuGestionFeuilleQSL; clic BtPrintQSL -> averti = \"Un autre cahier est "
                "ouvert\u00A0: avant d'imprimer les étiquettes, rouvrez celui de F5ABC "
                "(«\u00A0Fichier\u00A0», «\u00A0Ouvrir Fichier courant\u00A0»).\"; caché "
                "PictCtrlImpression; foyer = BtPrintQSL");
    EXPECT_TRUE(operations.empty());
    banc.Suivre("reopened : touche Alt+Q; menu MnuCourantF, MnuGestionFeuilleQSL\n"
                "perfect : clic BtPrintQSL; touche Alt+T -> caché PictFeuilleQSL; "
                "PageText1 contient 21/11/26");
    EXPECT_THAT(operations,
                testing::IsSupersetOf({"R 6100 400 11300 2180", // place 2
                                       "T 6500 1650 8g Courrier Pse / Tnx  QSL via  F6?X"}));
    EXPECT_EQ(Ecart(banc, Cahier("21/11/26", ""), liberee), "");
}

// A label of nobody's, which goes with its sheet while it is reviewed.
TEST(Qsl, UneFeuilleQuiDisparait) {
    const std::string cahier = Cahier("", "");
    Banc banc(cahier);
    banc.Suivre("nobody's : menu MnuGestionFeuilleQSL; clic BtChoix_1, BtTag_5; foyer FLdText_11; "
                "valide 2, f1zzz -> FLdText_10 FLdText_11 = F1ZZZ|2\n"
                "stored : touche Alt+V -> averti = \"Etiquette N° 2 (F1ZZZ)\u00A0: aucune fiche du "
                "cahier ne lui correspond, aucune n'a été modifiée.\"\n"
                "review : menu MnuGestionFeuilleQSL; touche Return -> foyer = BtLeaveQSL");
    banc.Ecrire("FeuilleQSL.txt", "");
    banc.Suivre("emptied : touche Alt+S -> averti = \"La feuille d'étiquettes "
                "«\u00A0~/FeuilleQSL.txt\u00A0» avait disparu\u00A0: en voici une neuve. N'y sont "
                "plus\u00A0: F1ZZZ. Rien n'a été écrit ni imprimé.\"; caché BtDelQSL BtPrintQSL; "
                "actif PictFeuilleQSL; foyer BtChoix_1 = BtChoix_2|Retirer");
    EXPECT_EQ(Ecart(banc, cahier, ""), "");
    std::filesystem::remove(banc.Dossier() / "FeuilleQSL.txt");
    std::filesystem::create_directory(banc.Dossier() / "FeuilleQSL.txt");
    banc.Suivre("not to be had : clic BtTag_5; valide f1zzz; touche Alt+V -> averti contient c'est "
                "un dossier; FLdText_1 = F1ZZZ\n"
                "given up : touche Alt+Q -> caché PictFeuilleQSL");
}

TEST(Qsl, LeServiceAttend) {
    const std::string cahier = Cahier("OK", "");
    Banc banc(cahier);
    banc.Ecrire("F6XYZ.Vek", Contacts(2) + Fin());
    int impressions = 0;
    banc.systeme.imprimante = [&impressions] { return ++impressions, nullptr; };
    // The command of the menu, then a press on box 14.
    banc.Suivre(R"(
 idle : menu MnuVirginTags, MnuGestionFeuilleQSL -> actif PictFeuilleQSL
 arrows : foyer BtTag_1; touche Down, Down, Right -> foyer = BtTag_6
 none behind the edge : touche Right -> foyer = BtTag_6
 past a grey one : clic BtChoix_4; foyer BtTag_6; touche Up, Up -> foyer = BtChoix_2
 Escape : clic BtChoix_4; touche Esc -> caché PictFeuilleQSL
 again : menu MnuGestionFeuilleQSL -> actif PictFeuilleQSL
 idle, press : touche Alt+Q; clic TxtField_14 -> actif PictFeuilleQSL
 no correction : touche Alt+Q -> lecture TxtField_14
 MQSL not empty : ligne 1; clic TxtField_14 -> caché PictFeuilleQSL
 but corrected : valide OUI; menu MnuGestionFeuilleQSL refusé -> actif FraMsgFiche
 unanswered, press : ligne 2; clic TxtField_12; valide luc; clic TxtField_14 -> caché PictFeuilleQSL
 deletion : clic FraCmdNon, BtKillFiche; menu MnuGestionFeuilleQSL -> caché PictFeuilleQSL
 pairing : clic FraCmdNon; menu MnuJumeler, MnuVirginTags, MnuGestionFeuilleQSL
     -> caché PictFeuilleQSL
 another logbook : clic BtPjAnnuler; fichier F6XYZ.Vek; menu MnuAutreF, MnuGestionFeuilleQSL
     -> actif PictFeuilleQSL
 another, press : touche Alt+Q; clic TxtField_14 -> caché PictFeuilleQSL
 entry : menu MnuCourantF; clic BtNewQSO; menu MnuGestionFeuilleQSL refusé
 entry, press : clic TxtField_14 -> caché PictFeuilleQSL)");
    EXPECT_EQ(Ecart(banc, cahier, "") + std::to_string(impressions), "1");
}

// A blank page printed leaves the page blank until one is shown again.
TEST(Impression, PagesFeuillesEtReglage) {
    Banc banc(Contacts(30) + Fin());
    std::vector<std::string> operations;
    banc.systeme.imprimante = [&] { return std::make_unique<Enregistreur>(operations); };
    const auto ligne26 = testing::Contains("T 160 1920 8 MS sans Serif 000026");
    banc.Suivre("page : menu MnuImpPage -> LabConseil contient Page 2 imprimée");
    EXPECT_THAT(operations, ligne26);
    banc.Suivre("blank page : menu MnuImpPageVierge");
    EXPECT_THAT(operations, testing::Not(ligne26));
    operations.clear();
    banc.Suivre("now blank : menu MnuImpPage -> LabConseil contient Page vierge imprimée");
    EXPECT_THAT(operations, testing::AllOf(testing::Contains("FIN"), testing::Not(ligne26)));
    banc.Suivre(R"(
 row of the sheet : rangee 2 -> TxtField_1 ligne = F27QSO|2/5
 shown again : clic CmdSensBas; menu MnuImpPage)");
    EXPECT_THAT(operations, ligne26);
    banc.Suivre("blank labels : menu MnuVirginTags, MnuConfigImp "
                "-> caché PictCtrlImpression; demandes = imprimante");
    EXPECT_THAT(
        operations,
        testing::IsSupersetOf({"R 6100 14260 11300 16040", // place 16
                               "T 500 420 10g Comic sans MS  F5ABC   Confirming QSO with"}));
#ifndef _WIN32
    // The file that is open answers no reads any more.
    for (const auto& ouvert : std::filesystem::directory_iterator("/proc/self/fd"))
        if (std::filesystem::read_symlink(ouvert).filename() == "F5ABC.Vek")
            ::dup2(::open("/dev/null", O_WRONLY), std::stoi(ouvert.path().filename()));
    banc.Suivre("logbook unreadable : menu MnuImpPage -> averti contient F5ABC.Vek");
    EXPECT_EQ(banc.systeme.codeDeFin, 1);
#endif
}

} // namespace orvalis::operateur::qsl
