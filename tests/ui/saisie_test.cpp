// Contacts typed, corrected, deleted and found through the real window; the file is read back.
#include "ui/banc.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace orvalis::essais {
namespace {

std::string S1(const QString& texte) {
    return texte.toStdString();
}

TEST(Saisie, QuaranteContactsDansLesDeuxModes) {
    Banc banc;
    banc.Installer(Fin());
    banc.Ouvrir();
    std::string attendu;
    banc.Cliquer("BtNewQSO");
    for (int i = 0; i < 20; ++i) {
        const std::string nom = "f" + std::to_string(i) + "abc";
        banc.systeme.maintenant.minutes = i;
        banc.Taper(nom + "\n");
        EXPECT_EQ(S1(banc.Foyer()), "TxtField_5");
        // Frequency and mode are typed once, then offered again.
        banc.Taper(i == 0 ? "14.210\nssb\n" : "\n\n");
        banc.Taper("\n57+\njean-pierre\nbesançon\n7\njo62qm\n");
        banc.Taper("beam 3 el\n\n\nf5xyz\n");
        EXPECT_EQ(S1(banc.Foyer()), "BtEnrSuivant");
        banc.systeme.maintenant.minutes = i + 1;
        banc.Taper("\n");
        EXPECT_EQ(S1(banc.Foyer()), "TxtField_1");
        const auto deux = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
        attendu += Octets({{Champ::CSGN, "F" + std::to_string(i) + "ABC"},
                           {Champ::DQSO, "21/11/26"},
                           {Champ::HDEB, "18:" + deux(i)},
                           {Champ::HFIN, "18:" + deux(i + 1)},
                           {Champ::FREQ, "14.210"},
                           {Champ::MODE, "SSB"},
                           {Champ::SRST, "59"},
                           {Champ::MRST, "57+"},
                           {Champ::SQTH, "BESANÇON"},
                           {Champ::SLOC, "JO62QM"},
                           {Champ::DEPT, "07"},
                           {Champ::SNOM, "Jean-Pierre"},
                           {Champ::INFO, "BEAM 3 EL      F5XYZ"},
                           {Champ::MLOC, "JN04SD"}});
        EXPECT_EQ(Difference(banc.Journal(), attendu + Fin()), "") << "after contact " << i;
    }
    banc.Cliquer("OptionEnr2");
    for (int i = 0; i < 20; ++i) {
        banc.Taper("on4" + std::string(1, static_cast<char>('a' + i)) + "\n");
        EXPECT_EQ(S1(banc.Foyer()), "TxtField_2");
        banc.Taper(i == 0 ? "31/02/26\n" : "");
        EXPECT_EQ(S1(banc.Foyer()), "TxtField_2") << "an impossible date keeps the focus";
        banc.Touche(Qt::Key_A, Qt::ControlModifier);
        banc.Taper("01/05/26\n09:05\n09:1x7\n\n\n\n\n\n\n\n\n\n\n\n\n");
        ASSERT_EQ(S1(banc.Foyer()), "BtEnrSuivant");
        banc.Cliquer(i < 19 ? "BtEnrSuivant" : "BtEnrTerminer");
        attendu += Octets({{Champ::CSGN, "ON4" + std::string(1, static_cast<char>('A' + i))},
                           {Champ::DQSO, "01/05/26"},
                           {Champ::HDEB, "09:05"},
                           {Champ::HFIN, "09:17"},
                           {Champ::FREQ, "14.210"},
                           {Champ::MODE, "SSB"},
                           {Champ::SRST, "59"},
                           {Champ::MRST, "59"},
                           {Champ::MLOC, "JN04SD"}});
    }
    const std::string fin =
        Octets({{Champ::CSGN, "\\"}, {Champ::SLOC, "JN04SD"}, {Champ::MLOC, "JN04SD"}});
    EXPECT_EQ(Difference(banc.Journal(), attendu + fin), "");
    EXPECT_EQ(S1(banc.Texte("NoFicheLab")), " Fiche N° 40 ");
    EXPECT_EQ(S1(banc.Foyer()), "ListeLog");

    // Three corrections and a deletion.
    const auto corriger = [&](int fiche, const char* boite, const std::string& texte) {
        banc.Controle<QListWidget>("ListeLog")->setCurrentRow((fiche - 1) % 25);
        banc.Cliquer(boite);
        banc.Taper(texte + "\n");
        EXPECT_TRUE(banc.Visible("FraMsgFiche"));
        EXPECT_EQ(S1(banc.Texte("FraLab01")), std::to_string(fiche));
        banc.Touche(Qt::Key_O, Qt::AltModifier);
        EXPECT_FALSE(banc.Visible("FraMsgFiche"));
    };
    corriger(30, "TxtField_12", "éloïse");
    corriger(31, "TxtField_11", "974");
    corriger(32, "TxtField_2", "02/05/26");
    const auto remplacer = [&](int fiche, Champ champ, std::string_view texte) {
        QsoRecord octets;
        const auto debut = static_cast<std::size_t>(fiche - 1) * kTailleFiche;
        std::copy_n(attendu.begin() + static_cast<std::ptrdiff_t>(debut), kTailleFiche,
                    octets.octets.begin());
        MettreChamp(octets, champ, texte);
        attendu.replace(debut, kTailleFiche, octets.octets.data(), kTailleFiche);
    };
    remplacer(30, Champ::SNOM, "Éloïse");
    remplacer(31, Champ::DEPT, "974");
    remplacer(32, Champ::DQSO, "02/05/26");
    EXPECT_EQ(Difference(banc.Journal(), attendu + fin), "");
    banc.Cliquer("CmdSensHaut");
    banc.Cliquer("BtKillFiche");
    EXPECT_EQ(S1(banc.Foyer()), "FraCmdNon");
    banc.Cliquer("FraCmdOui");
    attendu.erase(0, kTailleFiche);
    EXPECT_EQ(Difference(banc.Journal(), attendu + Fin() + fin), "") << "the file keeps its length";
    EXPECT_EQ(S1(banc.Texte("LabPage")), "Page 1 / 2");
    EXPECT_EQ(S1(banc.Texte("NoFicheLab")), " Fiche N° 25 ");
}

TEST(Saisie, ContenusHostilesNAtteignentPasLeFichier) {
    Banc banc;
    banc.Installer(Contacts(1) + Fin());
    banc.Ouvrir();
    banc.Cliquer("BtNewQSO");
    const auto coller = [&](const char* boite, const QString& texte) {
        banc.Controle<QLineEdit>(boite)->insert(texte);
        return S1(banc.Texte(boite));
    };
    banc.Taper("\\\n");
    EXPECT_EQ(S1(banc.Foyer()), "TxtField_1") << "the callsign that ends a log";
    banc.Touche(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(coller("TxtField_1", QStringLiteral("f6\u0001a\u0000bc")), "F6ABC");
    banc.Taper("\n");
    EXPECT_EQ(coller("TxtField_5", QStringLiteral("x14,2.5")), "142.5");
    banc.Controle<QLineEdit>("TxtField_5")->selectAll();
    banc.Taper("x");
    EXPECT_EQ(coller("TxtField_5", QStringLiteral("abc")), "142.5") << "refused, nothing is erased";
    EXPECT_EQ(coller("TxtField_12", QString(10000, QLatin1Char('n'))), std::string(15, 'n'));
    banc.Controle<QLineEdit>("TxtField_12")->clear();
    EXPECT_EQ(coller("TxtField_12", QString::fromUtf8("Ω e\u0301😀")), "? é?");
    banc.Taper("\nfm\n\n\n");
    EXPECT_EQ(S1(banc.Foyer()), "TxtField_12");
    banc.Taper("\n");
    EXPECT_EQ(S1(banc.Texte("TxtField_12")), "") << "text typed without Enter is not kept";
    EXPECT_EQ(Difference(banc.Journal(), Contacts(1) + Fin()), "");
    banc.Cliquer("BtEnrAnnuler");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(1) + Fin()), "");
    EXPECT_EQ(S1(banc.Texte("NoFicheLab")), " Charger fiche N° 2");
}

TEST(Saisie, LocatorFauxGeleUneSeconde) {
    Banc banc;
    banc.Installer(Fin());
    banc.Ouvrir();
    banc.Cliquer("BtNewQSO");
    banc.Taper("f6abc\n14\nfm\n\n\n\n\n\n");
    ASSERT_EQ(S1(banc.Foyer()), "TxtField_10");
    QString pendant;
    banc.systeme.pendantPause = [&] {
        banc.Taper("x\n");
        banc.Cliquer("BtEnrSuivant");
        pendant = banc.Texte("TxtField_10");
    };
    banc.Taper("jn99zz\n");
    EXPECT_EQ(S1(pendant), "ERREUR");
    EXPECT_EQ(S1(banc.Texte("TxtField_10")), "");
    EXPECT_EQ(S1(banc.Foyer()), "TxtField_10");
    EXPECT_EQ(Difference(banc.Journal(), Fin()), "");
}

TEST(Saisie, ChangementDeLocatorGardeOuNon) {
    for (const bool garder : {false, true}) {
        SCOPED_TRACE(garder);
        Banc banc;
        banc.Installer(Fin());
        banc.Ouvrir();
        banc.Cliquer("BtNewQSO");
        banc.Taper("f6abc\n");
        banc.Cliquer("TxtField_16");
        EXPECT_EQ(S1(banc.Foyer()), "ChangLocText");
        banc.Taper("jn18d\n");
        EXPECT_FALSE(banc.Visible("BtChangValid"));
        banc.Taper("u\n");
        EXPECT_EQ(S1(banc.Foyer()), "BtChangValid");
        banc.Controle<QCheckBox>("ChangLocChk")->setChecked(garder);
        banc.Taper("\n");
        EXPECT_FALSE(banc.Visible("PictChangLocator"));
        EXPECT_EQ(S1(banc.Texte("TxtField_16")), "JN18DU");
        EXPECT_EQ(S1(banc.Foyer()), "TxtField_16");
        EXPECT_EQ(banc.Lire("Parvel.cfg"), std::string("\"F5ABC\",\"F5ABC.Vek\",\"") +
                                               (garder ? "JN18DU" : "JN04SD") + "\"\r\n");
        banc.Cliquer("TxtField_5");
        banc.Taper("7\nCW\n\n\n\n\n\n\n\n\n\n\n\n");
        EXPECT_EQ(banc.Journal().substr(159, 6), "JN18DU");
    }
}

TEST(Saisie, ModificationSansSourisEtRefus) {
    Banc banc;
    banc.Installer(Contacts(3) + Fin());
    banc.Ouvrir();
    banc.Controle<QLineEdit>("TxtField_6")->setFocus();
    banc.Taper("CW\n");
    EXPECT_FALSE(banc.Visible("FraMsgFiche")) << "Enter alone modifies nothing";
    banc.Controle<QLineEdit>("TxtField_6")->setFocus();
    banc.Touche(Qt::Key_F2);
    banc.Taper("CW\n");
    EXPECT_TRUE(banc.Visible("FraMsgFiche"));
    banc.Touche(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(S1(banc.Texte("TxtField_6")), "SSB");
    EXPECT_TRUE(banc.Visible("BtActiveRech"));
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Fin()), "");
    // Another card while the frame waits is a No.
    banc.Cliquer("TxtField_6");
    banc.Taper("AM\n");
    banc.Controle<QListWidget>("ListeLog")->setCurrentRow(0);
    EXPECT_FALSE(banc.Visible("FraMsgFiche"));
    banc.Cliquer("BtKillFiche");
    banc.Touche(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(banc.Journal().substr(0, 2 * kTailleFiche), Contacts(3).substr(kTailleFiche));
}

TEST(Recherche, IndicatifDateEtDoublons) {
    Banc banc;
    const std::string double1 = Octets({{Champ::CSGN, "F6ABC/P"},
                                        {Champ::DQSO, "13/05/02"},
                                        {Champ::HDEB, "10:00"},
                                        {Champ::FREQ, "7.050"}});
    banc.Installer(Contacts(2) + Octets({{Champ::CSGN, "f6abc"}}) + double1 + double1 + Fin());
    banc.Ouvrir();
    banc.Controle<QLineEdit>("RechText")->setFocus();
    banc.Taper("f6abc\n");
    EXPECT_EQ(banc.Lignes("ContactsListe").size(), 3);
    EXPECT_EQ(S1(banc.Lignes("ContactsListe")[1]),
              "4     Le 13/05/02 à 10:00 sur 7.050 Mhz       ");
    EXPECT_EQ(S1(banc.Texte("NbreContacts")), "3 Contacts réalisés");
    EXPECT_EQ(S1(banc.Texte("NoFicheLab")), " Fiche N° 3 ");
    EXPECT_EQ(S1(banc.Foyer()), "ListeLog");
    EXPECT_FALSE(banc.Visible("PictRech"));
    banc.Cliquer("BtContactsFermer");
    EXPECT_TRUE(banc.Visible("PictRech"));
    banc.Controle<QLineEdit>("RechText")->setFocus();
    banc.Taper("12/05/02\n");
    EXPECT_EQ(S1(banc.Texte("NbreContacts")), "2");
    banc.Cliquer("BtContactsFermer");
    banc.Menu("MnuDoublons");
    EXPECT_EQ(S1(banc.Lignes("ContactsListe").join(QLatin1Char('|'))),
              "4      F6ABC/P   Le 13/05/02 à 10:00          ");
    EXPECT_EQ(S1(banc.Texte("NbreContacts")), "1");
    EXPECT_EQ(S1(banc.Texte("ContactsLab")), "Doublon trouvé");
    EXPECT_FALSE(banc.Controle<QWidget>("BtNewQSO")->isEnabled());
    banc.Cliquer("BtContactsFermer");
    EXPECT_TRUE(banc.Controle<QWidget>("BtNewQSO")->isEnabled());
}

} // namespace
} // namespace orvalis::essais
