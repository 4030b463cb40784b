// Labels and printed pages through the real window; the files are read back after each step.
#include "core/boites.h"
#include "print/enregistreur.h"
#include "print/imprimante_qt.h"
#include "ui/banc.h"
#include "ui/feuille_log.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QTest>

namespace orvalis::essais {
namespace {

using Operations = std::vector<std::string>;

const std::string kLibre = essai::Brute({{0, "***"}}, 106);

std::string Feuille(std::initializer_list<std::string> premieres) {
    std::string octets;
    for (const std::string& etiquette : premieres)
        octets += etiquette;
    while (octets.size() < 16 * kLibre.size())
        octets += kLibre;
    return octets;
}

std::string Fiche3(std::string_view maQsl) {
    return Octets("F6XYZ/P|01/02/26|09:05|09:10|14.250|SSB|59+20dB||||||BEAM 3 EL      DL9ABC|" +
                  std::string(maQsl));
}

std::string Fiche1(std::string_view maQsl) {
    std::string octets = Contacts(1);
    return octets.replace(143, maQsl.size(), maQsl);
}

std::string Journal(std::string_view maQsl1, std::string_view maQsl3) {
    return Fiche1(maQsl1) + Contacts(2).substr(165) + Fiche3(maQsl3) + Fin();
}

std::string Etiquette(const std::string& texte) {
    static const std::vector<int> largeurs = {15, 15, 15, 15, 8, 5, 10, 8, 5, 10};
    std::string octets;
    const QStringList champs = Q(texte).split(QLatin1Char('|'));
    for (int i = 0; i < champs.size(); ++i)
        octets += S(champs[i].leftJustified(largeurs[static_cast<std::size_t>(i)]));
    return octets;
}

const std::string kEtiquette3 =
    Etiquette("F6XYZ/P|F5ABC|BEAM 3 EL|BUREAU|01/02/26|09:05|14.250|59+20dB|SSB|3");
const std::string kEtiquette1 = Etiquette("F1QSO|F5ABC||F6?X|12/05/02|00:01|14.210||SSB|1");

// A recorder that leaves its operations behind, or a printer that fails.
struct Rapporteur : Enregistreur {
    Rapporteur(Operations& vers, bool enPanne)
        : Enregistreur("Comic sans MS"), vers_(vers), enPanne_(enPanne) {}
    void TerminerDocument() override {
        if (enPanne_)
            throw ErreurImpression("L'imprimante ne répond pas.");
        Enregistreur::TerminerDocument();
        vers_ = operations;
    }

  private:
    Operations& vers_;
    bool enPanne_;
};

void BrancherImprimante(Banc& banc, Operations& vers, bool enPanne = false) {
    banc.systeme.imprimante = [&vers, enPanne] {
        return std::make_unique<Rapporteur>(vers, enPanne);
    };
}

bool Contient(const Operations& operations, const std::string& cherchee) {
    return std::find(operations.begin(), operations.end(), cherchee) != operations.end();
}

bool FeuilleMontree(Banc& banc) {
    EXPECT_NE(banc.Visible("PictFeuilleQSL"), banc.Visible("PictFiche"));
    EXPECT_NE(banc.Visible("PictFeuilleQSL"), banc.Actif("PictListe"));
    return banc.Visible("PictFeuilleQSL");
}

// Places the labels of contacts 3 (mouse and mnemonics) and 1 (keyboard alone).
void PlacerDeuxEtiquettes(Banc& banc) {
    banc.Faire("TxtField_14");
    ASSERT_TRUE(FeuilleMontree(banc));
    EXPECT_EQ(S(banc.Texte("NrTag FLdText_8")), "Etiquette N° 1|BEAM 3 EL      DL9ABC");
    EXPECT_FALSE(banc.Visible("BtValidQSL"));
    banc.Faire("=F5ABC");
    EXPECT_TRUE(banc.Visible("BtValidQSL"));
    banc.Faire("^B ^V");
    EXPECT_FALSE(FeuilleMontree(banc));
    EXPECT_EQ(S(banc.Texte("TxtField_14")), "En cours");
    EXPECT_EQ(S(banc.Foyer()), "ListeLog");
    EXPECT_EQ(banc.Controle<QListWidget>("ListeLog")->currentRow(), 2);
    EXPECT_EQ(Difference(banc.Journal(), Journal("", "En cours")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({kEtiquette3}));

    banc.Faire("#0");
    banc.Controle<QLineEdit>("TxtField_14")->setFocus();
    banc.Touche(Qt::Key_F2);
    EXPECT_EQ(S(banc.Texte("FLdText_7")), "F5ABC") << "the line typed on the last label";
    EXPECT_EQ(S(banc.Foyer()), "OptBureau");
    banc.Touche(Qt::Key_Return);
    EXPECT_TRUE(banc.Controle<QRadioButton>("OptBureau")->isChecked());
    banc.Controle<QLineEdit>("FLdText_9")->setFocus();
    banc.Controle<QLineEdit>("FLdText_9")->insert(QString::fromUtf8("f6\u0002Ωx"));
    EXPECT_EQ(S(banc.Texte("FLdText_9")), "F6?X");
    EXPECT_FALSE(banc.Controle<QRadioButton>("OptBureau")->isChecked());
    banc.Touche(Qt::Key_Enter);
    EXPECT_EQ(S(banc.Foyer()), "BtValidQSL");
    banc.Touche(Qt::Key_Enter);
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "En cours")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({kEtiquette3, kEtiquette1}));
}

TEST(Qsl, VieDUneEtiquette) {
    Banc banc(Journal("", ""));
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({}));
    ASSERT_NO_FATAL_FAILURE(PlacerDeuxEtiquettes(banc));

    // Another day: what was prepared is there. A label is reviewed, then taken off the sheet.
    banc.fenetre.reset();
    banc.Ouvrir();
    banc.Faire("MnuGestionFeuilleQSL");
    ASSERT_TRUE(FeuilleMontree(banc));
    EXPECT_EQ(S(banc.Texte("BtTag_1 BtTag_3")), "F6XYZ/P [1]|Etiquette  [3] libre");
    EXPECT_EQ(S(banc.Foyer()), "BtChoix_1");
    banc.Touche(Qt::Key_Return);
    EXPECT_EQ(S(banc.Texte("FLdText_5") + banc.Texte("FLdText_6")), "59+20dBSSB");
    EXPECT_TRUE(banc.Controle<QLineEdit>("FLdText_7")->isReadOnly());
    EXPECT_FALSE(banc.Visible("BtQuitQSL"));
    EXPECT_EQ(S(banc.Foyer()), "BtLeaveQSL");
    banc.Faire("^S");
    const std::string liberee = essai::Brute({{0, "***"}, {96, "3"}}, 106); // its number stays
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kEtiquette1}));

    // Withdrawn places are skipped and never written.
    banc.Faire("BtChoix_1");
    EXPECT_EQ(S(banc.Texte("BtChoix_1")), "Libérer");
    EXPECT_FALSE(banc.Actif("BtTag_1"));
    EXPECT_EQ(S(banc.Texte("NrTag")), "Etiquette N° 3");
    banc.Faire("BtRestore");
    EXPECT_EQ(S(banc.Texte("NrTag")), "Etiquette N° 1");
    EXPECT_FALSE(banc.Visible("BtRestore"));
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kEtiquette1}));

    // Printed: cancelled, failed, to be seen again, then for good.
    Operations operations;
    banc.Faire("BtPrintQSL");
    EXPECT_FALSE(banc.Visible("PictCtrlImpression")) << "cancelled";
    BrancherImprimante(banc, operations, true);
    banc.Faire("BtPrintQSL");
    EXPECT_FALSE(banc.Visible("PictCtrlImpression")) << "failed";
    EXPECT_TRUE(banc.Averti("L'imprimante ne répond pas."));
    BrancherImprimante(banc, operations);
    banc.Faire("BtPrintQSL");
    EXPECT_TRUE(Contient(operations, "R 6100 400 11300 2180")) << "place 2";
    EXPECT_TRUE(Contient(operations, "T 6500 1650 8g Courrier Pse / Tnx  QSL via  F6?X"));
    EXPECT_EQ(operations.back(), "FIN");
    for (const int touche : {Qt::Key_Q, Qt::Key_I, Qt::Key_V})
        banc.Touche(touche, Qt::AltModifier);
    EXPECT_TRUE(FeuilleMontree(banc) && banc.Visible("PictCtrlImpression"));
    EXPECT_FALSE(banc.Actif("BtChoix_2") || banc.Actif("MnuVoir"));
    EXPECT_EQ(S(banc.Foyer()), "BtCtrl_Revoir");
    banc.Touche(Qt::Key_Return);
    EXPECT_FALSE(banc.Visible("PictCtrlImpression"));
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "")), "") << "nothing is marked yet";

    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(banc.Chemin("essai.pdf"));
    banc.systeme.imprimante = [&pdf] { return std::make_unique<ImprimanteQt>(pdf); };
    banc.Faire("BtPrintQSL");
    EXPECT_TRUE(banc.Lire("essai.pdf").starts_with("%PDF"));
    banc.Faire("^T");
    EXPECT_FALSE(FeuilleMontree(banc));
    EXPECT_EQ(Difference(banc.Journal(), Journal("21/11/26", "")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kLibre}));
    EXPECT_TRUE(
        banc.fenetre->findChild<FeuilleLog*>()->toPlainText().contains(QStringLiteral("21/11/26")));
    EXPECT_TRUE(banc.systeme.avertissements.empty());
}

// After a deletion the numbers on the labels point one contact too far.
TEST(Qsl, NumeroPerimeNeToucheQueSonContact) {
    const auto contact = [](std::string_view csgn, std::string_view maQsl) {
        return Octets(std::string(csgn) + "|01/02/26|12:00|||||||||||" + std::string(maQsl));
    };
    const auto etiquette = [](std::string_view csgn, std::string_view numero) {
        return essai::Brute({{0, csgn}, {60, "01/02/26"}, {68, "12:00"}, {96, numero}}, 106);
    };
    const std::string feuille = Feuille({etiquette("F1AAA", "2"), etiquette("F1BBB", "3")});
    const std::string bbb = contact("F1BBB", "En cours");
    struct Cas {
        std::string avant, apres;
        std::size_t messages;
    };
    const std::vector<Cas> cas = {
        {contact("F1AAA", "En cours") + bbb, contact("F1AAA", "") + bbb, 0},
        {contact("F1ZZZ", "") + bbb, contact("F1ZZZ", "") + bbb, 1},
    };
    for (const Cas& c : cas) {
        Banc banc;
        banc.Installer(c.avant + Fin());
        banc.Ecrire("FeuilleQSL.txt", feuille);
        banc.Ouvrir();
        banc.Faire("MnuGestionFeuilleQSL BtChoix_1 BtDelQSL");
        EXPECT_EQ(Difference(banc.Journal(), c.apres + Fin()), "");
        EXPECT_EQ(banc.systeme.avertissements.size(), c.messages);
    }
}

TEST(Qsl, LeServiceAttend) {
    struct Cas {
        const char* nom;
        const char* fichier; ///< for the menus that ask for one
        const char* gestes;
        bool menu;     ///< the sheet opens from the menu
        bool case14;   ///< and from the press on box 14
        bool modifiee; ///< after which the card is under modification
    };
    const std::vector<Cas> cas = {
        {"idle", "", "", true, true, false},
        {"MQSL not empty", "", "#0", true, false, true},
        {"entry", "", "BtNewQSO", false, false, false},
        {"modification unanswered", "", "TxtField_12 =luc", false, false, true},
        {"deletion unanswered", "", "BtKillFiche", false, false, true},
        {"pairing", "", "MnuJumeler", false, false, true},
        {"contacts list", "", "BtActiveRech", true, true, false},
        {"another logbook", "F6XYZ.Vek", "MnuAutreF", true, false, false},
        {"a copy of the own logbook", "VekSave/F5ABC.Vek", "MnuAutreF", true, false, true},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        Banc banc(Journal("OK", ""));
        std::filesystem::create_directory(banc.Dossier() / "VekSave");
        banc.Ecrire("VekSave/F5ABC.Vek", banc.Journal());
        banc.Ecrire("F6XYZ.Vek", Contacts(2) + Fin());
        banc.systeme.fichierChoisi = banc.Chemin(c.fichier);
        banc.Faire(c.gestes);
        const std::string avant = banc.Journal();
        banc.Faire("MnuGestionFeuilleQSL");
        EXPECT_EQ(banc.Visible("PictFeuilleQSL"), c.menu);
        if (banc.Visible("PictFeuilleQSL")) {
            for (const char* menu : {"MnuCourantF", "MnuClasser", "MnuImpPage", "MnuDoublons",
                                     "MnuVirginTags", "MnuGestionFeuilleQSL"})
                EXPECT_FALSE(banc.Actif(menu)) << menu;
            for (const char* menu : {"MnuQuitter", "MnuEditLocator", "MnuVoir"})
                EXPECT_TRUE(banc.Actif(menu)) << menu;
            banc.Faire("^Q");
            EXPECT_FALSE(FeuilleMontree(banc));
        }
        banc.Faire("TxtField_14");
        EXPECT_EQ(banc.Visible("PictFeuilleQSL"), c.case14);
        const QPalette palette = banc.Controle<QLineEdit>("TxtField_14")->palette();
        EXPECT_EQ(!c.case14 && palette.color(QPalette::Base) == QColor(255, 192, 192), c.modifiee);
        EXPECT_EQ(Difference(banc.Journal(), avant), "");
        EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({}));
    }
}

TEST(Impression, PagesPlanchesEtReglage) {
    Banc banc(Contacts(30) + Fin());
    Operations operations;
    BrancherImprimante(banc, operations);
    banc.Faire("MnuConfigImp");
    EXPECT_EQ(banc.systeme.configurations, 1);
    const std::string ligne26 = "T 160 1920 8 MS sans Serif 000026";
    const auto imprimer = [&](const char* menu) {
        operations.clear();
        banc.Menu(menu);
        EXPECT_EQ(operations.empty() ? "" : operations.back(), "FIN") << menu;
        return Contient(operations, ligne26);
    };
    EXPECT_TRUE(imprimer("MnuImpPage"));
    EXPECT_FALSE(imprimer("MnuImpPageVierge"));
    EXPECT_FALSE(imprimer("MnuImpPage")) << "blank until a page is shown again";
    auto* page = banc.fenetre->findChild<FeuilleLog*>();
    QTest::mouseClick(page->viewport(), Qt::LeftButton, {}, page->RectDeRangee(1).center());
    EXPECT_EQ(S(banc.Texte("TxtField_1")), "F27QSO");
    EXPECT_EQ(banc.Controle<QListWidget>("ListeLog")->currentRow(), 1);
    banc.Faire("CmdSensBas");
    EXPECT_TRUE(imprimer("MnuImpPage"));
    imprimer("MnuVirginTags");
    EXPECT_TRUE(Contient(operations, "R 6100 14260 11300 16040")) << "place 16";
    EXPECT_TRUE(Contient(operations, "T 500 420 10g  F5ABC   Confirming QSO with"));
    EXPECT_TRUE(banc.systeme.avertissements.empty());
    EXPECT_FALSE(banc.Visible("PictCtrlImpression"));
}

} // namespace
} // namespace orvalis::essais
