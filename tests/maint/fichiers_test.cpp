// Pairing, copy, backup folder and opening of another logbook.
#include "essai.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/ouverture.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <vector>

namespace orvalis {
namespace {

namespace fs = std::filesystem;
using essai::Fiche;
using essai::Fin;
using essai::Octets;

/// Lets no file grow beyond `octets` while it lives: a disk that fills up.
class DisquePlein {
  public:
    explicit DisquePlein(rlim_t octets) : signal_(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit limite = {octets, avant_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    DisquePlein(const DisquePlein&) = delete;
    DisquePlein& operator=(const DisquePlein&) = delete;
    ~DisquePlein() {
        ::setrlimit(RLIMIT_FSIZE, &avant_);
        ::signal(SIGXFSZ, signal_);
    }

  private:
    rlimit avant_ = {};
    sighandler_t signal_;
};

template<class Operation> fs::path FichierFautif(Operation operation) {
    try {
        operation();
    } catch (const ErreurFichier& erreur) {
        return erreur.Chemin();
    }
    return {};
}

TEST(Jumelage, OctetParOctet) {
    struct Cas {
        const char* nom;
        std::string cible;
        std::string source;
        std::string attendu;
        std::int32_t n;
    };
    const std::string a = Fiche("A");
    const std::string b = Fiche("B");
    const std::string blanche(165, ' ');
    std::string courte = b.substr(0, 70);
    courte.resize(165, ' ');
    const std::vector<Cas> cas = {
        {"indicatif rogné", a + Fin(), Fiche("  F 1  ") + b + Fin("JN33AA"),
         a + Fiche("F 1") + b + Fin(), 3},
        {"source vide", a + Fin("IN00AA"), Fin("JN33AA") + b, a + Fin(), 1},
        {"cible vide", Fin(), a + b + Fin(), a + b + Fin(), 2},
        {"restes derrière la fin", a + Fin() + Fiche("X") + Fiche("Y") + Fiche("Z") + Fiche("T"),
         b + b + Fin(), a + b + b + Fin() + Fiche("Z") + Fiche("T"), 3},
        {"source sans fin, dernière courte", a + Fin(), blanche + b.substr(0, 70),
         a + blanche + courte + Fin(), 3},
        {"cible sans fin, dernière courte", b.substr(0, 70), a + a + Fin(), courte + a + a + Fin(),
         3},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        const essai::Dossier dossier;
        const auto cible = dossier.Poser("F5ABC.Vek", c.cible);
        const auto source = dossier.Poser("Source.Vek", c.source);
        Session session = essai::Ouvrir(cible);
        const std::int32_t avant = session.nbFiches;
        EXPECT_EQ(JumelerJournal(session, source), c.n - avant);
        EXPECT_EQ(Octets(cible), c.attendu);
        EXPECT_EQ(Octets(source), c.source);
        EXPECT_EQ(session.nbFiches, c.n);
        EXPECT_EQ(session.prochaineFiche, c.n + 1);
    }
}

TEST(Jumelage, AvecSoiMemeEnPlusieursBlocs) {
    const essai::Dossier dossier;
    std::string contacts;
    for (int i = 0; i < 2 * static_cast<int>(kFichesParBloc) + 2; ++i)
        contacts += Fiche(std::to_string(i));
    const auto chemin = dossier.Poser("F5ABC.Vek", contacts + Fin());
    Session session = essai::Ouvrir(chemin);
    JumelerJournal(session, chemin);
    EXPECT_EQ(Octets(chemin), contacts + contacts + Fin());
}

TEST(Jumelage, EchecLaisseLeCahierTelQuel) {
    const essai::Dossier dossier;
    const std::string avant = Fiche("A") + Fin();
    const auto cible = dossier.Poser("F5ABC.Vek", avant + Fiche("X"));
    const auto source = dossier.Poser("S.Vek", Fiche("B") + Fiche("C") + Fiche("D") + Fin());
    Session session = essai::Ouvrir(cible);
    for (const rlim_t place : {3U * 165U, 4U * 165U}) { // contacts, then the end-of-log record
        const DisquePlein plein(place);
        EXPECT_EQ(FichierFautif([&] { JumelerJournal(session, source); }), cible);
        EXPECT_EQ(Octets(cible).substr(0, avant.size()), avant);
    }
    const auto absente = dossier / "Absente.Vek";
    EXPECT_EQ(FichierFautif([&] { JumelerJournal(session, absente); }), absente);
    CompterFiches(session);
    EXPECT_EQ(session.nbFiches, 1);
}

TEST(Copie, OctetParOctet) {
    struct Cas {
        const char* nom;
        std::string journal;
        std::string cible; ///< what the target held; "-": there was none
        std::string attendu;
    };
    const std::string a = Fiche("A");
    const std::string x = Fiche("X");
    const std::vector<Cas> cas = {
        {"neuve", a + a + Fin("IN00AA") + x, "-", a + a + Fin("IN00AA")},
        {"fin seule", Fin(), "-", Fin()},
        {"plus longue avant", a + Fin(), x + x + x + x, a + Fin() + x + x},
        {"sans fin de log", a + a, "-", a + a + Fin()},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.nom);
        const essai::Dossier dossier;
        const auto chemin = dossier.Poser("F5ABC.Vek", c.journal);
        const auto cible = dossier / "Copie.Vek";
        if (c.cible != "-")
            static_cast<void>(dossier.Poser("Copie.Vek", c.cible));
        const Session session = essai::Ouvrir(chemin);
        CopierJournal(session, cible);
        EXPECT_EQ(Octets(cible), c.attendu);
        EXPECT_EQ(Octets(chemin), c.journal);
    }
}

TEST(Copie, CiblesRefusees) {
    const essai::Dossier dossier;
    const std::string octets = Fiche("A") + Fin() + Fiche("X");
    const auto chemin = dossier.Poser("F5ABC.Vek", octets);
    const Session session = essai::Ouvrir(chemin);
    fs::create_symlink(chemin, dossier / "Lien.Vek");
    CopierJournal(session, dossier / "Lien.Vek");
    EXPECT_EQ(Octets(chemin), octets);

    const auto prise = dossier.Poser("Prise.Vek", Fin("JN33AA"));
    const Session autreProgramme = essai::Ouvrir(prise);
    EXPECT_THROW(CopierJournal(session, prise), ErreurVerrou);
    EXPECT_EQ(Octets(prise), Fin("JN33AA"));

    for (const auto& cible : {dossier / "absent/C.Vek", dossier / ".", dossier / "Pleine.Vek"}) {
        const DisquePlein plein(200);
        EXPECT_EQ(FichierFautif([&] { CopierJournal(session, cible); }), cible);
    }
    EXPECT_EQ(Octets(chemin), octets);
}

TEST(Copie, DossierDesSauvegardes) {
    const essai::Dossier lecteur;
    EXPECT_EQ(CheminSauvegardes(lecteur / ""), lecteur / "Orvalis/VekSave");
    EXPECT_TRUE(fs::is_directory(lecteur / "Orvalis/VekSave"));
    fs::rename(lecteur / "Orvalis/VekSave", lecteur / "Orvalis/veksave");
    EXPECT_EQ(CheminSauvegardes(lecteur / ""), lecteur / "Orvalis/veksave");
    fs::remove(lecteur / "Orvalis/veksave");
    const auto intrus = lecteur.Poser("Orvalis/VekSave", "");
    EXPECT_EQ(FichierFautif([&] { static_cast<void>(CheminSauvegardes(lecteur / "")); }), intrus);
}

TEST(Ouverture, AutreJournal) {
    struct Cas {
        const char* fichier;
        std::string octets;
        const char* nom;
        const char* locator;
        std::int32_t n;
        const char* drapeaux; ///< L: read-only, F: end-of-log record, E: whole records
    };
    const std::string a = Fiche("A");
    const std::vector<Cas> tous = {
        {"Été.Vek", a + Fin("JN33AA") + a, "Été", "JN33AA", 1, "LFE"},
        {"court.VEK", Fin(" JN3  "), "court", "JN3   ", 0, "LFE"},
        {"F5ABC.Vek", a + a + Fin("IN00AA"), "F5ABC", "IN00AA", 2, "FE"},
        {"Sans.Vek", a + a, "Sans", "JN18EU", 2, "LE"},
        {"Coupe.Vek", a + Fin("JN33AA") + "abc", "Coupe", "JN33AA", 1, "LF"},
        {".Vek", Fin("JN33AA"), ".Vek", "JN33AA", 0, "LFE"},
    };
    for (const Cas& cas : tous) {
        SCOPED_TRACE(cas.fichier);
        const essai::Dossier dossier;
        Session session = essai::Ouvrir(dossier.Poser("Station.Vek", a + a + a + Fin()));
        const auto chemin = dossier.Poser(cas.fichier, cas.octets);
        const BilanOuverture bilan = OuvrirAutreJournal(session, chemin);
        EXPECT_TRUE(bilan.ouvert);
        EXPECT_EQ(std::string(session.LectureSeule() ? "L" : "") +
                      (bilan.etat.finPresente ? "F" : "") + (bilan.etat.longueurEntiere ? "E" : ""),
                  cas.drapeaux);
        EXPECT_EQ(session.cheminJournal, chemin);
        EXPECT_EQ(session.autreJournal, cas.nom);
        EXPECT_EQ(session.monLocator, cas.locator);
        EXPECT_EQ(session.nbFiches, cas.n);
    }
}

TEST(Ouverture, EchecOuMemeFichierNeChangeRien) {
    const essai::Dossier dossier;
    const auto station = dossier.Poser("F5ABC.Vek", Fiche("A") + Fin());
    Session session = essai::Ouvrir(station);
    const auto prise = dossier.Poser("Prise.Vek", Fin("JN33AA"));
    const Session autreProgramme = essai::Ouvrir(prise);
    EXPECT_THROW(OuvrirAutreJournal(session, prise), ErreurVerrou);
    for (const auto& chemin : {dossier / "Absent.Vek", dossier / "."})
        EXPECT_EQ(FichierFautif([&] { OuvrirAutreJournal(session, chemin); }), chemin);
    EXPECT_FALSE(OuvrirAutreJournal(session, station).ouvert);
    EXPECT_EQ(session.cheminJournal, station);
    EXPECT_EQ(session.autreJournal, "");
    EXPECT_EQ(session.monLocator, "JN18EU");
    EXPECT_TRUE(session.journal.Support().EstLeMeme(station));
}

} // namespace
} // namespace orvalis
