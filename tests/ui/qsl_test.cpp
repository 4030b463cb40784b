// Labels and printed pages through the real window; the files are read back after each step.
#include "core/boites.h"
#include "print/enregistreur.h"
#include "print/imprimante_qt.h"
#include "ui/banc.h"
#include "ui/feuille_log.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace orvalis::essais {
namespace {

using Operations = std::vector<std::string>;

std::string S1(const QString& texte) {
    return texte.toStdString();
}

// Fields side by side, each padded with blanks to its width.
std::string Cote(std::initializer_list<std::pair<std::string_view, std::size_t>> champs) {
    std::string octets;
    for (const auto& [texte, largeur] : champs)
        octets += std::string{texte} + std::string(largeur - texte.size(), ' ');
    return octets;
}

const std::string kLibre = Cote({{"***", 106}});

std::string Feuille(std::initializer_list<std::string> premieres) {
    std::string octets;
    for (const std::string& etiquette : premieres)
        octets += etiquette;
    while (octets.size() < 16 * kLibre.size())
        octets += kLibre;
    return octets;
}

std::string Fiche3(std::string_view maQsl) {
    return Octets({{Champ::CSGN, "F6XYZ/P"},
                   {Champ::DQSO, "01/02/26"},
                   {Champ::HDEB, "09:05"},
                   {Champ::HFIN, "09:10"},
                   {Champ::FREQ, "14.250"},
                   {Champ::MODE, "SSB"},
                   {Champ::SRST, "59+20dB"},
                   {Champ::INFO, "BEAM 3 EL      DL9ABC"},
                   {Champ::MQSL, maQsl}});
}

std::string Fiche1(std::string_view maQsl) {
    std::string octets = Contacts(1);
    return octets.replace(143, maQsl.size(), maQsl);
}

std::string Journal(std::string_view maQsl1, std::string_view maQsl3) {
    return Fiche1(maQsl1) + Contacts(2).substr(165) + Fiche3(maQsl3) + Fin();
}

const std::string kEtiquette3 = Cote({{"F6XYZ/P", 15},
                                      {"F5ABC", 15},
                                      {"BEAM 3 EL", 15},
                                      {"BUREAU", 15},
                                      {"01/02/26", 8},
                                      {"09:05", 5},
                                      {"14.250", 10},
                                      {"59+20dB", 8},
                                      {"SSB", 5},
                                      {"3", 10}});
const std::string kEtiquette1 = Cote({{"F1QSO", 15},
                                      {"F5ABC", 15},
                                      {"", 15},
                                      {"F6?X", 15},
                                      {"12/05/02", 8},
                                      {"00:01", 5},
                                      {"14.210", 10},
                                      {"", 8},
                                      {"SSB", 5},
                                      {"1", 10}});

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

void ChoisirLigne(const Banc& banc, int ligne) {
    banc.Controle<QListWidget>("ListeLog")->setCurrentRow(ligne);
}

bool FeuilleMontree(const Banc& banc) {
    EXPECT_NE(banc.Visible("PictFeuilleQSL"), banc.Visible("PictFiche"));
    EXPECT_NE(banc.Visible("PictFeuilleQSL"), banc.Controle<QWidget>("PictListe")->isEnabled());
    return banc.Visible("PictFeuilleQSL");
}

// Places the labels of contacts 3 (mouse and mnemonics) and 1 (keyboard alone).
void PlacerDeuxEtiquettes(const Banc& banc) {
    banc.Cliquer("TxtField_14");
    ASSERT_TRUE(FeuilleMontree(banc));
    EXPECT_EQ(S1(banc.Texte("NrTag")), "Etiquette N° 1");
    EXPECT_EQ(S1(banc.Texte("FLdText_8")), "BEAM 3 EL      DL9ABC");
    EXPECT_FALSE(banc.Visible("BtValidQSL"));
    banc.Taper("F5ABC\n");
    EXPECT_TRUE(banc.Visible("BtValidQSL"));
    banc.Touche(Qt::Key_B, Qt::AltModifier);
    banc.Touche(Qt::Key_V, Qt::AltModifier);
    EXPECT_FALSE(FeuilleMontree(banc));
    EXPECT_EQ(S1(banc.Texte("TxtField_14")), "En cours");
    EXPECT_EQ(S1(banc.Foyer()), "ListeLog");
    EXPECT_EQ(banc.Controle<QListWidget>("ListeLog")->currentRow(), 2);
    EXPECT_EQ(Difference(banc.Journal(), Journal("", "En cours")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({kEtiquette3}));

    ChoisirLigne(banc, 0);
    banc.Controle<QLineEdit>("TxtField_14")->setFocus();
    banc.Touche(Qt::Key_F2);
    EXPECT_EQ(S1(banc.Texte("FLdText_7")), "F5ABC") << "the line typed on the last label";
    EXPECT_EQ(S1(banc.Foyer()), "OptBureau");
    banc.Touche(Qt::Key_Return);
    EXPECT_TRUE(banc.Controle<QRadioButton>("OptBureau")->isChecked());
    banc.Controle<QLineEdit>("FLdText_9")->setFocus();
    banc.Controle<QLineEdit>("FLdText_9")->insert(QString::fromUtf8("f6\u0002Ωx"));
    EXPECT_EQ(S1(banc.Texte("FLdText_9")), "F6?X");
    EXPECT_FALSE(banc.Controle<QRadioButton>("OptBureau")->isChecked());
    banc.Touche(Qt::Key_Enter);
    EXPECT_EQ(S1(banc.Foyer()), "BtValidQSL");
    banc.Touche(Qt::Key_Enter);
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "En cours")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({kEtiquette3, kEtiquette1}));
}

TEST(Qsl, VieDUneEtiquette) {
    Banc banc;
    banc.Installer(Journal("", ""));
    banc.Ouvrir();
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({}));
    ASSERT_NO_FATAL_FAILURE(PlacerDeuxEtiquettes(banc));

    // Another day: what was prepared is there. A label is reviewed, then taken off the sheet.
    banc.fenetre.reset();
    banc.Ouvrir();
    banc.Menu("MnuGestionFeuilleQSL");
    ASSERT_TRUE(FeuilleMontree(banc));
    EXPECT_EQ(S1(banc.Texte("BtTag_1")), "F6XYZ/P [1]");
    EXPECT_EQ(S1(banc.Texte("BtTag_3")), "Etiquette  [3] libre");
    EXPECT_EQ(S1(banc.Foyer()), "BtChoix_1");
    banc.Touche(Qt::Key_Return);
    EXPECT_EQ(S1(banc.Texte("FLdText_5") + banc.Texte("FLdText_6")), "59+20dBSSB");
    EXPECT_TRUE(banc.Controle<QLineEdit>("FLdText_7")->isReadOnly());
    EXPECT_FALSE(banc.Visible("BtQuitQSL"));
    EXPECT_EQ(S1(banc.Foyer()), "BtLeaveQSL");
    banc.Touche(Qt::Key_S, Qt::AltModifier);
    const std::string liberee = Cote({{"***", 96}, {"3", 10}}); // its number stays
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kEtiquette1}));

    // Withdrawn places are skipped and never written.
    banc.Cliquer("BtChoix_1");
    EXPECT_EQ(S1(banc.Texte("BtChoix_1")), "Libérer");
    EXPECT_FALSE(banc.Controle<QWidget>("BtTag_1")->isEnabled());
    EXPECT_EQ(S1(banc.Texte("NrTag")), "Etiquette N° 3");
    banc.Cliquer("BtRestore");
    EXPECT_EQ(S1(banc.Texte("NrTag")), "Etiquette N° 1");
    EXPECT_FALSE(banc.Visible("BtRestore"));
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kEtiquette1}));

    // Printed: cancelled, failed, to be seen again, then for good.
    Operations operations;
    banc.Cliquer("BtPrintQSL");
    EXPECT_FALSE(banc.Visible("PictCtrlImpression")) << "cancelled";
    BrancherImprimante(banc, operations, true);
    banc.Cliquer("BtPrintQSL");
    EXPECT_FALSE(banc.Visible("PictCtrlImpression")) << "failed";
    ASSERT_EQ(banc.systeme.avertissements.size(), 1U);
    EXPECT_EQ(S1(banc.systeme.avertissements[0]), "L'imprimante ne répond pas.");
    BrancherImprimante(banc, operations);
    banc.Cliquer("BtPrintQSL");
    EXPECT_TRUE(Contient(operations, "R 6100 400 11300 2180")) << "place 2";
    EXPECT_TRUE(Contient(operations, "T 6500 1650 8g Courrier Pse / Tnx  QSL via  F6?X"));
    EXPECT_EQ(operations.back(), "FIN");
    for (const int touche : {Qt::Key_Q, Qt::Key_I, Qt::Key_V})
        banc.Touche(touche, Qt::AltModifier);
    EXPECT_TRUE(FeuilleMontree(banc) && banc.Visible("PictCtrlImpression"));
    EXPECT_FALSE(banc.Controle<QWidget>("BtChoix_2")->isEnabled());
    EXPECT_FALSE(banc.Controle<QAction>("MnuVoir")->isEnabled());
    EXPECT_EQ(S1(banc.Foyer()), "BtCtrl_Revoir");
    banc.Touche(Qt::Key_Return);
    EXPECT_FALSE(banc.Visible("PictCtrlImpression"));
    EXPECT_EQ(Difference(banc.Journal(), Journal("En cours", "")), "") << "nothing is marked yet";

    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(QString::fromStdString((banc.Dossier() / "essai.pdf").string()));
    banc.systeme.imprimante = [&pdf] { return std::make_unique<ImprimanteQt>(pdf); };
    banc.Cliquer("BtPrintQSL");
    EXPECT_TRUE(banc.Lire("essai.pdf").starts_with("%PDF"));
    banc.Touche(Qt::Key_T, Qt::AltModifier);
    EXPECT_FALSE(FeuilleMontree(banc));
    EXPECT_EQ(Difference(banc.Journal(), Journal("21/11/26", "")), "");
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({liberee, kLibre}));
    EXPECT_TRUE(
        banc.fenetre->findChild<FeuilleLog*>()->toPlainText().contains(QStringLiteral("21/11/26")));
    EXPECT_EQ(banc.systeme.avertissements.size(), 1U);
}

TEST(Qsl, LeServiceAttend) {
    struct Cas {
        const char* nom;
        std::function<void(Banc&)> avant;
        bool menu;     ///< the sheet opens from the menu
        bool case14;   ///< and from the press on box 14
        bool modifiee; ///< after which the card is under modification
    };
    const auto rien = [](Banc&) {};
    const std::vector<Cas> cas = {
        {"idle", rien, true, true, false},
        {"MQSL not empty", [](Banc& b) { ChoisirLigne(b, 0); }, true, false, true},
        {"entry", [](Banc& b) { b.Cliquer("BtNewQSO"); }, false, false, false},
        {"modification unanswered",
         [](Banc& b) {
             b.Cliquer("TxtField_12");
             b.Taper("luc\n");
         },
         false, false, true},
        {"deletion unanswered", [](Banc& b) { b.Cliquer("BtKillFiche"); }, false, false, true},
        {"pairing", [](Banc& b) { b.Menu("MnuJumeler"); }, false, false, true},
        {"contacts list", [](Banc& b) { b.Cliquer("BtActiveRech"); }, true, true, false},
        {"another logbook",
         [](Banc& b) {
             b.systeme.fichierChoisi = QString::fromStdString((b.Dossier() / "F6XYZ.Vek").string());
             b.Menu("MnuAutreF");
         },
         true, false, false},
    };
    for (const Cas& c : cas) {
        for (const bool parMenu : {true, false}) {
            SCOPED_TRACE(std::string(c.nom) + (parMenu ? ", menu" : ", box 14"));
            Banc banc;
            banc.Installer(Journal("OK", ""));
            banc.Ecrire("F6XYZ.Vek", Contacts(2) + Fin());
            banc.Ouvrir();
            c.avant(banc);
            const std::string avant = banc.Journal();
            if (parMenu)
                banc.Menu("MnuGestionFeuilleQSL");
            else
                banc.Cliquer("TxtField_14");
            EXPECT_EQ(banc.Visible("PictFeuilleQSL"), parMenu ? c.menu : c.case14);
            if (banc.Visible("PictFeuilleQSL")) {
                for (const char* menu : {"MnuCourantF", "MnuClasser", "MnuImpPage", "MnuDoublons",
                                         "MnuVirginTags", "MnuGestionFeuilleQSL"})
                    EXPECT_FALSE(banc.Controle<QAction>(menu)->isEnabled()) << menu;
                for (const char* menu : {"MnuQuitter", "MnuEditLocator", "MnuVoir"})
                    EXPECT_TRUE(banc.Controle<QAction>(menu)->isEnabled()) << menu;
                banc.Touche(Qt::Key_Q, Qt::AltModifier);
                EXPECT_FALSE(FeuilleMontree(banc));
            }
            if (!parMenu && !banc.Visible("PictEnrs")) {
                EXPECT_EQ(banc.Controle<QAction>("MnuGestionFeuilleQSL")->isEnabled(), !c.modifiee);
            }
            EXPECT_EQ(Difference(banc.Journal(), avant), "");
            EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({}));
        }
    }
}

TEST(Qsl, EtiquetteSansFicheEtPlusDePlace) {
    Banc banc;
    banc.Installer(Journal("", ""));
    banc.Ouvrir();
    banc.Menu("MnuGestionFeuilleQSL");
    banc.Cliquer("BtTag_5");
    EXPECT_EQ(S1(banc.Foyer()), "FLdText_1");
    banc.Taper("on4abcdefghijklmno\n");
    EXPECT_EQ(S1(banc.Texte("FLdText_1")), "ON4ABCDEFGHIJKL") << "as wide as the field";
    banc.Cliquer("BtValidQSL");
    ASSERT_EQ(banc.systeme.avertissements.size(), 1U);
    EXPECT_TRUE(banc.systeme.avertissements[0].contains(QStringLiteral("aucune fiche")));
    EXPECT_EQ(banc.Lire("FeuilleQSL.txt"), Feuille({Cote({{"ON4ABCDEFGHIJKL", 106}})}));
    EXPECT_EQ(Difference(banc.Journal(), Journal("", "")), "");

    banc.Cliquer("TxtField_14");
    banc.Touche(Qt::Key_B, Qt::AltModifier);
    for (int k = 2; k <= 16; ++k)
        banc.Cliquer(("BtChoix_" + std::to_string(k)).c_str());
    EXPECT_EQ(S1(banc.Texte("NrTag")), " Plus d'étiquette disponible ! ");
    EXPECT_FALSE(banc.Visible("BtValidQSL"));
}

TEST(Impression, PagesPlanchesEtReglage) {
    Banc banc;
    banc.Installer(Contacts(30) + Fin());
    banc.Ouvrir();
    Operations operations;
    BrancherImprimante(banc, operations);
    banc.Menu("MnuConfigImp");
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
    EXPECT_EQ(S1(banc.Texte("TxtField_1")), "F27QSO");
    EXPECT_EQ(banc.Controle<QListWidget>("ListeLog")->currentRow(), 1);
    banc.Cliquer("CmdSensBas");
    EXPECT_TRUE(imprimer("MnuImpPage"));
    imprimer("MnuVirginTags");
    EXPECT_TRUE(Contient(operations, "R 6100 14260 11300 16040")) << "place 16";
    EXPECT_TRUE(Contient(operations, "T 500 420 10g  F5ABC   Confirming QSO with"));
    EXPECT_TRUE(banc.systeme.avertissements.empty());
    EXPECT_FALSE(banc.Visible("PictCtrlImpression"));
}

} // namespace
} // namespace orvalis::essais
