// The line of advice as it is read in the real window, against what Enter then does: to the focus,
// to what is on show, to the file.
#include "ui/confronter.h"
#include "ui/widgets/lab_conseil.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QEnterEvent>
#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <fcntl.h>
#include <random>
#include <set>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace orvalis::operateur::conseil {

// What is typed: all that the boxes take, of every length that a rule tells apart.
constexpr std::array kTextes = {"",         "f6abc",     "\\",     "7",    "14.210", "ssb",
                                "57+",      "jean paul", "tours",  "95",   "99",     "971",
                                "jn04s",    "jn18du",    "jn99zz", "beam", "oui",    "01/05/26",
                                "31/02/26", "09:05",     "29:61",  " x"};

TEST(Conseil, DitCeQueFaitEntreeDansLaSaisieEtLaCorrection) {
    Banc banc(Contacts(3) + Fin());
    std::mt19937 de(12); // the same walk each time
    const auto tirer = [&de](std::size_t n) { return de() % n; };
    std::set<std::string> vus; // mode and box, mode and verb
    for (int pas = 0; pas < 1500 && !testing::Test::HasFailure(); ++pas) {
        const bool saisie = banc.Etat("PictEnrs") != "caché";
        const bool question = banc.Etat("FraMsgFiche") != "caché";
        const std::string boite = "TxtField_" + std::to_string(1 + tirer(17));
        const std::string bouton = banc.Etat("BtEnrSuivant") == "actif" && tirer(2) != 0
                                       ? "foyer BtEnrSuivant"
                                       : "foyer BtEnrTerminer";
        switch (tirer(saisie ? 10 : 6)) {
        case 0:
            banc.Faire(saisie                      ? (tirer(2) ? "touche Alt+D" : "touche Alt+E")
                       : question || tirer(3) != 0 ? "foyer ListeLog"
                                                   : "clic BtNewQSO");
            break;
        case 1: // a click on the other two does more than that
            if (boite != "TxtField_14" && boite != "TxtField_16")
                banc.Cliquer(boite);
            break;
        case 2:
            banc.Controle<QWidget>(boite)->setFocus();
            break;
        case 3:
            if (question || (saisie && (banc.Etat("BtEnrSuivant") == "actif" || tirer(8) == 0)))
                banc.Faire(saisie ? bouton : tirer(2) ? "foyer FraCmdOui" : "foyer FraCmdNon");
            break;
        case 4:
            if (saisie)
                banc.Faire(banc.Etat("BtEnrAnnuler") == "actif" && tirer(6) == 0
                               ? "foyer BtEnrAnnuler"
                           : tirer(2) ? "foyer OptionEnr1"
                                      : "foyer OptionEnr2");
            break;
        default:
            if (tirer(2) && banc.Texte("foyer").starts_with("TxtField_"))
                banc.Faire("touche Ctrl+A");
        }
        const std::string foyer = banc.Texte("foyer");
        if (foyer.starts_with("TxtField_"))
            banc.Taper(kTextes[tirer(kTextes.size())]);
        const std::string phrase = Entree(banc);
        if (phrase.empty() && !foyer.starts_with("TxtField_"))
            continue;
        const std::string mode = !saisie                              ? "correction "
                                 : banc.Etat("OptionEnr1") == "coché" ? "réel "
                                                                      : "différé ";
        vus.insert({mode + foyer, mode + phrase.substr(0, phrase.find(' '))});
        Confronter(banc);
    }
    for (const std::string mode : {"réel ", "différé ", "correction "})
        for (int k = 1; k <= 17; ++k)
            EXPECT_TRUE(vus.contains(mode + "TxtField_" + std::to_string(k))) << mode << k;
    for (const auto& [mode, verbes] : aides::Textes{
             {"réel", "garde|prend|vide|laisse|reste|affiche|enregistre|abandonne|oublie|"
                      "passe"},
             {"différé", "garde|prend|vide|laisse|reste|affiche|enregistre|abandonne|oublie|"
                         "passe"},
             {"correction", "demande|remet|efface|reste|ne|affiche|enregistre|rend"}})
        for (const std::string& verbe : aides::Couper(verbes, "|"))
            EXPECT_TRUE(vus.contains(mode + ' ' + verbe)) << mode << ' ' << verbe;
}

// What the line of advice reads after each of the gestures.
void Suivre(Banc& banc, const aides::Textes& pas) {
    for (const auto& [gestes, attendu] : pas) {
        banc.Faire(gestes);
        EXPECT_EQ(S(Q(banc.Texte("LabConseil")).replace(QChar::Nbsp, u' ')), attendu) << gestes;
    }
}

#ifndef _WIN32
// The disk of the logbook is pulled: its open file can no longer be read.
void Arracher(const Banc& banc) {
    for (const auto& lien : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code absent;
        if (std::filesystem::read_symlink(lien, absent) == banc.Dossier() / "F5ABC.Vek")
            ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), std::stoi(lien.path().filename()));
    }
}
#endif

TEST(Conseil, CeQuiTientPendantUneSaisie) {
    const std::string vieux = Octets("F1QSO/P|01/02/99|10:00||7.085|CW|||||||||En cours");
    const std::string jeune =
        Octets("F1QSO|24/12/25|09:05||145.550|FM|||VERSAILLES|||Danièle||24/12/25");
    Banc banc(jeune + vieux + Fin());
    Suivre(
        banc,
        {{"clic BtNewQSO", "Entrée : reste ici ; il faut un indicatif"},
         {"valide f1qso; tape 7.0",
          "Entrée : garde « 7.0 » (MHz, point décimal), puis Mode | Déjà contacté 2 fois, la "
          "dernière le 24/12/25 sur 145.550 ; Danièle, Versailles ; QSL envoyée"},
         {"foyer TxtField_16",
          "Entrée : reste ici ; F2 ou un clic change de locator | Déjà contacté 2 fois, la "
          "dernière le 24/12/25 sur 145.550 ; Danièle, Versailles ; QSL envoyée"},
         {"foyer BtEnrTerminer", "Entrée : abandonne ce contact : indicatif seul | Déjà contacté "
                                 "2 fois, la dernière le 24/12/25 sur 145.550 ; Danièle, "
                                 "Versailles ; QSL envoyée"},
         {"foyer TxtField_5; valide 7.1, cw; foyer TxtField_17",
          "Entrée : reste ici ; Suivant attend le RST reçu | Déjà contacté 2 fois, la "
          "dernière le 24/12/25 sur 145.550 ; Danièle, Versailles ; QSL envoyée"},
         {"foyer TxtField_7; entree 2; foyer TxtField_17; valide f5xyz",
          "Entrée : enregistre le contact 3 | Déjà contacté 2 fois, la dernière le 24/12/25 sur "
          "145.550 ; Danièle, Versailles ; QSL envoyée"},
         // The result stands until the first letter.
         {"entree 1", "Entrée : reste ici ; il faut un indicatif | Contact 3 enregistré : F1QSO"},
         {"touche Backspace", "Entrée : reste ici ; il faut un indicatif | Contact 3 enregistré : "
                              "F1QSO"},
         {"tape f9a", "Entrée : garde « F9A », date « 21/11/26 », heure de début « 18:30 », puis "
                      "Fréquence"},
         {"entree 1; menu MnuDoublons; foyer TxtField_7",
          "Entrée : garde « 59 » (chiffres, point et +), puis RST reçu | Aucun doublon entre "
          "fiches "
          "qui se suivent"},
         {"clic BtContactsFermer; foyer TxtField_13",
          "Entrée : laisse cette case vide, puis Ma QSL | Première "
          "fois"}});
    const auto bandeau = [&banc] {
        return S(Q(banc.Texte("LabNonEnregistre")).replace(QChar::Nbsp, u' '));
    };
    const auto bulle = [&banc] {
        return S(banc.Controle<QWidget>("BtEnrTerminer")->toolTip().replace(QChar::Nbsp, u' '));
    };
    EXPECT_EQ(bandeau(), "Nouveau contact, pas encore enregistré : Terminer l'abandonne");
    EXPECT_EQ(bulle(), "Terminer abandonne ce contact : indicatif seul");
    // The manager of the contact before is joined to a remark, and said so while its box is empty.
    banc.Suivre("remark : -> caché LabInfoJointe_17 LabInfoJointe_13\n"
                "one half : valide beam -> LabInfoJointe_17 TxtField_17 = + F5XYZ|\n"
                "stored : foyer TxtField_8; entree 1; foyer BtEnrSuivant");
    EXPECT_EQ(bandeau(), "Nouveau contact, pas encore enregistré : Terminer l'enregistre");
    EXPECT_EQ(bulle(),
              "Terminer enregistre le contact 4 avec le manager « F5XYZ » d'un contact précédent");
    banc.Faire("foyer TxtField_9; tape tours");
    EXPECT_EQ(bulle(), "Terminer enregistre le contact 4 avec le manager « F5XYZ » d'un contact "
                       "précédent, sans « TOURS » (pas validé)");
    banc.Faire("foyer BtEnrSuivant");
    EXPECT_EQ(Confronter(banc), "enregistre");
#ifndef _WIN32
    Arracher(banc);
    Suivre(banc, {{"valide f1qso", "Entrée : garde « 7.1 » (MHz, point décimal), puis Mode"}});
    banc.Faire("valide 7, cw; entree 2; foyer TxtField_1; touche Ctrl+A, Backspace; entree 1");
    EXPECT_EQ(bandeau(), "Nouveau contact, pas encore enregistré : il faut un indicatif");
    EXPECT_FALSE(banc.systeme.codeDeFin.has_value());
#endif
}

TEST(Conseil, SeLitQuandLaCaseOuLIssueChange) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre("to box 12 : clic BtNewQSO; valide f6a, 7, cw; entree 2");
    const QSignalSpy dite(banc.Controle<LabConseil>("LabConseil"), &LabConseil::dite);
    // The first letter changes the outcome, the next ones do not; nor does a refused key.
    for (const auto& [gestes, attendu] : aides::Table<int>{{"tape j", 1},
                                                           {"tape ean; touche Backspace", 0},
                                                           {"touche Ctrl+A; touche Backspace", 1},
                                                           {"entree 1", 1},
                                                           {"foyer TxtField_11; tape x", 1}}) {
        const auto avant = dite.count();
        banc.Faire(gestes);
        EXPECT_EQ(dite.count() - avant, attendu) << gestes;
    }
    const auto* lu = QAccessible::queryAccessibleInterface(banc.Controle<QWidget>("LabConseil"));
    EXPECT_EQ(S(lu->text(QAccessible::Name)), banc.Texte("LabConseil"));
}

TEST(Conseil, CeQuiTientEtCeQuiEstGris) {
    Banc banc;
    banc.Installer(Contacts(3) + Fin());
    std::filesystem::create_directory(banc.Dossier() / "VekSave");
    const auto sauver = [&banc](const std::string& nom, int n, int jours) {
        banc.Ecrire("VekSave/" + nom, Contacts(n) + Fin());
        std::filesystem::last_write_time(banc.Dossier() / "VekSave" / nom,
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::hours(24 * jours + 1));
    };
    sauver("f5abc-2026.vek", 2, 12);
    sauver("F5ABC.Vek", 1, 40);
    sauver("F5ABCD.Vek", 1, 0); // another station's
    banc.Ecrire("Autre.Vek", Contacts(1) + Octets("G3QSO") + Fin());
    banc.Ouvrir();
    const auto designer = [&banc](const char* nom) {
        if (auto* action = banc.fenetre->findChild<QAction*>(Q(nom)))
            action->hover();
        else
            QApplication::sendEvent(
                banc.Controle<QWidget>(nom),
                std::make_unique<QEnterEvent>(QPointF(), QPointF(), QPointF()).get());
    };
    const std::string vieille = "Dernière sauvegarde il y a 12 jours ; 1 contact depuis";
    Suivre(banc, {{"foyer ListeLog", vieille}});
    designer("MnuChangerLocator");
    Suivre(banc, {{"", "Changer de Locator : seulement pendant une saisie"}});
    designer("MnuClasser");
    Suivre(banc,
           {{"", "Classer réécrit le cahier, sauvegardez d'abord. " + vieille},
            {"menu MnuClasser", "Le cahier était déjà en ordre"},
            {"menu MnuJumeler", "Rien ne défait un jumelage, sauvegardez d'abord. " + vieille}});
    banc.Faire("fichier VekSave/F5ABC-neuf.Vek; clic BtPjSauvegarder");
    designer("BtPjumeler");
    Suivre(banc,
           {{"", "Rien ne défait un jumelage. Dernière sauvegarde il y a moins de 24 heures ; "
                 "aucun contact depuis"},
            {"fichier Autre.Vek; clic BtPjumeler",
             "2 contacts de Autre.Vek ajoutés, dont 1 y était déjà"},
            {"clic BtPjAnnuler; menu MnuClasser", "Cahier classé en 6 échanges"},
            {"menu MnuDoublons", "1 doublon entre fiches qui se suivent"}});
    designer("BtFermerLog");
    Suivre(banc, {{"", "fermez d'abord la liste des contacts (Alt+L)"},
                  {"clic BtContactsFermer; ligne 1; clic TxtField_9; valide tours; touche Alt+O",
                   "Fiche 1 corrigée"},
                  {"ligne 2; clic BtKillFiche", "Entrée : garde la fiche 2"},
                  {"foyer FraCmdOui", "Entrée : supprime la fiche 2"},
                  {"entree 1", "Fiche 2 supprimée"},
                  {"fichier VekSave/F5ABC-neuf.Vek; menu MnuSauver; ligne 1", // once more
                   "Dernière sauvegarde il y a moins de 24 heures ; aucun contact depuis"}});
    banc.Faire("ligne 1; clic TxtField_9; valide lyon; menu MnuDoublons; clic RechText");
    designer("BtNewQSO");
    Suivre(banc, {{"", "Entrée : ne fait rien ; il faut un indicatif ou une date jj/mm/aa | "
                       "répondez d'abord Oui ou Non"}});
    banc.Faire("clic FraCmdNon; clic BtNewQSO");
    designer("MnuCreateMDB");
    Suivre(banc, {{"", "Entrée : reste ici ; il faut un indicatif | Réaliser  fichier.mdb : "
                       "terminez d'abord la saisie"}});
    designer("BtEnrSuivant"); // which goes from under the pointer
    Suivre(banc, {{"", "Entrée : reste ici ; il faut un indicatif | validez d'abord le RST reçu"},
                  {"touche Alt+T; ligne 1",
                   "Dernière sauvegarde il y a moins de 24 heures ; aucun contact "
                   "depuis"}});
    EXPECT_EQ(DireDejaContacte({1, aides::Enregistrement(Octets("F1QSO||||7.085"))}),
              "Déjà contacté une fois sur 7.085");
}

TEST(Conseil, LesAutresControles) {
    Banc banc(Contacts(2) + Fin());
    Suivre(
        banc,
        {{"foyer RechText", "Entrée : ne fait rien ; il faut un indicatif ou une date jj/mm/aa | "
                            "Aucune sauvegarde de ce cahier dans VekSave"},
         {"tape f1qso", "Entrée : cherche l'indicatif « F1QSO », puis la liste | Aucune sauvegarde "
                        "de ce cahier dans VekSave"}});
    EXPECT_EQ(Confronter(banc), "cherche");
    banc.Faire("clic BtContactsFermer; menu MnuJumeler; foyer RechText; tape f1qso");
    EXPECT_EQ(Entree(banc), "cherche l'indicatif « F1QSO », puis Sauvegarder");
    EXPECT_EQ(Confronter(banc), "cherche");
    banc.Faire("clic BtPjAnnuler");
    Suivre(banc,
           {{"clic BtContactsFermer; clic BtNewQSO; valide f6abc; menu MnuChangerLocator; touche "
             "Ctrl+A; tape jn18d",
             "Entrée : reste ici ; il faut six caractères, comme JN18DU | Première fois"}});
    for (const char* suite : {"", "touche Ctrl+A; tape jn99zz", "foyer ChangLocChk",
                              "foyer ChangLocText; tape jn18du"}) {
        banc.Faire(suite);
        Confronter(banc);
    }
    Suivre(banc, {{"foyer ChangLocChk", "Entrée : décoche cette case ; Valider prend « JN18DU » "
                                        "pour locator | Première fois"},
                  {"entree 1", "Entrée : coche cette case ; Valider prend « JN18DU » pour "
                               "locator, au prochain lancement aussi | Première fois"}});
    for (const char* suite : {"", "", "foyer BtChangValid", ""}) {
        banc.Faire(suite);
        Confronter(banc);
    }
    EXPECT_EQ(banc.Texte("TxtField_16"), "JN18DU");
    banc.Faire("clic BtEnrTerminer; menu MnuGestionFeuilleQSL; clic BtTag_1; foyer FLdText_11");
    for (int pas = 0; pas < 20 && banc.Etat("PictFeuilleQSL") == "actif"; ++pas) {
        EXPECT_NE(Entree(banc), "");
        if (banc.Texte("foyer") == "BtValidQSL") {
            EXPECT_EQ(Entree(banc), "place l'étiquette de « F1QSO » en place 1");
        }
        if (banc.Texte("foyer") == "FLdText_1")
            banc.Taper("f1qso");
        Confronter(banc);
    }
    Suivre(banc, {{"", "Étiquette 1 préparée : F1QSO"}});
}

} // namespace orvalis::operateur::conseil
