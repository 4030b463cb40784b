// The Settings file, the program folder, the first run that makes them and the own locator kept.
#include "aides.h"
#include "core/creation.h"
#include "core/dossier.h"
#include "core/parametres.h"
#include "core/remplacement.h"
#include "ui/carte/locator_station.h"

namespace orvalis::aides::parametres {

TEST(Parametres, FormesLues) {
    const Dossier dossier;
    const auto lire = [&dossier](std::string_view octets) {
        const Parametres lus = LireParametres(dossier.Poser("Parvel.cfg", octets));
        return lus.indicatif + '|' + lus.nomFichier + '|' + lus.monLocator;
    };
    Verifier(lire,
             Textes{{"\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"\r\n", "F5ABC|F5ABC.Vek|JN18AA"},
                    {"F5ABC , F5ABC.Vek, JN18AA", "F5ABC|F5ABC.Vek|JN18AA"},
                    {"\"F5\"\"A,B\",\"\xE9.Vek\",\"JN18AABB\"\n", "F5\"A,B|é.Vek|JN18AA"},
                    {"\"F5ABC\"\r\n \t\n\r\n\"F5ABC.Vek\"\r\n\"J\"\r\n", "F5ABC|F5ABC.Vek|J     "},
                    {"\xEF\xBB\xBF\n\"F5\xC3\x89\",\"F5.Vek\",\"JN18AA\"", "F5É|F5.Vek|JN18AA"}});
    for (const char* octets :
         {"", "\r\n", "\"F5ABC\"", "\"A\",\"B\"", "\"\",\"\",\"\"", "A,B,\nC",
          "\"A\",\"B\"\r\n\r\n", "\"A\",\"B\",\"  \"", "\"A\",\"\",\"C\"", "A,B,"})
        EXPECT_THROW(lire(octets), Erreur) << octets;
    EXPECT_THROW(static_cast<void>(LireParametres(dossier / "rien")), Erreur);
}

TEST(Parametres, EcritureSousLeNomQuiEstLa) {
    const Dossier dossier;
    const auto chemin = TrouverParametres(dossier / "");
    EXPECT_EQ(chemin.filename(), "ParVel.cfg");
    static_cast<void>(dossier.Poser("ParVel.cfg.tmp", std::string(99, 'x'))); // of a program killed
    EcrireParametres(chemin, {"F5\"É", "F5.Vek", "JN1"});
    EXPECT_EQ(Lire(chemin), "\"F5\"\"\xC9\",\"F5.Vek\",\"JN1   \"\r\n");
    EXPECT_EQ(TrouverFichier(dossier / "", "PARVEL.CFG"), chemin);
    EcrireParametres(TrouverFichier(dossier / "", "Parvel.cfg"), {"A", "B", "JN18AA"});
    EXPECT_EQ(Lire(chemin), "\"A\",\"B\",\"JN18AA\"\r\n");
    const std::filesystem::directory_iterator fichiers(dossier / "");
    EXPECT_EQ(std::distance(begin(fichiers), end(fichiers)), 1);
#ifndef _WIN32
    const auto lien = dossier / "lien"; // kept with other files of its owner
    std::filesystem::create_symlink(chemin, lien);
    EcrireParametres(lien, {"C", "D", "JN18AA"});
    EXPECT_TRUE(std::filesystem::is_symlink(lien));
    EXPECT_EQ(Lire(chemin), "\"C\",\"D\",\"JN18AA\"\r\n");
    for (const char* nom : {"PARVEL.CFG", "Parvel.cfg", "parvel.cfg"})
        dossier.Poser(nom, "");
    EXPECT_EQ(TrouverParametres(dossier / ""), chemin);
#endif
}

TEST(Creation, SelonLaLongueurDeLIndicatif) {
    const std::string passent = "001111110011111100111"; // lengths from 0 to 20
    for (const char* lettre : {"F", "É"})                // characters count, not bytes
        for (std::size_t longueur = 0; longueur < passent.size(); ++longueur) {
            const Dossier lecteur;
            const std::string indicatif = Fois(static_cast<int>(longueur), lettre);
            const bool passe = passent[longueur] == '1';
            EXPECT_EQ(CreerCahier(lecteur / "", {indicatif, "C.Vek", "JN18AA"}), passe) << longueur;
            EXPECT_EQ(Lire(lecteur / "Orvalis/C.Vek"), passe ? Fin() : "") << longueur;
            EXPECT_EQ(std::filesystem::exists(lecteur / "Orvalis/ParVel.cfg"), passe) << longueur;
        }
}

TEST(Creation, PasSurUnCahierOuvert) {
    const Dossier lecteur;
    std::filesystem::create_directory(lecteur / "Orvalis");
    const Cahier ouvert = Ouvrir(lecteur.Poser("Orvalis/C.Vek", Contact("A") + Fin()));
    EXPECT_THROW(static_cast<void>(CreerCahier(lecteur / "", {"F5ABC", "C.Vek", "JN18AA"})),
                 Erreur);
    EXPECT_EQ(Lire(ouvert.chemin), Contact("A") + Fin());
}

TEST(Dossier, LeLecteurSuitLeDossierCourant) {
    [[maybe_unused]] const auto lecteur = [](std::string_view courant) {
        return CalculerLecteur(courant, "/h/o").string();
    };
#ifndef _WIN32
    EXPECT_EQ(Suite(lecteur, "/h/o/log|/media/o/C|/media/o/C/a/b|/media/o|/run/media/o/C/x"),
              "/h/o|/media/o/C|/media/o/C|/h/o|/run/media/o/C");
    EXPECT_EQ(Suite(lecteur, "/run/user/1000/x|/mnt/usb/a|/mnt|/Volumes/C/a|/mnt/usb/../../tmp|/"),
              "/h/o|/mnt/usb|/h/o|/Volumes/C|/h/o|/h/o");
    EXPECT_EQ(Suite(lecteur, "C:\\Radio|D:/"), "C:\\|D:/");
#endif
    EXPECT_EQ(CalculerLecteur("\\\\club\\media\\o\\C", "C:\\Users\\o"), "C:\\");
    EXPECT_EQ(DossierProgramme("/"), "/Orvalis");
    EXPECT_EQ(TexteLecteur("C:\\"), "C:\\");
}

TEST(Dossier, VolumesAmovibles) {
    for (const char* racine :
         {"/media/o/C", "/media/usb", "/run/media/o/C", "/mnt/usb", "/mnt/a/b", "/Volumes/C"})
        EXPECT_TRUE(EstRacineAmovible(racine)) << racine;
    for (const char* racine : {"/", "/home", "/media", "/run", "/run/media", "/run/user/1000",
                               "/mnt", "/Volumes", "/x/mnt/y"})
        EXPECT_FALSE(EstRacineAmovible(racine)) << racine;
}

TEST(LocatorStation, SeulsSixCaracteresSontJuges) {
    using enum VerdictLocator;
    const Table<VerdictLocator> cas = {{"", Rien},        {"JN18A", Rien},       {"JN18AAB", Rien},
                                       {"JN18É", Rien},   {" JN18AA ", Accepte}, {"JN18ZZ", Refuse},
                                       {"1234ÉÀ", Refuse}};
    Verifier(JugerLocatorStation, cas);
}

TEST(LocatorStation, LesAutresReglagesRestentCeuxDuFichier) {
    const Dossier lecteur;
    std::filesystem::create_directory(lecteur / "Orvalis");
    const auto chemin = lecteur.Poser("Orvalis/PARVEL.cfg", "\"A\",\"B.Vek\",\"JN18AA\"\r\n");
    Station station{lecteur / "", "", ""};
    Carte carte;
    ChangerLocatorStation(station, carte, " JN05BB ", true);
    EXPECT_EQ(Lire(chemin), "\"A\",\"B.Vek\",\"JN05BB\"\r\n");
#ifndef _WIN32
    std::filesystem::remove(chemin);
    const auto cible = lecteur.Poser("Ailleurs.cfg", "");
    std::filesystem::create_symlink("../Ailleurs.cfg", chemin);
    for (const std::string octets : {"ancien", "nouveau"}) { // the second, its target missing
        RemplacerFichier(chemin, octets);
        EXPECT_TRUE(std::filesystem::is_symlink(chemin));
        EXPECT_EQ(Lire(cible), octets);
        std::filesystem::remove(cible);
    }
    std::filesystem::remove(chemin);
    EXPECT_THROW(ChangerLocatorStation(station, carte, "AA00AA", true), Erreur);
    EXPECT_EQ(station.monLocator, "JN05BB");
#endif
}

} // namespace orvalis::aides::parametres
