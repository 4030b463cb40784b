// The window of dbOrvalis, by its keys: what it writes is what the command line writes.
#include "aides.h"
#include "compagnons/db_orvalis/commande.h"
#include "compagnons/db_orvalis/fenetre/fenetre_db_orvalis.h"
#include "print/enregistreur.h"
#include "ui/bureau/texte_qt.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace orvalis::aides {
namespace {

namespace fs = std::filesystem;

struct DbOrvalisFenetre : testing::Test {
    Dossier dossier;
    QStringList choisis; ///< answers of the file dialogs
    QStringList avertissements;
    std::vector<std::string> imprime;
    std::unique_ptr<FenetreDbOrvalis> fenetre;

    DbOrvalisFenetre() {
        fs::create_directory(dossier / "Orvalis");
        dossier.Poser("Orvalis/Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"\r\n");
        dossier.Poser("Orvalis/F5ABC.Vek", Contact("F1AAA", "09/07/25", "10:00") + Fin());
        dossier.Poser("S.Vek", Contact("F2BBB", "09/01/25") + Contact("F3CCC", "??") + Fin());
        dossier.Poser("f.adi", "<EOH><CALL:5>F4DDD<QSO_DATE:8>20250709<TIME_ON:4>1000<NAME:30>"
                               "abcdefghijklmnopqrstuvwxyz0123<EOR><CALL:1>\\<EOR>");
    }
    void Ouvrir() {
        fenetre = std::make_unique<FenetreDbOrvalis>(
            Lieu{{}, dossier / ""}, // in no folder, so that no drive is found in it
            Demandes{[this](QWidget*, const DemandeChemin&) {
                         return choisis.isEmpty() ? QString() : choisis.takeFirst();
                     },
                     [this](QWidget*) { return std::make_unique<Enregistreur>(imprime); },
                     [this](QWidget*, const QString& texte) { avertissements << texte; }});
        fenetre->show();
        fenetre->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
        Attendre();
    }
    // Until no work is under way: its button can be pressed again.
    void Attendre() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return Bouton("BtImporter").isEnabled(); }));
    }
    QPushButton& Bouton(const char* nom) { return *fenetre->findChild<QPushButton*>(Q(nom)); }
    std::string Texte(const char* nom) { return S(fenetre->findChild<QLabel*>(Q(nom))->text()); }
    QString Chemin(const char* nom) { return Q((dossier / nom).string()); }
    // Presses Alt and a letter; each dialog that opens gets the keys of its own.
    void Presser(char lettre, std::vector<std::function<void(QDialog&)>> dialogues = {}) {
        std::size_t vus = 0;
        const QSignalSpy fini(fenetre.get(), &FenetreDbOrvalis::Fini);
        fenetre->activateWindow(); // a dialog may have been there before
        ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre.get()));
        QPointer<QDialog> dernier;
        QTimer guet;
        QObject::connect(&guet, &QTimer::timeout, [&] {
            auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialogue == nullptr || !dialogue->isActiveWindow() || dialogue == dernier)
                return;
            dernier = dialogue;
            ASSERT_LT(vus, dialogues.size());
            const auto agir = dialogues[vus++];
            agir(*dialogue);
        });
        guet.start(5);
        QTest::keyClick(fenetre->windowHandle(), static_cast<Qt::Key>(lettre), Qt::AltModifier);
        const bool attendu = !dialogues.empty();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !fini.isEmpty() || (attendu && vus == dialogues.size()); }));
        Attendre();
        EXPECT_EQ(vus, dialogues.size());
    }
    static void Taper(QDialog& dialogue, Qt::Key touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(dialogue.windowHandle(), touche, avec);
    }
};

const auto kContinuer = [](QDialog& d) { DbOrvalisFenetre::Taper(d, Qt::Key_Return); };
const auto kAnnuler = [](QDialog& d) { DbOrvalisFenetre::Taper(d, Qt::Key_Escape); };
const auto kLocales = [](QDialog& d) {
    DbOrvalisFenetre::Taper(d, Qt::Key_Down);
    d.findChild<QComboBox*>()->setCurrentText(Q("Europe/Paris"));
    DbOrvalisFenetre::Taper(d, Qt::Key_Return);
};

TEST_F(DbOrvalisFenetre, SortiesCommeLaLigneDeCommande) {
    Ouvrir();
    EXPECT_EQ(Texte("LabCahier"), (dossier / "Orvalis/F5ABC.Vek").string());
    EXPECT_EQ(Texte("LabContenu"), "1 contact, du 09/07/25 au 09/07/25, station F5ABC");
    EXPECT_FALSE(Bouton("BtStation").isEnabled());
    EXPECT_TRUE(Bouton("BtAdi").hasFocus()) << "and not what closes the window";
    const auto sans = [](std::string texte) { // without the time it was made
        const auto la = texte.find("CREATED_TIMESTAMP");
        return la == texte.npos ? texte : texte.erase(la, 40);
    };
    struct Essai {
        char lettre;
        const char* suite;
        std::vector<std::function<void(QDialog&)>> dialogues;
        std::string option;
    };
    const std::vector<Essai> essais = {
        {'A', "a.adi", {kContinuer}, "--adif"},
        {'A', "l.adi", {kLocales}, "--heures Europe/Paris --adif"},
        {'X', "a.adx", {kContinuer}, "--adx"},
        {'W', "a.html", {}, "--bilan"},
    };
    for (const auto& [lettre, nom, dialogues, option] : essais) {
        choisis = {Chemin(nom)};
        Presser(lettre, dialogues);
        const std::string autre = (dossier / "attendu").string();
        const auto mots = Couper(option + " " + autre, " ");
        const std::vector<std::string_view> arguments(mots.begin(), mots.end());
        std::ostringstream rien;
        static_cast<void>(ExecuterCommande(arguments, {dossier / "", dossier / "", rien, rien}));
        EXPECT_TRUE(sans(Lire(dossier / nom)) == sans(Lire(autre))) << option;
        EXPECT_FALSE(Lire(autre).empty()) << option << rien.str();
        EXPECT_THAT(Texte("LabMessage"), testing::HasSubstr(nom));
    }
    EXPECT_THAT(Lire(dossier / "l.adi"), testing::HasSubstr("<TIME_ON:4>0800"));
    choisis = {Chemin("b.sqlite")};
    Presser('B');
    EXPECT_TRUE(Lire(dossier / "b.sqlite").starts_with("SQLite format 3"));
    choisis = {Chemin("c.adi")};
    Presser('A', {kAnnuler});
    choisis = {Chemin("Orvalis/F5ABC.Vek")};
    Presser('A', {kContinuer});
    EXPECT_THAT(Texte("LabMessage"), testing::HasSubstr("n'est pas remplacé"));
    EXPECT_FALSE(fs::exists(dossier / "c.adi"));
}

TEST_F(DbOrvalisFenetre, AutreCahierEtBilan) {
    Ouvrir();
    choisis = {Chemin("S.Vek")};
    Presser('C');
    EXPECT_EQ(Texte("LabContenu"), "2 contacts, du 09/01/25 au 09/01/25");
    // Written to meanwhile: the summary is of the logbook as it is now.
    dossier.Poser("S.Vek", Fois(3, Contact("F2BBB", "09/01/25")) + Fin());
    Presser('L', {[this](QDialog& d) {
                EXPECT_LT(d.width(), d.screen()->availableSize().width());
                Taper(d, Qt::Key_I, Qt::AltModifier);
                EXPECT_TRUE(QTest::qWaitFor([this] { return !imprime.empty(); }));
                Taper(d, Qt::Key_Escape);
            }});
    EXPECT_THAT(imprime, testing::Contains("T 300 1620 22g Arial 3"));
    EXPECT_THAT(imprime, testing::Contains("FIN"));
    const int largeur = fenetre->minimumSizeHint().width();
    const std::string loin = Fois(8, "un long chemin jusque là/");
    fs::create_directories(dossier / loin);
    dossier.Poser(loin + "S.Vek", Fin());
    choisis = {Chemin((loin + "S.Vek").c_str()), Chemin("S.Vek")};
    Presser('C');
    EXPECT_EQ(Texte("LabCahier"), (dossier / (loin + "S.Vek")).string());
    QApplication::sendPostedEvents(); // layouts in each other pass it on
    EXPECT_EQ(fenetre->minimumSizeHint().width(), largeur);
    Presser('C');
    choisis = {Chemin("rien.Vek")};
    Presser('C');
    EXPECT_THAT(Texte("LabMessage"), testing::HasSubstr("rien.Vek"));
    EXPECT_EQ(Texte("LabCahier"), (dossier / "S.Vek").string()) << "still the one before";
    Presser('S');
    EXPECT_EQ(Texte("LabContenu"), "1 contact, du 09/07/25 au 09/07/25, station F5ABC");
}

TEST_F(DbOrvalisFenetre, ImportVuAvantDEcrire) {
    Ouvrir();
    std::string pourquoi;
    choisis = {Chemin("f.adi"), Chemin("G.Vek")};
    Presser('I', {kLocales, [&](QDialog& d) {
                      pourquoi = S(d.findChild<QPlainTextEdit*>()->toPlainText());
                      Taper(d, Qt::Key_Escape);
                  }});
    EXPECT_THAT(pourquoi, testing::AllOf(testing::HasSubstr("F4DDD  NAME"),
                                         testing::HasSubstr("ligne 1  \\")));
    EXPECT_FALSE(fs::exists(dossier / "G.Vek"));
    EXPECT_EQ(Texte("LabMessage"), "Rien n'a été importé.");
    choisis = {Chemin("f.adi"), Chemin("G.Vek")};
    Presser('I', {kLocales, kContinuer});
    EXPECT_EQ(Lire(dossier / "G.Vek").substr(23, 5), "12:00") << "summer time in Paris";
    EXPECT_THAT(Texte("LabMessage"), testing::HasSubstr("1 contact repris"));
}

TEST_F(DbOrvalisFenetre, SansStation) {
    fs::remove_all(dossier / "Orvalis");
    Ouvrir();
    EXPECT_THAT(Texte("LabMessage"), testing::HasSubstr("Aucun cahier de la station"));
    for (const char* nom : {"BtAdi", "BtAdx", "BtBase", "BtPage", "BtBilan", "BtStation"})
        EXPECT_FALSE(Bouton(nom).isEnabled()) << nom;
    EXPECT_TRUE(Bouton("BtChoisir").isEnabled());
    // Nothing tells the station's locator: it is asked for.
    choisis = {Chemin("f.adi"), Chemin("G.Vek")};
    Presser('I', {[](QDialog& d) {
                      const auto taper = [&d](const char* locator) {
                          Taper(d, Qt::Key_T, Qt::AltModifier);
                          QTest::keyClicks(QApplication::focusWidget(), Q(locator));
                          Taper(d, Qt::Key_Return);
                      };
                      taper("jn1");
                      EXPECT_TRUE(d.isVisible()) << "no locator";
                      taper("8du");
                  },
                  kContinuer});
    EXPECT_EQ(Lire(dossier / "G.Vek").substr(159, 6), "JN18DU");
}

} // namespace
} // namespace orvalis::aides
