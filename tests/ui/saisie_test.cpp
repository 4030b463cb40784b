// Contacts typed, corrected, deleted and found through the real window; the file is read back.
#include "ui/banc.h"

namespace orvalis::operateur {
namespace {

TEST(Saisie, QuaranteContactsDansLesDeuxModes) {
    Banc banc(Fin());
    std::string attendu;
    banc.Faire("BtNewQSO");
    for (int i = 10; i < 30; ++i) {
        const std::string n = std::to_string(i);
        banc.systeme.maintenant.minutes = i;
        // Frequency and mode are typed once, then offered again.
        banc.Faire("=f" + n + (i == 10 ? "abc =14.210 =ssb" : "abc = ="));
        banc.Faire("= =57+ =jean-pierre =besançon =7 =jo62qm =beam_3_el = = =f5xyz");
        banc.systeme.maintenant.minutes = i + 1;
        banc.Faire("=");
        attendu += Octets("F" + n + "ABC|21/11/26|18:" + n + "|18:" + std::to_string(i + 1) +
                              "|14.210|SSB|59|57+|BESANÇON|JO62QM|07|Jean-Pierre|"
                              "BEAM 3 EL      F5XYZ",
                          "JN04SD");
        EXPECT_EQ(Difference(banc.Journal(), attendu + Fin()), "") << "after contact " << i;
    }
    banc.Suivre({{"^D ^K", "?OptionEnr2 TxtField_1 @", "X||TxtField_1"}}); // Alt+K is no letter
    for (char lettre = 'a'; lettre <= 't'; ++lettre) {
        // An impossible date keeps the focus.
        banc.Faire(std::string("=on4") + lettre + " =31/02/26 !Ctrl+A =01/05/26 =09:05 =09:1x7");
        banc.Faire("= = = = = = = = = = = =");
        banc.Faire(lettre < 't' ? "BtEnrSuivant" : "BtEnrTerminer");
        attendu += Octets(std::string("ON4") + static_cast<char>(lettre - 'a' + 'A') +
                              "|01/05/26|09:05|09:17|14.210|SSB|59|59",
                          "JN04SD");
    }
    const std::string fin = Octets("\\|||||||||JN04SD", "JN04SD");
    EXPECT_EQ(Difference(banc.Journal(), attendu + fin), "");
    EXPECT_EQ(banc.Texte("NoFicheLab @"), " Fiche N° 40 |ListeLog");

    banc.Suivre({
        {"#4 TxtField_12 =éloïse", "?FraMsgFiche FraLab01", "A|30"},
        {"^O", "?FraMsgFiche", "C"},
        {"#5 TxtField_11 =974 ^O #6 TxtField_2 =02/05/26", "?FraMsgFiche FraLab01", "A|32"},
        {"^O CmdSensHaut BtKillFiche", "@", "FraCmdNon"},
        {"FraCmdOui", "LabPage NoFicheLab", "Page 1 / 2| Fiche N° 25 "},
    });
    attendu.replace(29 * kTailleFiche + 98, 6, "\xC9lo\xEFse");
    attendu.replace(30 * kTailleFiche + 95, 3, "974");
    attendu.replace(31 * kTailleFiche + 15, 2, "02");
    attendu.erase(0, kTailleFiche);
    EXPECT_EQ(Difference(banc.Journal(), attendu + Fin() + fin), "") << "the file keeps its length";
}

TEST(Saisie, ContenusHostilesNAtteignentPasLeFichier) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre({
        {"BtNewQSO =\\", "@", "TxtField_1"}, // the callsign that ends a log
        {"!Ctrl+A TxtField_1+f6\u0001abc", "TxtField_1", "F6ABC"},
        {"= TxtField_5+x14,2.5", "TxtField_5", "142.5"},
        {"!Ctrl+A !x TxtField_5+abc", "TxtField_5", "142.5"}, // refused, nothing is erased
        {"TxtField_12+Ω_e\u0301😀", "TxtField_12", "?_é?"},
        {"TxtField_12+" + std::string(10000, 'n'), "TxtField_12", "?_é?nnnnnnnnnnn"},
        {"= =fm = =", "@", "TxtField_12"},
        {"=", "TxtField_12", ""}, // text typed without Enter is not kept
        {"BtEnrAnnuler", "NoFicheLab", " Charger fiche N° 2"},
    });
    EXPECT_EQ(Difference(banc.Journal(), Contacts(1) + Fin()), "");
}

TEST(Saisie, NiContactSansIndicatifNiLocatorSansEntree) {
    Banc banc(Fin());
    banc.Suivre({
        {"BtNewQSO @TxtField_8 = ^S", "@ ?BtEnrAnnuler", "TxtField_1|A"},
        {"^A =f6abc =14 =fm = = @TxtField_16 !Ctrl+A :xx ^S", "NoFicheLab", " Charger fiche N° 2"},
    });
    EXPECT_EQ(banc.Journal().substr(159, 6), "JN04SD");
}

TEST(Saisie, LocatorFauxGeleUneSeconde) {
    Banc banc(Fin());
    banc.Suivre({{"BtNewQSO =f6abc =14 =fm = = = = !Enter", "@", "TxtField_10"}});
    banc.systeme.pendantPause = [&banc] {
        banc.Suivre({{"!Backspace =x BtEnrAnnuler", "TxtField_10", "ERREUR"}});
    };
    banc.Suivre({{"=jn99zz", "TxtField_1 TxtField_10 @", "F6ABC||TxtField_10"}});
    EXPECT_FALSE(banc.systeme.pendantPause) << "there was no pause";
    EXPECT_EQ(Difference(banc.Journal(), Fin()), "");
}

TEST(Saisie, ChangementDeLocatorGardeOuNon) {
    for (const auto& [gestes, garde] :
         aides::Textes{{"", "JN04SD"}, {"ChangLocChk @BtChangValid", "JN18DU"}}) {
        Banc banc(Fin());
        banc.Suivre({
            {"BtNewQSO =f6abc TxtField_16", "@", "ChangLocText"},
            {"=jn18d", "?BtChangValid", "C"},
            {"=u", "@", "BtChangValid"},
            {gestes + " =", "?PictChangLocator TxtField_16 @", "C|JN18DU|TxtField_16"},
            {"TxtField_5 =7 =CW = = = = = = = = = = = =", "", ""},
        });
        EXPECT_EQ(banc.Lire("Parvel.cfg"), "\"F5ABC\",\"F5ABC.Vek\",\"" + garde + "\"\r\n");
        EXPECT_EQ(banc.Journal().substr(159, 6), "JN18DU");
    }
}

TEST(Saisie, ModificationSansSourisEtRefus) {
    Banc banc(Contacts(3) + Fin());
    banc.Suivre({
        {"@TxtField_6 =CW", "?FraMsgFiche", "C"}, // Enter alone modifies nothing
        {"@TxtField_6 !F2 =CW", "?FraMsgFiche", "A"},
        {"^N", "TxtField_6 ?BtActiveRech", "SSB|A"},
        {"TxtField_6 =AM #0", "?FraMsgFiche", "C"}, // another card while it waits is a No
    });
    EXPECT_EQ(Difference(banc.Journal(), Contacts(3) + Fin()), "");
    banc.Faire("BtKillFiche ^O");
    EXPECT_EQ(banc.Journal().substr(0, 2 * kTailleFiche), Contacts(3).substr(kTailleFiche));
}

TEST(Recherche, IndicatifDateEtDoublons) {
    const std::string jumelle = Octets("F6ABC/P|13/05/02|10:00||7.050");
    Banc banc(Contacts(2) + Octets("f6abc") + jumelle + jumelle + Fin());
    banc.Suivre({
        {"@RechText RechText+f6ab !Ctrl+A RechText+\u0007", "RechText", "F6AB"},
        {"!End =c", "ContactsListe",
         "3     Le          à       sur  Mhz            |4     Le 13/05/02 à 10:00 sur 7.050 Mhz   "
         "    |5     Le 13/05/02 à 10:00 sur 7.050 Mhz       "},
        {"", "NbreContacts NoFicheLab @ ?PictRech", "3 Contacts réalisés| Fiche N° 3 |ListeLog|C"},
        {"BtContactsFermer", "?PictRech", "A"},
        {"@RechText =12/05/02", "NbreContacts", "2"},
        {"BtContactsFermer MnuDoublons", "ContactsListe NbreContacts ContactsLab ?BtNewQSO",
         "4      F6ABC/P   Le 13/05/02 à 10:00          |1|Doublon trouvé|G"},
        {"BtContactsFermer", "?BtNewQSO", "A"},
    });
}

} // namespace
} // namespace orvalis::operateur
