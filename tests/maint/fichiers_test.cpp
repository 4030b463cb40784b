// Pairing, copy, backup folder and opening of another logbook.
#include "aides.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/ouverture.h"

#include <csignal>
#include <sys/resource.h>

namespace orvalis {
namespace {

namespace fs = std::filesystem;
using namespace essai;

/// The file that an operation fails on; no file grows beyond `place` meanwhile, as on a full disk.
template<class Operation> fs::path Fautif(Operation operation, rlim_t place = RLIM_INFINITY) {
    rlimit avant = {};
    ::getrlimit(RLIMIT_FSIZE, &avant);
    const rlimit limite = {place, avant.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limite);
    fs::path fautif;
    try {
        operation();
    } catch (const ErreurFichier& erreur) {
        fautif = erreur.Chemin();
    }
    ::setrlimit(RLIMIT_FSIZE, &avant);
    return fautif;
}

TEST(Jumelage, OctetParOctet) {
    const std::string a = Contact("A"), b = Contact("B"), f = Fin(), blanche = Brute({});
    const std::string bref = b.substr(0, 70), courte = bref + std::string(95, ' ');
    std::string longue;
    for (int i = 0; i < 2 * static_cast<int>(kFichesParBloc) + 2; ++i)
        longue += Contact(std::to_string(i));
    const struct {
        std::string cible, source, attendu; // no source: the logbook with itself
    } cas[] = {
        {a + f, Contact("  F 1  ") + b + Fin("JN33AA"), a + Contact("F 1") + b + f},
        {a + Fin("IN00AA"), Fin("JN33AA") + b, a + f},
        {f, a + b + f, a + b + f},
        {a + f + a + a + b + a, b + b + f, a + b + b + f + b + a}, // remains behind the end
        {a + f, blanche + bref, a + blanche + courte + f},
        {bref, a + a + f, courte + a + a + f},
        {longue + f, "", longue + longue + f},
    };
    for (const auto& c : cas) {
        const Dossier dossier;
        const auto cible = dossier.Poser("F5ABC.Vek", c.cible);
        const auto source = c.source.empty() ? cible : dossier.Poser("Source.Vek", c.source);
        Session session = Ouvrir(cible);
        const std::int32_t avant = session.nbFiches;
        const std::int32_t ajoutes = JumelerJournal(session, source);
        EXPECT_EQ(Lire(cible), c.attendu);
        EXPECT_EQ(Lire(source), c.source.empty() ? c.attendu : c.source);
        EXPECT_EQ(session.nbFiches, avant + ajoutes);
        EXPECT_EQ(session.nbFiches, c.attendu.find('\\') / 165);
        EXPECT_EQ(session.prochaineFiche, session.nbFiches + 1);
    }
}

TEST(Copie, OctetParOctet) {
    const std::string a = Contact("A"), x = Contact("X"), f = Fin(), autre = Fin("IN00AA");
    const std::array<std::string, 3> cas[] = {
        // logbook, target before and after
        {a + a + autre + x, "", a + a + autre},
        {f, "", f},
        {a + f, x + x + x + x, a + f + x + x},
        {a + a, "", a + a + f}, // no end of log
    };
    for (const auto& [journal, avant, apres] : cas) {
        const Dossier dossier;
        const auto chemin = dossier.Poser("F5ABC.Vek", journal);
        const auto cible = avant.empty() ? dossier / "C.Vek" : dossier.Poser("C.Vek", avant);
        CopierJournal(Ouvrir(chemin), cible);
        EXPECT_EQ(Lire(cible), apres);
        EXPECT_EQ(Lire(chemin), journal);
    }
}

TEST(Copie, DossierDesSauvegardes) {
    const Dossier lecteur;
    EXPECT_EQ(CheminSauvegardes(lecteur / ""), lecteur / "Orvalis/VekSave");
    EXPECT_TRUE(fs::is_directory(lecteur / "Orvalis/VekSave"));
    fs::rename(lecteur / "Orvalis/VekSave", lecteur / "Orvalis/veksave");
    EXPECT_EQ(CheminSauvegardes(lecteur / ""), lecteur / "Orvalis/veksave");
    fs::remove(lecteur / "Orvalis/veksave");
    const auto intrus = lecteur.Poser("Orvalis/VekSave", "");
    EXPECT_EQ(Fautif([&] { static_cast<void>(CheminSauvegardes(lecteur / "")); }), intrus);
}

TEST(Ouverture, AutreJournal) {
    const std::string a = Contact("A"), f = Fin("JN33AA");
    const struct {
        const char* fichier;
        std::string octets;
        const char *nom, *locator;
        std::int32_t n;
        const char* drapeaux; // L: read-only, F: end-of-log record, E: whole records
    } cas[] = {
        {"Été.Vek", a + f + a, "Été", "JN33AA", 1, "LFE"},
        {"court.VEK", Fin(" JN3  "), "court", "JN3   ", 0, "LFE"},
        {"F5ABC.Vek", a + a + f, "F5ABC", "JN33AA", 2, "FE"},
        {"Sans.Vek", a + a, "Sans", "JN18AA", 2, "LE"},
        {"Coupe.Vek", a + f + "abc", "Coupe", "JN33AA", 1, "LF"},
        {".Vek", f, ".Vek", "JN33AA", 0, "LFE"},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.fichier);
        const Dossier dossier;
        Session session = Ouvrir(dossier.Poser("Station.Vek", a + a + a + f));
        const auto chemin = dossier.Poser(c.fichier, c.octets);
        const auto [ouvert, etat] = OuvrirAutreJournal(session, chemin);
        EXPECT_TRUE(ouvert && session.cheminJournal == chemin);
        EXPECT_EQ(std::string(session.LectureSeule() ? "L" : "") + (etat.finPresente ? "F" : "") +
                      (etat.longueurEntiere ? "E" : ""),
                  c.drapeaux);
        EXPECT_EQ(session.autreJournal, c.nom);
        EXPECT_EQ(session.monLocator, c.locator);
        EXPECT_EQ(session.nbFiches, c.n);
    }
}

struct Echecs : ::testing::Test {
    Dossier dossier;
    const std::string octets = Contact("A") + Fin(), deux = Contact("B") + Contact("C") + Fin();
    const fs::path station = dossier.Poser("F5ABC.Vek", octets + Fois(30, Contact("X")));
    const fs::path prise = dossier.Poser("Prise.Vek", deux), absente = dossier / "Absente.Vek";
    Session session = Ouvrir(station), autreProgramme = Ouvrir(prise);

    Echecs() { ::signal(SIGXFSZ, SIG_IGN); }
};

TEST_F(Echecs, JumelageLaisseLeCahierTelQuel) {
    const auto source = dossier.Poser("S.Vek", Fois(40, Contact("B")) + Fin());
    for (const rlim_t place : {33U * 165U, 41U * 165U}) { // contacts, then the end-of-log record
        EXPECT_EQ(Fautif([&] { JumelerJournal(session, source); }, place), station);
        EXPECT_EQ(Lire(station).substr(0, octets.size()), octets);
    }
    EXPECT_EQ(Fautif([&] { JumelerJournal(session, absente); }), absente);
    CompterFiches(session);
    EXPECT_EQ(session.nbFiches, 1);
}

TEST_F(Echecs, CiblesDeCopieRefusees) {
    const std::string avant = Lire(station) + deux;
    fs::create_symlink(station, dossier / "Lien.Vek");
    CopierJournal(session, dossier / "Lien.Vek");
    EXPECT_THROW(CopierJournal(session, prise), ErreurVerrou);
    for (const auto& cible : {dossier / "absent/C.Vek", dossier / ".", dossier / "Pleine.Vek"})
        EXPECT_EQ(Fautif([&] { CopierJournal(session, cible); }, 200), cible);
    EXPECT_EQ(Lire(station) + Lire(prise), avant);
}

TEST_F(Echecs, OuvertureOuMemeFichierNeChangeRien) {
    EXPECT_THROW(OuvrirAutreJournal(session, prise), ErreurVerrou);
    for (const auto& chemin : {absente, dossier / "."})
        EXPECT_EQ(Fautif([&] { OuvrirAutreJournal(session, chemin); }), chemin);
    EXPECT_FALSE(OuvrirAutreJournal(session, station).ouvert);
    EXPECT_TRUE(session.cheminJournal == station && session.autreJournal.empty());
    EXPECT_EQ(session.monLocator, "JN18AA");
    EXPECT_TRUE(session.journal.Support().EstLeMeme(station));
}

} // namespace
} // namespace orvalis
