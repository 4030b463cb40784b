// Contacts typed, corrected, deleted and found through the real window; the file is read back.
#include "ui/banc.h"

#include <QCheckBox>
#include <QLineEdit>

namespace orvalis::essais {
namespace {

TEST(Saisie, QuaranteContactsDansLesDeuxModes) {
    Banc banc(Fin());
    std::string attendu;
    banc.Faire("BtNewQSO");
    for (int i = 0; i < 20; ++i) {
        const std::string nom = "f" + std::to_string(i) + "abc";
        banc.systeme.maintenant.minutes = i;
        banc.Taper(nom + "\n");
        EXPECT_EQ(S(banc.Foyer()), "TxtField_5");
        // Frequency and mode are typed once, then offered again.
        banc.Taper(i == 0 ? "14.210\nssb\n" : "\n\n");
        banc.Taper("\n57+\njean-pierre\nbesançon\n7\njo62qm\n");
        banc.Taper("beam 3 el\n\n\nf5xyz\n");
        EXPECT_EQ(S(banc.Foyer()), "BtEnrSuivant");
        banc.systeme.maintenant.minutes = i + 1;
        banc.Faire("=");
        EXPECT_EQ(S(banc.Foyer()), "TxtField_1");
        const auto deux = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
        attendu +=
            Octets("F" + std::to_string(i) + "ABC|21/11/26|18:" + deux(i) + "|18:" + deux(i + 1) +
                       "|14.210|SSB|59|57+|BESANÇON|JO62QM|07|Jean-Pierre|BEAM 3 EL      F5XYZ",
                   "JN04SD");
        EXPECT_EQ(Difference(banc.Journal(), attendu + Fin()), "") << "after contact " << i;
    }
    banc.Faire("OptionEnr2");
    for (int i = 0; i < 20; ++i) {
        banc.Taper("on4" + std::string(1, static_cast<char>('a' + i)) + "\n");
        EXPECT_EQ(S(banc.Foyer()), "TxtField_2");
        banc.Taper(i == 0 ? "31/02/26\n" : "");
        EXPECT_EQ(S(banc.Foyer()), "TxtField_2") << "an impossible date keeps the focus";
        banc.Touche(Qt::Key_A, Qt::ControlModifier);
        banc.Taper("01/05/26\n09:05\n09:1x7\n\n\n\n\n\n\n\n\n\n\n\n\n");
        ASSERT_EQ(S(banc.Foyer()), "BtEnrSuivant");
        banc.Cliquer(i < 19 ? "BtEnrSuivant" : "BtEnrTerminer");
        attendu += Octets("ON4" + std::string(1, static_cast<char>('A' + i)) +
                              "|01/05/26|09:05|09:17|14.210|SSB|59|59",
                          "JN04SD");
    }
    const std::string fin = Octets("\\|||||||||JN04SD", "JN04SD");
    EXPECT_EQ(Difference(banc.Journal(), attendu + fin), "");
    EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Fiche N° 40 ");
    EXPECT_EQ(S(banc.Foyer()), "ListeLog");

    // Three corrections and a deletion.
    struct Correction {
        std::size_t fiche;
        const char* gestes;
        std::size_t decalage;
        std::string_view octets;
    };
    for (const Correction& c : {Correction{30, "TxtField_12 =éloïse", 98, "\xC9lo\xEFse"},
                                {31, "TxtField_11 =974", 95, "974"},
                                {32, "TxtField_2 =02/05/26", 15, "02/05/26"}}) {
        banc.ChoisirLigne(static_cast<int>(c.fiche) - 26);
        banc.Faire(c.gestes);
        EXPECT_TRUE(banc.Visible("FraMsgFiche"));
        EXPECT_EQ(S(banc.Texte("FraLab01")), std::to_string(c.fiche));
        banc.Faire("^O");
        EXPECT_FALSE(banc.Visible("FraMsgFiche"));
        attendu.replace((c.fiche - 1) * kTailleFiche + c.decalage, c.octets.size(), c.octets);
    }
    EXPECT_EQ(Difference(banc.Journal(), attendu + fin), "");
    banc.Faire("CmdSensHaut BtKillFiche");
    EXPECT_EQ(S(banc.Foyer()), "FraCmdNon");
    banc.Faire("FraCmdOui");
    attendu.erase(0, kTailleFiche);
    EXPECT_EQ(Difference(banc.Journal(), attendu + Fin() + fin), "") << "the file keeps its length";
    EXPECT_EQ(S(banc.Texte("LabPage NoFicheLab")), "Page 1 / 2| Fiche N° 25 ");
}

TEST(Saisie, ContenusHostilesNAtteignentPasLeFichier) {
    Banc banc(Contacts(1) + Fin());
    banc.Faire("BtNewQSO");
    const auto coller = [&](const char* boite, const QString& texte) {
        banc.Controle<QLineEdit>(boite)->insert(texte);
        return S(banc.Texte(boite));
    };
    banc.Taper("\\\n");
    EXPECT_EQ(S(banc.Foyer()), "TxtField_1") << "the callsign that ends a log";
    banc.Touche(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(coller("TxtField_1", QStringLiteral("f6\u0001a\u0000bc")), "F6ABC");
    banc.Faire("=");
    EXPECT_EQ(coller("TxtField_5", QStringLiteral("x14,2.5")), "142.5");
    banc.Controle<QLineEdit>("TxtField_5")->selectAll();
    banc.Taper("x");
    EXPECT_EQ(coller("TxtField_5", QStringLiteral("abc")), "142.5") << "refused, nothing is erased";
    EXPECT_EQ(coller("TxtField_12", QString(10000, QLatin1Char('n'))), std::string(15, 'n'));
    banc.Controle<QLineEdit>("TxtField_12")->clear();
    EXPECT_EQ(coller("TxtField_12", QString::fromUtf8("Ω e\u0301😀")), "? é?");
    banc.Taper("\nfm\n\n\n");
    EXPECT_EQ(S(banc.Foyer()), "TxtField_12");
    banc.Faire("=");
    EXPECT_EQ(S(banc.Texte("TxtField_12")), "") << "text typed without Enter is not kept";
    EXPECT_EQ(Difference(banc.Journal(), Contacts(1) + Fin()), "");
    banc.Faire("BtEnrAnnuler");
    EXPECT_EQ(Difference(banc.Journal(), Contacts(1) + Fin()), "");
    EXPECT_EQ(S(banc.Texte("NoFicheLab")), " Charger fiche N° 2");
}

TEST(Saisie, LocatorFauxGeleUneSeconde) {
    Banc banc(Fin());
    banc.Faire("BtNewQSO");
    banc.Taper("f6abc\n14\nfm\n\n\n\n\n\n");
    ASSERT_EQ(S(banc.Foyer()), "TxtField_10");
    QString pendant;
    banc.systeme.pendantPause = [&] {
        banc.Faire("=x BtEnrSuivant");
        pendant = banc.Texte("TxtField_10");
    };
    banc.Faire("=jn99zz");
    EXPECT_EQ(S(pendant), "ERREUR");
    EXPECT_EQ(S(banc.Texte("TxtField_10")), "");
    EXPECT_EQ(S(banc.Foyer()), "TxtField_10");
    EXPECT_EQ(Difference(banc.Journal(), Fin()), "");
}

TEST(Saisie, ChangementDeLocatorGardeOuNon) {
    for (const bool garder : {false, true}) {
        SCOPED_TRACE(garder);
        Banc banc(Fin());
        banc.Faire("BtNewQSO =f6abc TxtField_16");
        EXPECT_EQ(S(banc.Foyer()), "ChangLocText");
        banc.Faire("=jn18d");
        EXPECT_FALSE(banc.Visible("BtChangValid"));
        banc.Faire("=u");
        EXPECT_EQ(S(banc.Foyer()), "BtChangValid");
        banc.Controle<QCheckBox>("ChangLocChk")->setChecked(garder);
        banc.Faire("=");
        EXPECT_FALSE(banc.Visible("PictChangLocator"));
        EXPECT_EQ(S(banc.Texte("TxtField_16")), "JN18DU");
        EXPECT_EQ(S(banc.Foyer()), "TxtField_16");
        EXPECT_EQ(banc.Lire("Parvel.cfg"), std::string("\"F5ABC\",\"F5ABC.Vek\",\"") +
                                               (garder ? "JN18DU" : "JN04SD") + "\"\r\n");
        banc.Faire("TxtField_5");
        banc.Taper("7\nCW\n\n\n\n\n\n\n\n\n\n\n\n");
        EXPECT_EQ(banc.Journal().substr(159, 6), "JN18DU");
    }
}

TEST(Saisie, ModificationSansSourisEtRefus) {
    Banc banc(Contacts(3) + Fin());
    banc.Controle<QLineEdit>("TxtField_6")->setFocus();
    banc.Faire("=CW");
    EXPECT_FALSE(banc.Visible("FraMsgFiche")) << "Enter alone modifies nothing";
    banc.Controle<QLineEdit>("TxtField_6")->setFocus();
    banc.Touche(Qt::Key_F2);
    banc.Faire("=CW");
    EXPECT_TRUE(banc.Visible("FraMsgFiche"));
    banc.Faire("^N");
    EXPECT_EQ(S(banc.Texte("TxtField_6")), "SSB");
    EXPECT_TRUE(banc.Visible("BtActiveRech"));
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Fin()), "");
    // Another card while the frame waits is a No.
    banc.Faire("TxtField_6 =AM #0");
    EXPECT_FALSE(banc.Visible("FraMsgFiche"));
    banc.Faire("BtKillFiche ^O");
    EXPECT_EQ(banc.Journal().substr(0, 2 * kTailleFiche), Contacts(3).substr(kTailleFiche));
}

TEST(Recherche, IndicatifDateEtDoublons) {
    Banc banc;
    const std::string double1 = Octets("F6ABC/P|13/05/02|10:00||7.050");
    banc.Installer(Contacts(2) + Octets("f6abc") + double1 + double1 + Fin());
    banc.Ouvrir();
    banc.Controle<QLineEdit>("RechText")->setFocus();
    banc.Faire("=f6abc");
    EXPECT_EQ(banc.Lignes("ContactsListe").size(), 3);
    EXPECT_EQ(S(banc.Lignes("ContactsListe")[1]), "4     Le 13/05/02 à 10:00 sur 7.050 Mhz       ");
    EXPECT_EQ(S(banc.Texte("NbreContacts NoFicheLab")), "3 Contacts réalisés| Fiche N° 3 ");
    EXPECT_EQ(S(banc.Foyer()), "ListeLog");
    EXPECT_FALSE(banc.Visible("PictRech"));
    banc.Faire("BtContactsFermer");
    EXPECT_TRUE(banc.Visible("PictRech"));
    banc.Controle<QLineEdit>("RechText")->setFocus();
    banc.Faire("=12/05/02");
    EXPECT_EQ(S(banc.Texte("NbreContacts")), "2");
    banc.Faire("BtContactsFermer MnuDoublons");
    EXPECT_EQ(S(banc.Lignes("ContactsListe").join(QLatin1Char('|'))),
              "4      F6ABC/P   Le 13/05/02 à 10:00          ");
    EXPECT_EQ(S(banc.Texte("NbreContacts ContactsLab")), "1|Doublon trouvé");
    EXPECT_FALSE(banc.Actif("BtNewQSO"));
    banc.Faire("BtContactsFermer");
    EXPECT_TRUE(banc.Actif("BtNewQSO"));
}

} // namespace
} // namespace orvalis::essais
