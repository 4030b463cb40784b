// GCC takes a buffer that is about to be filled for one that is read, under the sanitizers only.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

#include "fautes/injection.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace orvalis::essais {
namespace {

constexpr std::size_t kPage = 4096;

struct Etat {
    bool arme = false;
    bool plein = false;
    std::string lecteur;
    Plan plan;
    std::vector<Appel> appels;
};

// The replaced functions have no other way to know.
Etat& Courant() {
    static Etat etat;
    return etat;
}

bool armee = false; // read by calls made before Courant() can be

void Mourir() {
    ::syscall(SYS_kill, ::getpid(), SIGKILL);
}

bool Suivi(const char* chemin) {
    return armee && std::string_view(chemin).starts_with(Courant().lecteur);
}

bool Suivi(int descripteur) {
    if (!armee || descripteur < 0)
        return false;
    std::array<char, kPage> chemin = {};
    const std::string lien = "/proc/self/fd/" + std::to_string(descripteur);
    ::syscall(SYS_readlink, lien.c_str(), chemin.data(), chemin.size() - 1);
    return Suivi(chemin.data()) ||
           std::string_view(chemin.data()).find("orvalis-atelier") != std::string_view::npos;
}

// What becomes of the next call: nothing special, an error (errno is set), or fewer bytes.
struct Sort {
    bool echec = false;
    std::size_t octets = 0;
    bool puisMort = false;
};

Sort Passer(Appel appel) {
    Etat& etat = Courant();
    const bool ici = etat.appels.size() == etat.plan.rang;
    const std::size_t octets = appel.octets;
    const bool place = appel.sorte == SorteAppel::Ecriture || appel.sorte == SorteAppel::Place;
    etat.appels.push_back(std::move(appel));
    if (etat.plein && place) {
        errno = ENOSPC;
        return {true, 0, false};
    }
    switch (ici ? etat.plan.faute : Faute::Aucune) {
    case Faute::Aucune:
        break;
    case Faute::Tuee:
        Mourir();
        break;
    case Faute::TueeDedans:
        return {false, etat.plan.coupe, true};
    case Faute::DisquePlein:
        etat.plein = true;
        errno = ENOSPC;
        return {true, 0, false};
    case Faute::CourtePuisPlein:
        etat.plein = true;
        return {false, octets / 2, false};
    case Faute::Courte:
        return {false, octets / 2, false};
    case Faute::Erreur:
        errno = EIO;
        return {true, 0, false};
    }
    return {false, octets, false};
}

// A call that moves no bytes.
template<typename Vrai> long Simple(bool suivi, const char* nom, SorteAppel sorte, Vrai vrai) {
    if (suivi && Passer({sorte, 0, 0, nom}).echec)
        return -1;
    return vrai();
}

long Transferer(long numero, int descripteur, const void* tampon, std::size_t n, off_t position) {
    if (!Suivi(descripteur))
        return ::syscall(numero, descripteur, tampon, n, position);
    const bool ecrit = numero == SYS_pwrite64;
    const Sort sort = Passer({ecrit ? SorteAppel::Ecriture : SorteAppel::Lecture, n, position,
                              ecrit ? "pwrite" : "pread"});
    if (sort.echec)
        return -1;
    const long fait = ::syscall(numero, descripteur, tampon, sort.octets, position);
    if (sort.puisMort)
        Mourir();
    return fait;
}

} // namespace

void Armer(const std::string& lecteur, const Plan& plan) {
    Courant() = {true, false, lecteur, plan, {}};
    armee = true;
}

std::vector<Appel> Desarmer() {
    armee = false;
    return std::exchange(Courant().appels, {});
}

std::vector<Plan> Fautes(const Appel& appel, std::size_t rang) {
    std::vector<Plan> plans = {{Faute::Tuee, rang, 0}, {Faute::Erreur, rang, 0}};
    if (appel.sorte == SorteAppel::Lecture)
        plans.push_back({Faute::Courte, rang, 0});
    if (appel.sorte == SorteAppel::Place)
        plans.push_back({Faute::DisquePlein, rang, 0});
    if (appel.sorte != SorteAppel::Ecriture)
        return plans;
    for (const Faute faute : {Faute::DisquePlein, Faute::Courte, Faute::CourtePuisPlein})
        plans.push_back({faute, rang, 0});
    // A signal stops a write of the system between two pages of the file.
    const auto debut = static_cast<std::size_t>(appel.position);
    for (std::size_t p = (debut / kPage + 1) * kPage; p < debut + appel.octets; p += kPage)
        plans.push_back({Faute::TueeDedans, rang, p - debut});
    return plans;
}

} // namespace orvalis::essais

using orvalis::essais::Simple;
using orvalis::essais::SorteAppel;
using orvalis::essais::Suivi;
using orvalis::essais::Transferer;

// The names are those of the C library.
extern "C" {

int open(const char* chemin, int drapeaux, ...) {
    va_list suite;
    va_start(suite, drapeaux);
    const mode_t droits = va_arg(suite, mode_t);
    va_end(suite);
    const SorteAppel sorte = (drapeaux & O_CREAT) != 0 ? SorteAppel::Place : SorteAppel::Autre;
    return static_cast<int>(Simple(Suivi(chemin), "open", sorte, [&] {
        return ::syscall(SYS_openat, AT_FDCWD, chemin, drapeaux, droits);
    }));
}

ssize_t pread(int descripteur, void* tampon, std::size_t n, off_t position) {
    return Transferer(SYS_pread64, descripteur, tampon, n, position);
}

ssize_t pwrite(int descripteur, const void* tampon, std::size_t n, off_t position) {
    return Transferer(SYS_pwrite64, descripteur, tampon, n, position);
}

int fdatasync(int descripteur) {
    return static_cast<int>(Simple(Suivi(descripteur), "fdatasync", SorteAppel::Place,
                                   [&] { return ::syscall(SYS_fdatasync, descripteur); }));
}

int ftruncate(int descripteur, off_t taille) noexcept {
    return static_cast<int>(Simple(Suivi(descripteur), "ftruncate", SorteAppel::Place,
                                   [&] { return ::syscall(SYS_ftruncate, descripteur, taille); }));
}

int fstat(int descripteur, struct stat* etat) noexcept {
    return static_cast<int>(Simple(Suivi(descripteur), "fstat", SorteAppel::Autre,
                                   [&] { return ::syscall(SYS_fstat, descripteur, etat); }));
}

int stat(const char* chemin, struct stat* etat) noexcept {
    return static_cast<int>(Simple(Suivi(chemin), "stat", SorteAppel::Autre, [&] {
        return ::syscall(SYS_newfstatat, AT_FDCWD, chemin, etat, 0);
    }));
}

int rename(const char* ancien, const char* nouveau) noexcept {
    return static_cast<int>(Simple(Suivi(nouveau), "rename", SorteAppel::Place,
                                   [&] { return ::syscall(SYS_rename, ancien, nouveau); }));
}

int mkdir(const char* chemin, mode_t droits) noexcept {
    return static_cast<int>(Simple(Suivi(chemin), "mkdir", SorteAppel::Place,
                                   [&] { return ::syscall(SYS_mkdir, chemin, droits); }));
}

int memfd_create(const char* nom, unsigned int drapeaux) noexcept {
    return static_cast<int>(Simple(orvalis::essais::armee, "memfd_create", SorteAppel::Place,
                                   [&] { return ::syscall(SYS_memfd_create, nom, drapeaux); }));
}

void* mmap(void* adresse, std::size_t n, int acces, int drapeaux, int descripteur,
           off_t position) noexcept {
    const long fait = Simple(Suivi(descripteur), "mmap", SorteAppel::Autre, [&] {
        return ::syscall(SYS_mmap, adresse, n, acces, drapeaux, descripteur, position);
    });
    return reinterpret_cast<void*>(fait); // NOLINT(performance-no-int-to-ptr)
}

} // extern "C"
