// The logbook replaced, rewritten, cut or deleted by another program while it is open.
#include "print/enregistreur.h"
#include "ui/banc.h"

#include <QTimer>

namespace orvalis::operateur::changement {

const std::string
    kFin = Fin(),
    kSupprime = "-", kNous = "F5ABC.Vek",
    kSaisie =
        "clic BtNewQSO; valide f6new, 14.210, ssb, , 57, jean, lyon, 69, jn25ab, rien, , , f5xyz",
    kNouveau = Octets(
        "F6NEW|21/11/26|18:30|18:30|14.210|SSB|59|57|LYON|JN25AB|69|Jean|RIEN           F5XYZ",
        "JN04SD"),
    kFinDeSaisie = Octets("\\|||||||||JN04SD", "JN04SD"), kAutre = Octets("G3ABC|13/05/02"),
    kModifie = "clic TxtField_12; valide zoe", kZoe = "touche Alt+O", kEfface = "clic BtKillFiche",
    kEtiquette = "clic TxtField_14; valide F5ABC; touche Alt+B",
    kQuestion = "Un autre programme a modifié le cahier\u00A0: ";

// Puts another file of these bytes in the logbook's place, or none; `dedans` writes into the file.
void Changer(const Banc& banc, const std::string& octets, bool dedans) {
    const auto chemin = banc.Dossier() / kNous;
    if (octets == kSupprime)
        std::filesystem::remove(chemin);
    else
        banc.Ecrire(dedans ? kNous : "provisoire", octets);
    if (octets != kSupprime && !dedans)
        std::filesystem::rename(banc.Dossier() / "provisoire", chemin);
}

// The third contact with texts at some bytes.
std::string Troisieme(std::size_t decalage, const std::string& texte) {
    return Contacts(3).substr(2 * kTailleFiche).replace(decalage, texte.size(), texte);
}

TEST(Changement, RienNePasseACoteDuCahierQuiEstLa) {
    const std::string c2 = Contacts(2), c3 = Contacts(3), c5 = Contacts(5);
    const struct {
        std::string nom, avant, change, dernier, apres, vu; // of a logbook of three contacts
        std::string fichier = kNous;
        bool dedans = false;
    } cas[] = {
        {"stored in a longer one", kSaisie, c5 + kFin, "clic BtEnrSuivant", c5 + kNouveau + kFin,
         "NoFicheLab = \" Charger fiche N° 7\""},
        {"stored, rewritten", kSaisie, c2 + kFin, "clic BtEnrTerminer",
         c2 + kNouveau + kFinDeSaisie, "NoFicheLab = \" Fiche N° 3 \"", kNous, true},
        {"stored, deleted from", kSaisie, c2 + kFin + kFin, "clic BtEnrSuivant",
         c2 + kNouveau + kFin, "NoFicheLab = \" Charger fiche N° 4\"", kNous, true},
        {"stored, cut", kSaisie, c2, "clic BtEnrSuivant", c2 + kNouveau + kFin,
         "NoFicheLab = \" Charger fiche N° 4\"", kNous, true},
        {"stored, gone", kSaisie, kSupprime, "clic BtEnrSuivant", "",
         "averti contient \"Notez-le\u00A0:\\nIndicatif\u00A0: F6NEW\"; TxtField_1 foyer = "
         "F6NEW|BtEnrSuivant; actif BtEnrSuivant"},
        {"corrected", kModifie, c3.substr(0, 330) + Troisieme(0, "") + c2 + kFin, kZoe,
         c2 + Troisieme(98, "Zoe") + c2 + kFin, "LabJournal = \"F5ABC : 5 contacts\""},
        {"corrected, another", kModifie, c2 + kAutre + kFin, kZoe, c2 + kAutre + kFin,
         "averti contient " + kQuestion + "la fiche N° 3; TxtField_1 = G3ABC; caché FraMsgFiche"},
        {"corrected, fewer", kModifie, kAutre + kFin, kZoe, kAutre + kFin,
         "averti contient N° 3; TxtField_1 = G3ABC; ligne = 1/1"},
        {"corrected, gone", kModifie, kSupprime, kZoe, "",
         "averti contient n'existe pas; actif FraMsgFiche; TxtField_12 foyer = Zoe|FraCmdNon"},
        {"deleted", kEfface, c3 + kAutre + kFin, "clic FraCmdOui", c2 + kAutre + kFin + kFin,
         "NoFicheLab = \" Fiche N° 3 \""},
        {"deleted, another", kEfface, c2 + kAutre + kFin, "clic FraCmdOui", c2 + kAutre + kFin,
         "averti contient " + kQuestion + "la fiche N° 3; TxtField_1 = G3ABC", kNous, true},
        {"label placed, another", "", c2 + kAutre + kFin, "clic TxtField_14", c2 + kAutre + kFin,
         "averti contient N° 3; caché PictFeuilleQSL; TxtField_1 = G3ABC"},
        {"label erased", kEtiquette + "; touche Alt+V", Troisieme(143, "En cours") + c2 + kFin,
         "menu MnuGestionFeuilleQSL; clic BtChoix_1, BtDelQSL", Troisieme(0, "") + c2 + kFin,
         "actif PictFeuilleQSL"},
        {"label erased, fewer", kEtiquette + "; touche Alt+V", Troisieme(143, "En cours") + kFin,
         "menu MnuGestionFeuilleQSL; clic BtChoix_1, BtDelQSL", Troisieme(0, "") + kFin,
         "LabJournal = \"F5ABC : 1 contact\"; ligne = 1/1"},
        {"label stored, moved", kEtiquette,
         c2 + Troisieme(15, "01/01/00") + Troisieme(0, "") + kFin, "touche Alt+V",
         c2 + Troisieme(15, "01/01/00") + Troisieme(143, "En cours") + kFin, "ligne = 3/4"},
        {"label stored, gone", kEtiquette, kSupprime, "touche Alt+V",
         aides::Fois(16, aides::Brute({{0, "***"}}, 106)),
         "averti contient n'existe pas; actif BtValidQSL", "FeuilleQSL.txt"},
        {"labels confirmed",
         kEtiquette + "; touche Alt+V; menu MnuGestionFeuilleQSL; clic BtPrintQSL",
         Troisieme(143, "En cours") + c2 + kFin, "clic BtCtrl_Parfait",
         Troisieme(143, "21/11/26") + c2 + kFin, "caché PictFeuilleQSL"},
        {"begun, gone", "", kSupprime, "clic BtNewQSO", "",
         "averti contient n'existe pas; caché PictEnrs"},
        {"sorted", "", kAutre + c2 + kFin, "menu MnuClasser", c2 + kAutre + kFin,
         "NoFicheLab = \" Fiche N° 3 \""},
        {"paired", "menu MnuJumeler; fichier AUTRE.Vek", c3 + c2 + kFin, "clic BtPjumeler",
         c3 + c2 + kAutre + kFin,
         "NoFicheLab = \" Fiche N° 6 \"; LabConseil contient ajouté, aucun n'y était déjà"},
        {"paired, gone", "menu MnuJumeler; fichier AUTRE.Vek", kSupprime, "clic BtPjumeler", "",
         "averti contient n'existe pas"},
        {"saved", "fichier VekSave/F5ABC.Vek", c5 + kFin, "menu MnuSauver", c5 + kFin,
         "NoFicheLab = \" Fiche N° 5 \"", "VekSave/F5ABC.Vek"},
        {"saved, correcting", kModifie + "; fichier VekSave/F5ABC.Vek", c5 + kFin, "menu MnuSauver",
         c5 + kFin, "actif FraMsgFiche; TxtField_12 = Zoe; ligne = 3/5", "VekSave/F5ABC.Vek"},
        {"saved, gone", "ligne 2; fichier VekSave/F5ABC.Vek", kSupprime, "menu MnuSauver",
         c3 + kFin, "averti contient le copient en entier; ligne = 2/3", "VekSave/F5ABC.Vek"},
        {"copied into its place", "fichier F5ABC.Vek", kSupprime, "menu MnuCopieSurDisque",
         c3 + kFin, "averti contient fichier encore ouvert"},
        {"reopened, gone", "", kSupprime, "menu MnuCourantF", "",
         "averti contient n'existe pas; ligne = 3/3"},
        {"another opened, gone", "fichier AUTRE.Vek", kSupprime, "menu MnuAutreF", "",
         "averti contient n'existe pas; LabJournal = \"F5ABC : 3 contacts\""},
        {"quit, gone", "", kSupprime, "clic BtFermerLog", "",
         "averti contient Ne quittez pas Orvalis avant; OrvalisLab03 =; ligne = 3/3"}};
    for (const auto& c : cas) {
        Banc banc(c3 + kFin);
        banc.Ecrire("AUTRE.Vek", kAutre + kFin);
        banc.systeme.imprimante = [] { return std::make_unique<Enregistreur>("Sans"); };
        banc.Suivre("before : " + (c.avant.empty() ? "clic ListeLog" : c.avant) + " ->");
        Changer(banc, c.change, c.dedans);
        banc.Suivre(c.nom + " : " + c.dernier + " -> " + c.vu);
        EXPECT_EQ(Difference(c.fichier.empty() ? "" : banc.Lire(c.fichier), c.apres), "") << c.nom;
        EXPECT_FALSE(banc.systeme.codeDeFin) << c.nom;
    }
}

// The settings vanish with the logbook, as with the stick that both are on; the second wish to quit
// is granted.
TEST(Changement, LeDernierFichierNEstPasLacheSansUnMot) {
    Banc banc(Contacts(3) + kFin);
    std::filesystem::rename(banc.Dossier(), banc.systeme.lecteur / "Ailleurs");
    banc.Suivre("folder gone : menu MnuCourantF -> averti contient n'existe pas; ligne = 3/3\n"
                "quit : menu MnuQuitter -> averti contient n'existe pas; OrvalisLab03 =");
    EXPECT_FALSE(banc.systeme.codeDeFin);
    banc.Suivre("again : menu MnuQuitter -> OrvalisLab03 = \" Au revoir \"");
    EXPECT_EQ(banc.systeme.codeDeFin, 0);
}

TEST(Changement, LaSaisieReprendQuandLeCahierEstRevenu) {
    Banc banc(Contacts(3) + kFin);
    banc.Suivre("typed : " + kSaisie + " ->");
    Changer(banc, kSupprime, false);
    banc.Suivre("refused : clic BtEnrSuivant -> averti contient n'existe pas");
    banc.Suivre("its end is still open : clic TxtField_4; touche Tab -> TxtField_4 =");
    Changer(banc, Contacts(3) + kFin, false);
    Cahier autreProgramme = aides::Ouvrir(banc.Dossier() / kNous);
    banc.Suivre("locked : clic BtEnrTerminer -> averti contient utilisé par un autre programme");
    autreProgramme.fichier = {};
    banc.Suivre("back : clic BtEnrSuivant -> NoFicheLab = \" Charger fiche N° 5\"");
    EXPECT_EQ(Difference(banc.OctetsCahier(), Contacts(3) + kNouveau + kFin), "");
}

TEST(Changement, UnClassementSArrete) {
    for (const std::string& change : {Contacts(5) + kFin, kSupprime}) {
        Banc banc(kAutre + Contacts(60) + kAutre + kFin);
        QTimer::singleShot(0, [&] { Changer(banc, change, false); });
        banc.Suivre("sorted : menu MnuClasser -> averti contient est arrêté; caché "
                    "PictClasser; actif ListeLog");
        EXPECT_EQ(banc.OctetsCahier(), change == kSupprime ? "" : change);
        EXPECT_FALSE(banc.systeme.codeDeFin);
    }
}

#ifndef _WIN32
TEST(Changement, UnDisquePleinFaitNoterLeContact) {
    Banc banc(Contacts(3) + kFin);
    // The manager is that of the contact before: what is stored holds it, and no box shows it.
    banc.Suivre("typed : " + kSaisie + "; clic BtEnrSuivant; valide f6new, , , , 57, jean, lyon, " +
                "69, jn25ab, rien -> TxtField_17 =");
    {
        const aides::DisquePlein plein(banc.OctetsCahier().size() + 107);
        banc.Suivre(R"(told : clic BtEnrSuivant -> averti = "Impossible d'écrire dans le fichier
     « ~/F5ABC.Vek » : le fichier deviendrait trop grand.\n\nLe contact en cours n'est pas
     enregistré. Notez-le :\nIndicatif : F6NEW\nDate : 21/11/26\nHeure de début :
     18:30\nHeure de fin : 18:30\nFréquence : 14.210\nMode : SSB\nRST donné : 59\nRST
     reçu : 57\nQTH : LYON\nSon locator : JN25AB\nDépartement : 69\nPrénom : Jean\nInformations :
     RIEN\nMon locator : JN04SD\nQSL manager : F5XYZ")");
    }
    EXPECT_EQ(banc.systeme.codeDeFin, 1);
    EXPECT_EQ(banc.OctetsCahier(), Contacts(3) + kNouveau + kFin);
}
#endif

} // namespace orvalis::operateur::changement
