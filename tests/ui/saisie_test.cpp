// Contacts typed, corrected, deleted and found through the real window; the file is read back.
#include "ui/banc.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QScrollBar>
#include <QTimer>
#include <QTimerEvent>

namespace orvalis::operateur::saisie {

TEST(Saisie, QuaranteContactsDansLesDeuxModes) {
    Banc banc(Fin());
    std::string attendu;
    banc.Suivre(R"(entry : clic BtNewQSO -> FraLab01 FraLab02 = " 0000000000|Indicatif")");
    for (int i = 10; i < 30; ++i) {
        const std::string n = std::to_string(i);
        banc.systeme.maintenant.minutes = i;
        // Frequency and mode are typed once, then offered again.
        banc.Suivre("contact " + n + " : valide f" + n + "abc" +
                    (i == 10 ? ", 14.210, ssb" : ", , ") +
                    "; valide , 57+, jean-pierre, besançon, 7, jo62qm, beam 3 el, , , f5xyz");
        banc.systeme.maintenant.minutes = i + 1;
        banc.Suivre("store " + n + " : entree 1");
        attendu += Octets("F" + n + "ABC|21/11/26|18:" + n + "|18:" + std::to_string(i + 1) +
                              "|14.210|SSB|59|57+|BESANÇON|JO62QM|07|Jean-Pierre|"
                              "BEAM 3 EL      F5XYZ",
                          "JN04SD");
        EXPECT_EQ(Difference(banc.OctetsCahier(), attendu + Fin()), "") << "after contact " << i;
    }
    banc.Suivre(R"(
 modes : touche Alt+D; touche Alt+K refusé -> coché OptionEnr2; TxtField_1 foyer = |TxtField_1)");
    for (char lettre = 'a'; lettre <= 't'; ++lettre) {
        // An impossible date keeps the focus.
        banc.Suivre(std::string("deferred ") + lettre + " : valide on4" + lettre +
                    ", 31/02/26; touche Ctrl+A; valide 01/05/26, 09:05, 09:1x7; entree 12; clic " +
                    (lettre < 't' ? "BtEnrSuivant" : "BtEnrTerminer"));
        attendu += Octets(std::string("ON4") + static_cast<char>(lettre - 'a' + 'A') +
                              "|01/05/26|09:05|09:17|14.210|SSB|59|59",
                          "JN04SD");
    }
    const std::string fin = Octets("\\|||||||||JN04SD", "JN04SD");
    EXPECT_EQ(Difference(banc.OctetsCahier(), attendu + fin), "");
    banc.Suivre(R"(
 ended : -> NoFicheLab foyer = " Fiche N° 40 |ListeLog"
 accents : ligne 5; clic TxtField_12; valide éloïse -> actif FraMsgFiche; FraLab01 = 30
 Yes : touche Alt+O -> caché FraMsgFiche; ligne = 5/15
 date : ligne 7; clic TxtField_2; valide 02/05/26 -> actif FraMsgFiche; FraLab01 = 32
 deletion : touche Alt+O; clic CmdSensHaut, BtKillFiche -> foyer = FraCmdNon
 deleted : clic FraCmdOui -> LabPage NoFicheLab = "Page 1 / 2| Fiche N° 25 ")");
    attendu.replace(29 * kTailleFiche + 98, 6, "\xC9lo\xEFse");
    attendu.replace(31 * kTailleFiche + 15, 2, "02");
    attendu.erase(0, kTailleFiche);
    EXPECT_EQ(Difference(banc.OctetsCahier(), attendu + Fin() + fin), "")
        << "the file keeps its length";
}

TEST(Saisie, ContenusHostilesNAtteignentPasLeFichier) {
    Banc banc(Contacts(1) + Fin());
    // The callsign that ends a log, a control character, what a box refuses (nothing is erased
    // then), characters that no record holds, too many of them.
    banc.Suivre("end mark : clic BtNewQSO; valide \\ -> foyer = TxtField_1\n"
                "control : touche Ctrl+A; colle TxtField_1 f6\u0001abc -> TxtField_1 = F6ABC\n"
                "comma : entree 1; colle \"TxtField_5 x14,2.5\" -> TxtField_5 = 142.5\n"
                "refused : touche Ctrl+A, x; colle TxtField_5 abc -> TxtField_5 = 142.5\n"
                "foreign : colle TxtField_12 Ω_e\u0301😀 -> TxtField_12 = ?_é?\n"
                "long : colle TxtField_12 " +
                std::string(10000, 'n') + R"( -> TxtField_12 = ?_é?nnnnnnnnnnn
 to box 12 : entree 1; valide fm; entree 2 -> foyer = TxtField_12
 text typed without Enter is not kept : entree 1 -> TxtField_12 =
 dropped : clic BtEnrAnnuler -> NoFicheLab = " Charger fiche N° 2")");
    EXPECT_EQ(Difference(banc.OctetsCahier(), Contacts(1) + Fin()), "");
}

TEST(Saisie, LocatorFauxGeleUneSeconde) {
    Banc banc(Fin());
    banc.Suivre(R"(
 no callsign : clic BtNewQSO; foyer TxtField_8; entree 1; touche Alt+S
     -> foyer = TxtField_1; actif BtEnrAnnuler
 to box 10 : valide f6abc, 14, fm; entree 4; touche Enter -> foyer = TxtField_10)");
    banc.systeme.pendantPause = [&banc] {
        banc.systeme.maintenant.secondes = 16;
        QTimerEvent tic(banc.Controle<QTimer>("Timer1")->timerId());
        QCoreApplication::sendEvent(banc.Controle<QTimer>("Timer1"), &tic);
        banc.Suivre("gel : touche Backspace; valide x; clic BtEnrAnnuler -> TxtField_10 = ERREUR; "
                    "LabHeure = 18:30:16; rouge TxtField_10");
    };
    banc.Suivre("wrong : valide jn99zz -> TxtField_1 TxtField_10 foyer = F6ABC||TxtField_10; actif "
                "TxtField_10");
    EXPECT_FALSE(banc.systeme.pendantPause) << "there was no pause";
    banc.systeme.pendantPause = [&banc] {
        EXPECT_EQ(banc.Etat("ChangLocText"), "rouge");
        banc.fenetre->close();
    };
    banc.Suivre("quit meanwhile : clic TxtField_16; valide jn99zz -> ChangLocText = ERREUR");
    EXPECT_EQ(Difference(banc.OctetsCahier(), Fin()), "");
}

TEST(Saisie, EntreeTenueNEnregistreRien) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre(R"(
 held down to the end : clic BtNewQSO; valide f6xyz, 14.2, ssb; tient 20 -> foyer = BtEnrSuivant
 own locator : clic TxtField_16; tape jn18du; tient 3 -> actif PictChangLocator
 a click brings the focus : clic TxtField_9, ChangLocText; tape jn -> ChangLocText = JN
 another the caret : clic TxtField_9, ChangLocText, ChangLocText; tape x -> ChangLocText = JN04SD
 given up by key : clic TxtField_9; tape pa; touche Alt+A; valide ris -> caché PictChangLocator;
     TxtField_1 TxtField_9 foyer = F6XYZ|PARIS|TxtField_11)");
    EXPECT_EQ(banc.OctetsCahier(), Contacts(1) + Fin());
    banc.Suivre("typed beside : clic TxtField_16; valide jn18du; clic TxtField_9; tape lyon");
    banc.Controle<QAbstractButton>("BtChangValid")->click(); // as a screen reader does
    banc.Suivre("kept : entree 1 -> TxtField_16 TxtField_9 = JN18DU|LYON");
    banc.Suivre("pressed : foyer BtEnrSuivant; entree 1 -> NoFicheLab = \" Charger fiche N° 3\"");
}

// A card shown takes no text, one under entry or correction does; what it shows is what is stored.
TEST(Saisie, UneBoiteMontreCeQuiEstOuSeraEnregistre) {
    Banc banc(Contacts(3) + Fin());
    banc.Suivre(R"(
 shown : touche F10, Escape, Escape; foyer TxtField_12; valide abc -> TxtField_12 = ; lecture TxtField_12
 opened : touche F2; valide tours -> TxtField_12 = Tours; lecture TxtField_12 TxtField_9
 emptied : clic TxtField_6; tape AM; clic TxtField_6; entree 1 -> TxtField_6 = SSB; actif TxtField_6
 refused : clic TxtField_2; valide 31/02/26 -> TxtField_2 = 12/05/02; actif FraMsgFiche
 menus : clic TxtField_9; tape tours; touche F10, Escape, Escape -> TxtField_9 foyer = TOURS|TxtField_9
 and left : touche Alt; clic TxtField_10 -> TxtField_9 = ; foyer = TxtField_10
 by another control : clic TxtField_9; tape tours; touche F10, Escape, Escape; foyer ListeLog -> TxtField_9 =
 entry : clic FraCmdNon, BtNewQSO; valide f6xyz; tape 14.2; touche Alt -> TxtField_5 = 14.2
 left : clic TxtField_12 -> TxtField_5 = 
 caret : tape jean; touche Home; tape x -> TxtField_12 = xjean
 selection : touche Ctrl+A; menu MnuDoublons; tape luc -> TxtField_12 = luc
 refused, as a dead key brings it too : foyer TxtField_7; tape e; compose ê; valide 57 -> TxtField_7 = 57
 mode : touche Alt+D; clic TxtField_1; entree 1 -> TxtField_1 = 
 sent back : clic TxtField_13; valide f6xyz -> TxtField_1 foyer = F6XYZ|TxtField_2)");
}

TEST(Saisie, ChangementDeLocatorGardeOuNon) {
    // Gestures before the new locator is taken; the one that the Settings keep.
    const std::string garder = "clic ChangLocChk; foyer BtChangValid; ";
    for (const auto& [gestes, garde] : aides::Textes{{"", "JN04SD"}, {garder, "JN18DU"}}) {
        Banc banc(Fin());
        banc.Suivre(R"(
 panel : clic BtNewQSO; valide f6abc; clic TxtField_16 -> foyer = ChangLocText
 tick let go : clic ChangLocChk, BtChangAnnul, TxtField_16 -> actif ChangLocChk
 too short : valide jn18d -> caché BtChangValid
 whole : valide u -> foyer = BtChangValid
 thought better of : foyer ChangLocText -> ChangLocText = JN04SD; caché BtChangValid
 whole again : valide jn18du -> foyer = BtChangValid)");
        banc.Suivre("taken : " + gestes + R"(entree 1 -> caché PictChangLocator
 back : -> TxtField_16 foyer = JN18DU|TxtField_16
 shown without Enter : touche Ctrl+A; tape xx; clic TxtField_5; valide 7, CW; entree 12)");
        EXPECT_EQ(banc.Lire("Parvel.cfg"), "\"F5ABC\",\"F5ABC.Vek\",\"" + garde + "\"\r\n");
        EXPECT_EQ(banc.OctetsCahier().substr(159, 6), "JN18DU");
    }
}

TEST(Saisie, ModificationSansSourisEtRefus) {
    Banc banc(Contacts(3) + Fin());
    banc.Suivre(R"(
 Enter alone modifies nothing : foyer TxtField_6; valide CW -> caché FraMsgFiche
 F2 : foyer TxtField_6; touche F2; valide CW -> actif FraMsgFiche;
     FraLabTouches = Alt+O : oui\nAlt+N : non
 No : touche Alt+N -> TxtField_6 = SSB; actif BtActiveRech
 another card while it waits is a No : clic TxtField_6; valide AM; ligne 1 -> caché FraMsgFiche)");
    EXPECT_EQ(Difference(banc.OctetsCahier(), Contacts(3) + Fin()), "");
    banc.Suivre("deletion : clic BtKillFiche -> actif FraMsgFiche");
    const auto ou = [&banc](const char* nom) {
        const auto* w = banc.Controle<QWidget>(nom);
        return QRect(w->mapTo(banc.fenetre.get(), QPoint()), w->size());
    };
    for (const char* nom : {"PictPage", "PictFiche", "PictMenu", "PictRech"})
        EXPECT_FALSE(ou("FraMsgFiche").intersects(ou(nom))) << nom;
    banc.Suivre("deleted : touche Alt+O");
    EXPECT_EQ(banc.OctetsCahier().substr(0, 2 * kTailleFiche), Contacts(3).substr(kTailleFiche));
}

TEST(Recherche, SansIndicatifLaListeEstVide) {
    Banc banc(Octets("|12/05/02") + Contacts(1) + Fin());
    banc.Suivre("emptied : clic BtActiveRech, BtContactsFermer; ligne 1; clic BtActiveRech -> "
                "ContactsListe NbreContacts ContactsLab = |0|Contacts");
}

TEST(Recherche, IndicatifDateEtDoublons) {
    const std::string jumelle = Octets("F6ABC/P|13/05/02|10:00||7.050");
    Banc banc(Contacts(2) + Octets("f6abc") + jumelle + jumelle + Fin());
    banc.Suivre(
        "two at first : foyer RechText; valide 12/05/02 -> NbreContacts ContactsLab = 2|Contacts");
    banc.Suivre("closed : clic BtContactsFermer");
    banc.Suivre("pasted : foyer RechText; colle RechText f6ab; touche Ctrl+A; "
                "colle RechText \u0007 -> RechText = F6AB");
    banc.Suivre(R"(
 callsign : touche End; valide c -> caché PictRech; ContactsListe =
     "3     Le          à       sur  Mhz            |4     Le 13/05/02 à 10:00 sur 7.050
     Mhz       |5     Le 13/05/02 à 10:00 sur 7.050 Mhz       "
 first card : -> NbreContacts NoFicheLab foyer = 3 Contacts réalisés| Fiche N° 3 |ListeLog
 typed : foyer ContactsListe; tape 5 -> NoFicheLab = " Fiche N° 3 "
 closed : clic BtContactsFermer -> actif PictRech
 date : foyer RechText; valide 12/05/02 -> NbreContacts ContactsLab = 2|
 doubles : clic BtContactsFermer; menu MnuDoublons -> grisé BtNewQSO; ContactsListe NbreContacts
     ContactsLab = "4      F6ABC/P   Le 13/05/02 à 10:00          |1|Doublon trouvé"
 closed again : clic BtContactsFermer -> actif BtNewQSO
 by the search box : menu MnuDoublons; clic RechText -> caché PictContacts; actif BtActiveRech
 a box merely pressed : clic TxtField_12; menu MnuDoublons; clic BtContactsFermer
     -> actif BtNewQSO BtFermerLog; foyer = TxtField_12
 the same : touche Tab; clic BtActiveRech; touche Alt+L -> actif BtNewQSO BtKillFiche BtFermerLog;
     foyer = TxtField_11
 by key : clic TxtField_9; tape tours; menu MnuDoublons; touche Alt+L -> TxtField_9 foyer = TOURS|TxtField_9
 and stored : entree 1 -> actif FraMsgFiche; TxtField_9 = TOURS
 under correction : clic BtActiveRech -> grisé BtNewQSO BtKillFiche BtFermerLog
 by the search box : touche Alt+L; clic RechText -> grisé BtNewQSO BtFermerLog
 answered : touche Alt+N -> actif BtNewQSO BtKillFiche BtFermerLog
 deleted : clic BtActiveRech; touche Alt+S, Alt+O -> caché PictContacts
 during entry : touche Alt+N; valide f6xyz; clic BtActiveRech; valide 14.2; tape ss; touche Alt+L
     -> TxtField_6 foyer = SS|TxtField_6)");
}

// After a deletion the duplicates that are left are on show, scrolled as they were.
TEST(Recherche, DoublonsEffacesUnParUn) {
    const auto double_ = [](int n) { return Octets("F" + std::to_string(n) + "QSO"); };
    std::string octets;
    for (int n = 10; n < 70; ++n)
        octets += double_(n) + double_(n);
    Banc banc(octets + Fin());
    auto* defilement = banc.Controle<QListWidget>("ContactsListe")->verticalScrollBar();
    banc.groupes["ici"] = "NbreContacts NoFicheLab LabPage";
    banc.Suivre("found : menu MnuDoublons -> NbreContacts = 60");
    for (int n = 0; n < 45; ++n)
        banc.Suivre("down : touche Down");
    const int ici = defilement->value();
    EXPECT_GT(ici, 0);
    banc.Suivre(R"(
 found : -> ici = "60| Fiche N° 91 |Page 4 / 5"
 deleted : clic BtKillFiche; touche Alt+O -> ici = "59| Fiche N° 100 |Page 4 / 5"; actif
     PictContacts; grisé BtNewQSO; foyer = ListeLog)");
    EXPECT_EQ(defilement->value(), ici);
    EXPECT_EQ(banc.Controle<QListWidget>("ContactsListe")->currentRow(), -1);
    banc.Suivre(
        "on from what is in sight : foyer ContactsListe; touche Down -> NoFicheLab = \" Fiche N° " +
        std::to_string(2 * ici + 1) + " \"");
    banc.Suivre("next one : clic BtKillFiche; touche Alt+O; foyer ContactsListe; touche PgDown "
                "-> NoFicheLab = \" Fiche N° " +
                std::to_string(2 * ici + 2) + " \"");
    banc.Suivre(R"(
 another list goes : clic BtContactsFermer; foyer RechText; valide f11qso; clic BtKillFiche;
     touche Alt+O -> caché PictContacts; actif BtNewQSO)");
}

TEST(Saisie, QuitterPendantLaSecondeDErreur) {
    Banc banc(Fin());
    banc.Suivre("entry : clic BtNewQSO; valide f6new");
    banc.systeme.pendantPause = [&banc] { banc.Menu("MnuQuitter"); };
    banc.Suivre("refused : foyer TxtField_10; valide zz99zz -> TxtField_10 = ERREUR");
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
}

} // namespace orvalis::operateur::saisie
