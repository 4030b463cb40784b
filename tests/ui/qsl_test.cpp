// Labels and printed pages through the real window; the files are read back after each step.
#include "print/enregistreur.h"
#include "print/imprimante_qt.h"
#include "ui/banc.h"
#include "ui/feuille_log.h"

#include <QLineEdit>
#include <QPrinter>

#include <gmock/gmock.h>

namespace orvalis::operateur {
namespace {

const std::string kLibre = aides::Brute({{0, "***"}}, 106);

// Two contacts, the sent QSL of each as given.
std::string Cahier(std::string_view maQsl1, std::string_view maQsl2) {
    std::string octets =
        Contacts(1) + Octets("F6XYZ/P|01/02/26|09:05|09:10|14.250|SSB|59+20dB||||||"
                             "BEAM 3 EL      DL9ABC");
    octets.replace(143, maQsl1.size(), maQsl1);
    octets.replace(kTailleFiche + 143, maQsl2.size(), maQsl2);
    return octets + Fin();
}

// Where the logbook, then the sheet differ from what they should be; `feuille` begins the sheet.
std::string Ecart(const Banc& banc, const std::string& cahier, std::string feuille) {
    while (feuille.size() < 16 * kLibre.size())
        feuille += kLibre;
    return Difference(banc.Journal(), cahier) + Difference(banc.Lire("FeuilleQSL.txt"), feuille);
}

const std::string kEtiquetteXyz = "F6XYZ/P        F5ABC          BEAM 3 EL      BUREAU         "
                                  "01/02/2609:0514.250    59+20dB SSB  3         ";
const std::string kEtiquette1 = "F1QSO          F5ABC                         F6?X           "
                                "12/05/0200:0114.210            SSB  2         ";

TEST(Qsl, VieDUneEtiquette) {
    const std::string autre = Contacts(2).substr(kTailleFiche);
    Banc banc(autre + Cahier("", ""));
    // With the mouse and mnemonics.
    banc.Suivre({
        {"TxtField_14", "?PictFeuilleQSL ?PictFiche ?PictListe", "A|C|G"},
        {"", "NrTag FLdText_8 ?BtValidQSL", "Etiquette N° 1|BEAM 3 EL      DL9ABC|C"},
        {"", "?MnuCourantF ?MnuClasser ?MnuImpPage ?MnuDoublons ?MnuVirginTags", "G|G|G|G|G"},
        {"", "?MnuGestionFeuilleQSL ?MnuQuitter ?MnuEditLocator ?MnuVoir", "G|A|A|A"},
        {"=F5ABC", "?BtValidQSL", "A"},
        {"^B ^V", "?PictFeuilleQSL ?PictFiche ?PictListe", "C|A|A"},
        {"", "TxtField_14 @ #ListeLog", "En cours|ListeLog|2/3"},
    });
    EXPECT_EQ(Ecart(banc, autre + Cahier("", "En cours"), kEtiquetteXyz), "");
    // With the keyboard alone; the header is that of the last label.
    banc.Suivre({
        {"#1 @TxtField_14 !F2", "FLdText_7 @", "F5ABC|OptBureau"},
        {"!Return FLdText_9+f6", "?OptBureau", "A"},
        {"!Return", "?OptBureau FLdText_9", "X|"},
        {"FLdText_9+f6\u0002Ωx", "?OptBureau FLdText_9", "A|F6?X"},
        {"@FLdText_9 !Enter", "@", "BtValidQSL"},
        {"!Enter", "?PictFeuilleQSL", "C"},
    });
    EXPECT_EQ(Ecart(banc, autre + Cahier("En cours", "En cours"), kEtiquetteXyz + kEtiquette1), "");

    // Another day what was prepared is there; without the first contact its numbers are stale. A
    // label is reviewed, then taken off the sheet.
    banc.fenetre.reset();
    banc.Ecrire("F5ABC.Vek", Cahier("En cours", "En cours"));
    banc.Ouvrir();
    banc.Suivre({
        {"MnuGestionFeuilleQSL", "BtTag_1 BtTag_3 @", "F6XYZ/P [1]|Etiquette  [3] libre|BtChoix_1"},
        {"!Return", "FLdText_5 FLdText_6 ?FLdText_7", "59+20dB|SSB|L"},
        {"", "?BtQuitQSL @", "C|BtLeaveQSL"},
        {"^S", "BtTag_1", "Etiquette  [1] libre"},
    });
    const std::string liberee = aides::Brute({{0, "***"}, {96, "3"}}, 106); // its number stays
    EXPECT_EQ(Ecart(banc, Cahier("En cours", ""), liberee + kEtiquette1), "");

    // Withdrawn places are skipped and never written. Printed: cancelled, failed, to be seen again.
    std::vector<std::string> operations;
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    banc.Suivre({
        {"BtChoix_1", "BtChoix_1 ?BtTag_1 NrTag", "Libérer|G|Etiquette N° 3"},
        {"BtRestore", "NrTag ?BtRestore", "Etiquette N° 1|C"},
        {"BtPrintQSL", "?PictCtrlImpression", "C"},
    });
    banc.systeme.imprimante = [&pdf] { return std::make_unique<ImprimanteQt>(pdf); };
    pdf.setOutputFileName(QStringLiteral("/dev/full"));
    banc.Suivre({{"BtPrintQSL", "?PictCtrlImpression",
                  "C|Impossible d'écrire le fichier PDF « /dev/full »."}});
    pdf.setOutputFileName(banc.Chemin("essai.pdf"));
    banc.Suivre({
        {"BtPrintQSL ^Q ^I ^V", "?PictFeuilleQSL ?PictCtrlImpression ?BtChoix_2 ?MnuVoir @",
         "A|A|G|G|BtCtrl_Revoir"},
        {"!Return", "?PictCtrlImpression", "C"},
    });
    EXPECT_TRUE(banc.Lire("essai.pdf").starts_with("%PDF"));
    EXPECT_EQ(Ecart(banc, Cahier("En cours", ""), liberee + kEtiquette1), "");

    // For good; then a label of nobody's.
    banc.systeme.imprimante = [&] { return std::make_unique<Enregistreur>(operations); };
    banc.Suivre({{"BtPrintQSL ^T", "?PictFeuilleQSL", "C"}});
    const QString page = banc.Controle<FeuilleLog>("PageText1")->toPlainText();
    EXPECT_TRUE(page.contains(Q("21/11/26")));
    EXPECT_THAT(operations,
                testing::IsSupersetOf({"R 6100 400 11300 2180", // place 2
                                       "T 6500 1650 8g Courrier Pse / Tnx  QSL via  F6?X"}));
    EXPECT_EQ(Ecart(banc, Cahier("21/11/26", ""), liberee), "");
    banc.Suivre({
        {"MnuGestionFeuilleQSL BtTag_5 @FLdText_11 =2 =f1zzz", "FLdText_10 FLdText_11", "F1ZZZ|2"},
        {"^V", "",
         "Etiquette N° 1 (F1ZZZ) : aucune fiche du cahier ne lui correspond, aucune n'a été "
         "modifiée."},
    });
}

TEST(Qsl, LeServiceAttend) {
    // A state and the gestures to it; whether the sheet opens from the menu and from the press on
    // box 14, and whether the card is under modification after that.
    const std::tuple<const char*, std::string, bool, bool, bool> cas[] = {
        {"idle", "", true, true, false},
        {"MQSL not empty", "#0", true, false, true},
        {"entry", "BtNewQSO", false, false, false},
        {"modification unanswered", "TxtField_12 =luc", false, false, true},
        {"deletion unanswered", "BtKillFiche", false, false, true},
        {"pairing", "MnuJumeler", false, false, true},
        {"contacts list", "BtActiveRech", true, true, false},
        {"another logbook", "<F6XYZ.Vek MnuAutreF", true, false, false},
        {"a copy of the own logbook", "<VekSave/F5ABC.Vek MnuAutreF", true, false, true},
    };
    for (const auto& [etat, gestes, menu, case14, modifiee] : cas) {
        SCOPED_TRACE(etat);
        const std::string cahier = Cahier("OK", "");
        Banc banc(cahier);
        std::filesystem::create_directory(banc.Dossier() / "VekSave");
        banc.Ecrire("VekSave/F5ABC.Vek", cahier);
        banc.Ecrire("F6XYZ.Vek", Contacts(2) + Fin());
        banc.Suivre({
            {gestes, "", ""},
            {"MnuGestionFeuilleQSL", "?PictFeuilleQSL", menu ? "A" : "C"},
            {menu ? "^Q" : "", "?PictFeuilleQSL", "C"},
            {"TxtField_14", "?PictFeuilleQSL", case14 ? "A" : "C"},
        });
        const QPalette palette = banc.Controle<QLineEdit>("TxtField_14")->palette();
        EXPECT_EQ(!case14 && palette.color(QPalette::Base) == QColor(255, 192, 192), modifiee);
        EXPECT_EQ(Ecart(banc, cahier, ""), "");
    }
}

// A blank page printed leaves the page blank until one is shown again.
TEST(Impression, PagesPlanchesEtReglage) {
    Banc banc(Contacts(30) + Fin());
    std::vector<std::string> operations;
    banc.systeme.imprimante = [&] { return std::make_unique<Enregistreur>(operations); };
    const auto ligne26 = testing::Contains("T 160 1920 8 MS sans Serif 000026");
    banc.Faire("MnuImpPage");
    EXPECT_THAT(operations, ligne26);
    banc.Faire("MnuImpPageVierge");
    EXPECT_THAT(operations, testing::Not(ligne26));
    operations.clear();
    banc.Faire("MnuImpPage");
    EXPECT_THAT(operations, testing::AllOf(testing::Contains("FIN"), testing::Not(ligne26)));
    banc.Suivre({{"%1", "TxtField_1 #ListeLog", "F27QSO|1/5"}});
    banc.Faire("CmdSensBas MnuImpPage");
    EXPECT_THAT(operations, ligne26);
    banc.Suivre({{"MnuVirginTags MnuConfigImp", "?PictCtrlImpression !", "C|imprimante"}});
    EXPECT_THAT(
        operations,
        testing::IsSupersetOf({"R 6100 14260 11300 16040", // place 16
                               "T 500 420 10g Comic sans MS  F5ABC   Confirming QSO with"}));
}

} // namespace
} // namespace orvalis::operateur
