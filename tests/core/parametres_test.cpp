// The Settings file, the program folder and the own locator that is kept in it.
#include "aides.h"
#include "core/dossier.h"
#include "core/fichier.h"
#include "core/locator_station.h"
#include "core/parametres.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

using namespace essai;

TEST(Parametres, FormesLues) {
    const DossierTemporaire dossier;
    const auto chemin = dossier / "Parvel.cfg";
    const struct {
        std::string_view octets, indicatif, fichier, locator;
    } cas[] = {
        {"\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"\r\n", "F5ABC", "F5ABC.Vek", "JN18AA"},
        {"\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"", "F5ABC", "F5ABC.Vek", "JN18AA"},
        {"F5ABC , F5ABC.Vek, JN18AA\n", "F5ABC", "F5ABC.Vek", "JN18AA"},
        {"\"F5\"\"A,B\",\"\xE9.Vek\",\"JN18AABB\"\n", "F5\"A,B", "é.Vek", "JN18AA"},
        {"\"F5ABC\"\r\n\"F5ABC.Vek\"\r\n\"\"\r\n", "F5ABC", "F5ABC.Vek", "      "},
    };
    for (const auto& c : cas) {
        EcrireOctets(chemin, c.octets);
        const Parametres lus = LireParametres(chemin);
        EXPECT_EQ(lus.indicatif, c.indicatif);
        EXPECT_EQ(lus.nomFichier, c.fichier);
        EXPECT_EQ(lus.monLocator, c.locator);
    }
    for (const std::string_view octets :
         {"", "\r\n", "\"F5ABC\"", "\"A\",\"B\"", "\"\",\"\",\"\""}) {
        EcrireOctets(chemin, octets);
        EXPECT_THROW(static_cast<void>(LireParametres(chemin)), ErreurParametres) << octets;
    }
    EXPECT_THROW(static_cast<void>(LireParametres(dossier / "rien")), ErreurFichier);
}

TEST(Parametres, EcritureSousLeNomQuiEstLa) {
    const DossierTemporaire dossier;
    const auto chemin = TrouverFichier(dossier.Chemin(), kNomParametresEcrits);
    EXPECT_EQ(chemin.filename(), "ParVel.cfg");
    EcrireParametres(chemin, {"F5\"É", "F5.Vek", "JN1"});
    EXPECT_EQ(LireOctets(chemin), "\"F5\"\"\xC9\",\"F5.Vek\",\"JN1   \"\r\n");
    EXPECT_EQ(TrouverFichier(dossier.Chemin(), "PARVEL.CFG"), chemin);
    EcrireParametres(TrouverFichier(dossier.Chemin(), kNomParametres), {"A", "B", "JN18AA"});
    EXPECT_EQ(LireOctets(chemin), "\"A\",\"B\",\"JN18AA\"\r\n");
    const std::filesystem::directory_iterator fichiers(dossier.Chemin());
    EXPECT_EQ(std::distance(begin(fichiers), end(fichiers)), 1);
}

TEST(Dossier, LeLecteurSuitLeDossierCourant) {
    const struct {
        std::string_view courant, lecteur;
    } cas[] = {
        {"/home/op/log", "/home/op"},
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
        {"/", "/home/op"},
    };
    for (const auto& c : cas)
        EXPECT_EQ(CalculerLecteur(c.courant, "/home/op"), c.lecteur) << c.courant;
    EXPECT_EQ(DossierProgramme("/mnt/usb"), "/mnt/usb/Orvalis");
    EXPECT_EQ(DossierProgramme("/"), "/Orvalis");
    EXPECT_EQ(TexteLecteur("C:\\"), "C:\\");
}

TEST(LocatorStation, SeulsSixCaracteresSontJuges) {
    const struct {
        std::string_view texte;
        VerdictLocator verdict;
    } cas[] = {{"", VerdictLocator::Rien},         {"JN18A", VerdictLocator::Rien},
               {"JN18AAB", VerdictLocator::Rien},  {" JN18AA ", VerdictLocator::Accepte},
               {"JN18ZZ", VerdictLocator::Refuse}, {"JN18É", VerdictLocator::Rien},
               {"1234ÉÀ", VerdictLocator::Refuse}};
    for (const auto& c : cas)
        EXPECT_EQ(ControlerLocatorStation(c.texte), c.verdict) << c.texte;
}

TEST(LocatorStation, GardeOuNon) {
    const DossierTemporaire lecteur;
    std::filesystem::create_directory(lecteur / "Orvalis");
    const auto chemin = lecteur / "Orvalis/PARVEL.cfg";
    const std::string avant = "\"F5ABC\",\"AUTRE.Vek\",\"JN18AA\"\r\n";
    EcrireOctets(chemin, avant);
    Session session;
    session.lecteur = lecteur.Chemin();
    session.indicatif = "changé";
    session.saisie.EnSaisie = true;
    ChangerLocatorStation(session, " IN95AA ", false);
    EXPECT_EQ(LireOctets(chemin), avant);
    EXPECT_EQ(session.monLocator, "IN95AA");
    EXPECT_EQ(session.zones[16], "IN95AA");
    ChangerLocatorStation(session, "JN05BB", true);
    EXPECT_EQ(LireOctets(chemin), "\"F5ABC\",\"AUTRE.Vek\",\"JN05BB\"\r\n");
    std::filesystem::remove(chemin);
    EXPECT_THROW(ChangerLocatorStation(session, "AA00AA", true), ErreurFichier);
    EXPECT_EQ(session.monLocator, "JN05BB");
}

} // namespace
} // namespace orvalis
