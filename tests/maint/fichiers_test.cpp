// Pairing, copy, backup folder and opening of another logbook.
#include "aides.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/ouverture.h"

#include <cerrno>
#include <fcntl.h>
#ifndef _WIN32
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#ifndef _WIN32
// What the system refuses: reserving room, every write from the one of that number on, opening for
// writing in a folder "protege"; and what blocks the file system says it has, and has free.
static struct {
    int reserver, ecriture;
    unsigned blocs, libres;
} refus;

extern "C" int fallocate(int, int, off_t, off_t) {
    errno = refus.reserver;
    return refus.reserver == 0 ? 0 : -1;
}
extern "C" int fstatvfs(int, struct statvfs* disque) noexcept {
    *disque = {};
    disque->f_blocks = refus.blocs;
    disque->f_bavail = refus.libres;
    disque->f_frsize = 1 << 20;
    return 0;
}
extern "C" ssize_t pwrite(int f, const void* octets, std::size_t n, off_t position) {
    if (refus.ecriture == 0 || --refus.ecriture > 0)
        return ::syscall(SYS_pwrite64, f, octets, n, position);
    refus.ecriture = 1;
    errno = EIO;
    return -1;
}
extern "C" int open(const char* chemin, int drapeaux, ...) {
    const bool refuse =
        (drapeaux & O_RDWR) != 0 && std::string_view(chemin).find("/protege/") != std::string::npos;
    errno = EACCES;
    return refuse ? -1 : static_cast<int>(::syscall(SYS_openat, AT_FDCWD, chemin, drapeaux, 0600));
}
#endif

namespace orvalis::aides::fichiers {

namespace fs = std::filesystem;
using namespace testing;

// What fails on a file.
auto EchoueSur(const fs::path& chemin) {
    return Throws<Erreur>(
        AllOf(Property(&Erreur::Chemin, chemin), Property(&Erreur::ConcerneLeCahier, false)));
}

TEST(Jumelage, OctetParOctet) {
    const std::string a = Contact("A"), b = Contact("B"), f = Fin(), blanche = Brute({});
    const std::string bref = b.substr(0, 70), courte = bref + std::string(95, ' ');
    std::string longue;
    for (int i = 0; i < 2 * static_cast<int>(kFichesParBloc) + 2; ++i)
        longue += Contact(std::to_string(i));
    const std::array<std::string, 3> cas[] = {
        // logbook, source (none: the logbook itself), logbook afterwards
        {a + f, Contact("  F 1  ") + b + Fin("JN33AA"), a + Contact("F 1") + b + f},
        {a + Fin("IN00AA"), Fin("JN33AA") + b, a + f},
        {f, a + b + f, a + b + f},
        {f, Contact("              X") + f, Contact("X") + f},     // set right in its field
        {a + f + a + a + b + a, b + b + f, a + b + b + f + b + a}, // remains behind the end
        {a + f, blanche + bref, a + blanche + courte + f},
        {bref, a + a + f, courte + a + a + f},
        {longue + f, "", longue + longue + f}};
    for (const auto& [avant, octets, apres] : cas) {
        const Dossier dossier;
        const auto cible = dossier.Poser("F5ABC.Vek", avant);
        const auto source = octets.empty() ? cible : dossier.Poser("Source.Vek", octets);
        Cahier cahier = Ouvrir(cible);
        const std::int32_t ajoutes = cahier.nbFiches + JumelerCahier(cahier, MaStation(), source);
        EXPECT_EQ(Lire(cible), apres);
        EXPECT_EQ(Lire(source), octets.empty() ? apres : octets);
        EXPECT_EQ(cahier.nbFiches, apres.find('\\') / 165);
        EXPECT_EQ(cahier.Prochaine(), NumeroFiche{ajoutes} + 1);
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
    for (const auto& [octets, avant, apres] : cas) {
        const Dossier dossier;
        const auto chemin = dossier.Poser("F5ABC.Vek", octets);
        const auto cible = avant.empty() ? dossier / "C.Vek" : dossier.Poser("C.Vek", avant);
        CopierCahier(Ouvrir(chemin), MaStation(), cible);
        EXPECT_EQ(Lire(cible), apres);
        EXPECT_EQ(Lire(chemin), octets);
    }
}

#ifndef _WIN32
TEST(Copie, EchecsDits) {
    const std::string entier = "reste intact", effacee = "a été effacé", doute = "plus entier",
                      gros = Fois(1700, Contact("A")) + Fin(), ancienne = Contact("X") + Fin();
    const std::tuple<int, int, std::string, std::string> cas[] = {
        // room refused, write refused; what it says of an older target, and of a new one
        {ENOSPC, 0, entier, effacee},
        {EOPNOTSUPP, 0, entier, effacee},
        {0, 2, doute, effacee}};
    for (const auto& [reserver, ecriture, avecAncienne, sans] : cas) {
        const Dossier dossier;
        const Cahier cahier = Ouvrir(dossier.Poser("F5ABC.Vek", gros));
        const auto cible = dossier.Poser("Ancienne.Vek", ancienne);
        fs::create_symlink(dossier / "N.Vek", dossier / "Lien.Vek");
        for (const auto& [nom, dit] :
             Textes{{"Ancienne.Vek", avecAncienne}, {"N.Vek", sans}, {"Lien.Vek", sans}}) {
            refus = {reserver, ecriture, 1, 0};
            const fs::path chemin = dossier / nom;
            EXPECT_THAT([&] { CopierCahier(cahier, MaStation(), chemin); },
                        ThrowsMessage<Erreur>(HasSubstr(dit)));
        }
        refus = {};
        EXPECT_EQ(Lire(cible) == ancienne, avecAncienne == entier);
        EXPECT_FALSE(fs::exists(dossier / "N.Vek"));
        for (const unsigned blocs : {0U, 1U}) { // one that does not say, one that has room
            refus = {EOPNOTSUPP, 0, blocs, blocs};
            EXPECT_NO_THROW(CopierCahier(cahier, MaStation(), dossier / "N.Vek"));
            EXPECT_EQ(Lire(dossier / "N.Vek"), gros);
        }
        refus = {};
    }
}
#endif

TEST(Ouverture, AutreCahier) {
    const std::string a = Contact("A"), f = Fin("JN33AA");
    using Ouvert = std::tuple<std::string, std::string, std::int32_t, bool, bool, bool>;
    const std::tuple<std::string, std::string, Ouvert> cas[] = {
        // file, its bytes; name, own locator, N, read-only, with an end of log, of whole records
        {"Été.Vek", a + f + a, {"Été", "JN33AA", 1, true, true, true}},
        {"court.VEK", Fin(" JN3  "), {"court", "JN3   ", 0, true, true, true}},
        {"F5ABC.Vek", a + a + f, {"F5ABC", "JN33AA", 2, false, true, true}},
#ifndef _WIN32
        {"protege/F5ABC.Vek", a + a + f, {"F5ABC", "JN33AA", 2, true, true, true}},
#endif
        {"Sans.Vek", a + a, {"Sans", "JN18AA", 2, true, false, true}},
        {"Coupe.Vek", a + f + "abc", {"Coupe", "JN33AA", 1, true, true, false}},
        {".Vek", f, {".Vek", "JN33AA", 0, true, true, true}}};
    for (const auto& [nom, octets, attendu] : cas) {
        const Dossier dossier;
        Station station = MaStation();
        Cahier cahier = Ouvrir(dossier.Poser("Station.Vek", Fois(3, a) + f));
        fs::create_directory(dossier / "protege");
        const auto chemin = dossier.Poser(nom, octets);
        EXPECT_TRUE(OuvrirAutreCahier(cahier, station, dossier.Poser("Avant.Vek", Fin(""))).ouvert);
        const auto [ouvert, etat] = OuvrirAutreCahier(cahier, station, chemin);
        EXPECT_TRUE(ouvert && cahier.chemin == chemin);
        EXPECT_EQ(Ouvert(cahier.autre, station.monLocator, cahier.nbFiches, cahier.lectureSeule,
                         etat.finPresente, etat.longueurEntiere),
                  attendu);
    }
}

TEST(Copie, DossierDesSauvegardes) {
    const Dossier lecteur;
    EXPECT_EQ(CheminSauvegardes(lecteur / ""), lecteur / "Orvalis/VekSave");
    EXPECT_TRUE(fs::is_directory(lecteur / "Orvalis/VekSave"));
    fs::rename(lecteur / "Orvalis/VekSave", lecteur / "Orvalis/veksave");
    EXPECT_EQ(CheminSauvegardes(lecteur / "").filename(), "veksave");
    fs::remove(lecteur / "Orvalis/veksave");
    const auto intrus = lecteur.Poser("Orvalis/VekSave", "");
    EXPECT_THAT([&] { static_cast<void>(CheminSauvegardes(lecteur / "")); }, EchoueSur(intrus));
}

#ifndef _WIN32
TEST(Echecs, NeChangentRien) {
    const Dossier dossier;
    const std::string octets = Contact("A") + Fin(), deux = Contact("B") + Contact("C") + Fin();
    const auto station = dossier.Poser("F5ABC.Vek", octets), prise = dossier.Poser("P.Vek", deux);
    const auto absente = dossier / "Absente.Vek", ici = dossier / ".";
    Station nous = MaStation();
    Cahier cahier = Ouvrir(station);
    const Cahier autreProgramme = Ouvrir(prise);
    for (const auto& chemin : {absente, ici, fs::path("/dev/null")}) {
        EXPECT_THAT([&] { JumelerCahier(cahier, nous, chemin); }, EchoueSur(chemin));
        EXPECT_THAT([&] { static_cast<void>(OuvrirAutreCahier(cahier, nous, chemin)); },
                    EchoueSur(chemin));
    }
    for (const fs::path& cible : {dossier / "absent/C.Vek", ici, fs::path("/dev/full")})
        EXPECT_THAT([&] { CopierCahier(cahier, nous, cible); }, EchoueSur(cible));
    EXPECT_THROW(static_cast<void>(OuvrirAutreCahier(cahier, nous, prise)), Erreur);
    EXPECT_THROW(CopierCahier(cahier, nous, prise), Erreur);

    fs::create_symlink(station, dossier / "Lien.Vek");
    EXPECT_THAT([&] { CopierCahier(cahier, nous, dossier / "Lien.Vek"); },
                EchoueSur(dossier / "Lien.Vek"));
    EXPECT_FALSE(OuvrirAutreCahier(cahier, nous, dossier / "Lien.Vek").ouvert);
    EXPECT_EQ(Lire(station) + Lire(prise), octets + deux);
    EXPECT_TRUE(cahier.chemin == station && cahier.autre.empty());
    EXPECT_TRUE(cahier.fichier.Support().EstLeMeme(station));
    EXPECT_EQ(nous.monLocator + std::to_string(cahier.nbFiches), "JN18AA1");
}
#endif

#ifndef _WIN32
TEST(Echecs, UnDisquePleinRendLeCahierTelQuIlEtait) {
    const std::string a = Contact("A"), f = Fin(), deux = Fois(2, a);
    for (const std::string& avant : {a + f, a, a + deux.substr(0, 200), f}) {
        const Dossier dossier;
        const auto source = dossier.Poser("S.Vek", Fois(9, deux) + f);
        Cahier cahier = Ouvrir(dossier.Poser("F5ABC.Vek", avant));
        const std::int32_t n = cahier.nbFiches;
        for (const std::size_t place : {0, 1, 107, 165, 200}) {
            const DisquePlein plein(avant.size() + place);
            EXPECT_THROW(JumelerCahier(cahier, MaStation(), source), Erreur);
            EXPECT_EQ(Lire(cahier.chemin), avant) << place;
            const auto interrompre = [&] {
                cahier.fichier.Ecrire(cahier.Prochaine(), Enregistrement(a));
                throw std::bad_alloc();
            };
            EXPECT_THROW(AllongerCahier(cahier, interrompre), std::exception);
            EXPECT_EQ(Lire(cahier.chemin), avant) << place;
            if (place > 164)
                continue;
            EXPECT_THROW(AjouterFiche(cahier, Enregistrement(a), FicheFinDeLog("")), Erreur);
            EXPECT_EQ(Lire(cahier.chemin), avant) << place;
            EXPECT_EQ(cahier.nbFiches, n);
        }
    }
}
#endif

} // namespace orvalis::aides::fichiers
