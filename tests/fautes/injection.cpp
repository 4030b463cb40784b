// GCC takes a buffer that is about to be filled for one that is read, under the sanitizers only.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

#include "fautes/injection.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvalis::operateur {
namespace {

constexpr std::size_t kPage = 4096;
constexpr unsigned kTous = kLecture | kEcriture | kPlace | kAutre;

constexpr Faute kFautes[] = {
    {.nom = "killed", .sortes = kTous, .tue = true},
    {.nom = "error", .sortes = kTous, .erreur = EIO},
    {.nom = "interrupted", .sortes = kLecture | kEcriture, .erreur = EINTR},
    {.nom = "disk full", .sortes = kEcriture | kPlace, .erreur = ENOSPC, .plein = true},
    {.nom = "cut short", .sortes = kLecture | kEcriture, .courte = true},
    {.nom = "cut short, then full", .sortes = kEcriture, .courte = true, .plein = true}};

// The replaced functions have no other way to know; some are called before main().
struct Etat {
    std::string lecteur;
    Plan plan;
    bool plein = false;
    Bilan* bilan = nullptr;
    std::string projete = {}; // the file that was mapped last
};
constinit Etat etat;

// The name under the drive; empty when the call is not followed.
std::string Suivi(const char* chemin) {
    const std::string_view texte(chemin);
    if (etat.bilan == nullptr || !texte.starts_with(etat.lecteur))
        return {};
    return texte == etat.lecteur ? "." : std::string(texte.substr(etat.lecteur.size() + 1));
}

// What goes through the workshop goes into the file that is mapped.
constexpr const char* kAtelier = "atelier";

std::string Suivi(int descripteur) {
    if (etat.bilan == nullptr || descripteur < 0)
        return {};
    std::array<char, kPage> chemin = {};
    const std::string lien = "/proc/self/fd/" + std::to_string(descripteur);
    ::syscall(SYS_readlink, lien.c_str(), chemin.data(), chemin.size() - 1);
    if (std::string_view(chemin.data()).find("orvalis-atelier") != std::string_view::npos)
        return kAtelier;
    return Suivi(chemin.data());
}

// Makes the call `vrai` with the number of bytes that the plan leaves it.
template<typename T, typename Vrai> T Passer(const std::string& fichier, Appel appel, Vrai vrai) {
    if (fichier.empty())
        return T(vrai(appel.octets));
    const std::string_view nom(appel.nom);
    if (nom == "mmap" && fichier != kAtelier)
        etat.projete = fichier;
    appel.ecrit = nom == "pwrite" || (nom == "pread" && fichier == kAtelier);
    (appel.ecrit && nom == "pread" ? etat.projete : fichier)
        .copy(appel.fichier.data(), appel.fichier.size() - 1);
    const bool ici = etat.bilan->nombre == etat.plan.rang;
    const Faute faute = ici ? etat.plan.faute : Faute();
    etat.bilan->appels.at(etat.bilan->nombre++) = appel;
    const bool plein = etat.plein && (appel.sorte & (kEcriture | kPlace)) != 0;
    etat.plein |= faute.plein;
    if (plein || faute.erreur != 0) {
        etat.bilan->appels.at(etat.bilan->nombre - 1).ecrit = false;
        errno = plein ? ENOSPC : faute.erreur;
        return T(-1L);
    }
    if (faute.tue && etat.plan.coupe != 0)
        vrai(etat.plan.coupe);
    if (faute.tue)
        ::syscall(SYS_kill, ::getpid(), SIGKILL);
    return T(vrai(faute.courte ? appel.octets / 2 : appel.octets));
}

} // namespace

std::string LancerArme(const std::string& lecteur, const Plan& plan, Bilan& bilan,
                       const std::function<std::string()>& agir) {
    constexpr unsigned kSecondes = 20;
    bilan = {};
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        ::alarm(kSecondes);
        Armer(lecteur, plan, bilan);
        agir().copy(bilan.message.data(), bilan.message.size() - 1);
        ::_exit(0);
    }
    int statut = -1;
    ::waitpid(enfant, &statut, 0);
    if (WIFSIGNALED(statut) && WTERMSIG(statut) == SIGKILL)
        return "killed";
    return statut == 0 ? bilan.message.data() : "crashed";
}

Bilan& NouveauBilan() {
    void* memoire =
        ::mmap(nullptr, sizeof(Bilan), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *new (memoire) Bilan; // NOLINT(cppcoreguidelines-owning-memory): the mapping's
}

void Armer(const std::string& lecteur, const Plan& plan, Bilan& bilan) {
    etat = {lecteur, plan, false, &bilan};
}

std::vector<Plan> Fautes(const Appel& appel, std::size_t rang) {
    std::vector<Plan> plans;
    for (const Faute& faute : kFautes)
        if ((faute.sortes & appel.sorte) != 0)
            plans.push_back({faute, rang, 0});
    // A signal stops a write of the system between two pages of the file.
    const auto debut = static_cast<std::size_t>(appel.position);
    for (auto p = (debut / kPage + 1) * kPage; p < debut + appel.octets; p += kPage)
        if (appel.sorte == kEcriture)
            plans.push_back({kFautes[0], rang, p - debut});
    return plans;
}

} // namespace orvalis::operateur

using namespace orvalis::operateur;

// A function of the C library: its type and name, its parameters, its file under the drive, its
// sort, bytes and position, and the call of the system that it is, with `n` bytes.
#define REMPLACER(T, nom, parametres, suivi, sorte, taille, position, ...)                         \
    extern "C" T nom parametres {                                                                  \
        return Passer<T>(suivi,                                                                    \
                         {sorte, static_cast<std::size_t>(taille), position, #nom, false, {}},     \
                         [&]([[maybe_unused]] std::size_t n) { return ::syscall(__VA_ARGS__); });  \
    }

// clang-format off
REMPLACER(ssize_t, pread, (int f, void* octets, size_t t, off_t p),
          Suivi(f), kLecture, t, p, SYS_pread64, f, octets, n, p)
REMPLACER(ssize_t, pwrite, (int f, const void* octets, size_t t, off_t p),
          Suivi(f), kEcriture, t, p, SYS_pwrite64, f, octets, n, p)
REMPLACER(int, open, (const char* nom, int drapeaux, ...),
          Suivi(nom), (drapeaux & O_CREAT) != 0 ? kPlace : kAutre, 0, 0,
          SYS_openat, AT_FDCWD, nom, drapeaux, 0600) // no fault depends on the rights
REMPLACER(ssize_t, pread64, (int f, void* octets, size_t t, off64_t p),
          Suivi(f), kLecture, t, p, SYS_pread64, f, octets, n, p)
REMPLACER(ssize_t, pwrite64, (int f, const void* octets, size_t t, off64_t p),
          Suivi(f), kEcriture, t, p, SYS_pwrite64, f, octets, n, p)
REMPLACER(int, open64, (const char* nom, int drapeaux, ...),
          Suivi(nom), (drapeaux & O_CREAT) != 0 ? kPlace : kAutre, 0, 0,
          SYS_openat, AT_FDCWD, nom, drapeaux, 0600)
REMPLACER(int, fallocate, (int f, int mode, off_t debut, off_t taille),
          Suivi(f), kPlace, 0, 0, SYS_fallocate, f, mode, debut, taille)
REMPLACER(int, fdatasync, (int f), Suivi(f), kPlace, 0, 0, SYS_fdatasync, f)
REMPLACER(int, fsync, (int f), Suivi(f), kPlace, 0, 0, SYS_fsync, f)
REMPLACER(int, ftruncate, (int f, off_t taille) noexcept,
          Suivi(f), kPlace, 0, 0, SYS_ftruncate, f, taille)
REMPLACER(int, fstat, (int f, struct stat* s) noexcept, Suivi(f), kAutre, 0, 0, SYS_fstat, f, s)
REMPLACER(int, stat, (const char* nom, struct stat* s) noexcept,
          Suivi(nom), kAutre, 0, 0, SYS_newfstatat, AT_FDCWD, nom, s, 0)
REMPLACER(int, rename, (const char* ancien, const char* nom) noexcept,
          Suivi(nom), kPlace, 0, 0, SYS_rename, ancien, nom)
REMPLACER(int, link, (const char* ancien, const char* nom) noexcept,
          Suivi(nom), kPlace, 0, 0, SYS_link, ancien, nom)
REMPLACER(int, mkdir, (const char* nom, mode_t droits) noexcept,
          Suivi(nom), kPlace, 0, 0, SYS_mkdir, nom, droits)
REMPLACER(int, memfd_create, (const char* nom, unsigned drapeaux) noexcept,
          etat.bilan == nullptr ? "" : kAtelier, kPlace, 0, 0, SYS_memfd_create, nom, drapeaux)
REMPLACER(void*, mmap, (void* a, size_t t, int acces, int drapeaux, int f, off_t p) noexcept,
          Suivi(f), kAutre, 0, 0, SYS_mmap, a, t, acces, drapeaux, f, p)
// clang-format on
