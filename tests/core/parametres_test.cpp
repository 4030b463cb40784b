// The Settings file, the program folder and the own locator that is kept in it.
#include "aides.h"
#include "core/dossier.h"
#include "core/locator_station.h"
#include "core/parametres.h"

namespace orvalis {
namespace {

using namespace essai;

TEST(Parametres, FormesLues) {
    const Dossier dossier;
    const auto lire = [&dossier](std::string_view octets) {
        try {
            const Parametres lus = LireParametres(dossier.Poser("Parvel.cfg", octets));
            return lus.indicatif + '|' + lus.nomFichier + '|' + lus.monLocator;
        } catch (const ErreurParametres&) {
            return std::string{"refusés"};
        }
    };
    const Textes cas = {{"\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"\r\n", "F5ABC|F5ABC.Vek|JN18AA"},
                        {"\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"", "F5ABC|F5ABC.Vek|JN18AA"},
                        {"F5ABC , F5ABC.Vek, JN18AA\n", "F5ABC|F5ABC.Vek|JN18AA"},
                        {"\"F5\"\"A,B\",\"\xE9.Vek\",\"JN18AABB\"\n", "F5\"A,B|é.Vek|JN18AA"},
                        {"\"F5ABC\"\r\n\"F5ABC.Vek\"\r\n\"\"\r\n", "F5ABC|F5ABC.Vek|      "},
                        {"", "refusés"},
                        {"\r\n", "refusés"},
                        {"\"F5ABC\"", "refusés"},
                        {"\"A\",\"B\"", "refusés"},
                        {"\"\",\"\",\"\"", "refusés"}};
    Verifier(lire, cas);
    EXPECT_THROW(static_cast<void>(LireParametres(dossier / "rien")), ErreurFichier);
}

TEST(Parametres, EcritureSousLeNomQuiEstLa) {
    const Dossier dossier;
    const auto chemin = TrouverFichier(dossier / "", kNomParametresEcrits);
    EXPECT_EQ(chemin.filename(), "ParVel.cfg");
    EcrireParametres(chemin, {"F5\"É", "F5.Vek", "JN1"});
    EXPECT_EQ(Lire(chemin), "\"F5\"\"\xC9\",\"F5.Vek\",\"JN1   \"\r\n");
    EXPECT_EQ(TrouverFichier(dossier / "", "PARVEL.CFG"), chemin);
    EcrireParametres(TrouverFichier(dossier / "", kNomParametres), {"A", "B", "JN18AA"});
    EXPECT_EQ(Lire(chemin), "\"A\",\"B\",\"JN18AA\"\r\n");
    const std::filesystem::directory_iterator fichiers(dossier / "");
    EXPECT_EQ(std::distance(begin(fichiers), end(fichiers)), 1);
}

TEST(Dossier, LeLecteurSuitLeDossierCourant) {
    const auto lecteur = [](std::string_view courant) {
        return CalculerLecteur(courant, "/home/op").string();
    };
    const Textes cas = {{"/home/op/log", "/home/op"},
                        {"/media/op/CLE", "/media/op/CLE"},
                        {"/media/op/CLE/a/b", "/media/op/CLE"},
                        {"/media/op", "/home/op"},
                        {"/run/media/op/CLE/x", "/run/media/op/CLE"},
                        {"/run/user/1000/x", "/home/op"},
                        {"/mnt/usb/a", "/mnt/usb"},
                        {"/mnt", "/home/op"},
                        {"/Volumes/CLE/a", "/Volumes/CLE"},
                        {"/mnt/usb/../../tmp", "/home/op"},
                        {"C:\\Radio", "C:\\"},
                        {"D:/", "D:/"},
                        {"/", "/home/op"}};
    Verifier(lecteur, cas);
    EXPECT_EQ(DossierProgramme("/"), "/Orvalis");
    EXPECT_EQ(TexteLecteur("C:\\"), "C:\\");
}

TEST(LocatorStation, SeulsSixCaracteresSontJuges) {
    using enum VerdictLocator;
    const Table<VerdictLocator> cas = {
        {"", Rien},         {"JN18A", Rien}, {"JN18AAB", Rien}, {" JN18AA ", Accepte},
        {"JN18ZZ", Refuse}, {"JN18É", Rien}, {"1234ÉÀ", Refuse}};
    Verifier(ControlerLocatorStation, cas);
}

TEST(LocatorStation, GardeOuNon) {
    const Dossier lecteur;
    std::filesystem::create_directory(lecteur / "Orvalis");
    const std::string debut = "\"F5ABC\",\"AUTRE.Vek\",";
    const auto chemin = lecteur.Poser("Orvalis/PARVEL.cfg", debut + "\"JN18AA\"\r\n");
    Session session;
    session.lecteur = lecteur / "";
    session.indicatif = "changé";
    session.saisie.EnSaisie = true;
    ChangerLocatorStation(session, " IN95AA ", false);
    EXPECT_EQ(Lire(chemin), debut + "\"JN18AA\"\r\n");
    EXPECT_EQ(session.monLocator + session.zones[16], "IN95AAIN95AA");
    ChangerLocatorStation(session, "JN05BB", true);
    EXPECT_EQ(Lire(chemin), debut + "\"JN05BB\"\r\n");
    std::filesystem::remove(chemin);
    EXPECT_THROW(ChangerLocatorStation(session, "AA00AA", true), ErreurFichier);
    EXPECT_EQ(session.monLocator, "JN05BB");
}

} // namespace
} // namespace orvalis
