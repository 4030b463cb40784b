#ifndef _WIN32

#include "core/chemins.h"
#include "core/dossier.h"
#include "core/noyau.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace orvalis {

std::string TexteChemin(const std::filesystem::path& chemin) {
    return chemin.string();
}

std::filesystem::path CheminTexte(std::string_view texte) {
    return {texte};
}

namespace noyau {
namespace {

int Descripteur(Poignee poignee) {
    return static_cast<int>(poignee);
}

std::error_code DerniereErreur() {
    return {errno, std::generic_category()};
}

int Drapeaux(ModeFichier mode) {
    switch (mode) {
    case ModeFichier::Lecture:
        return O_RDONLY | O_CLOEXEC;
    case ModeFichier::LectureEcriture:
    case ModeFichier::Partage:
        return O_RDWR | O_CLOEXEC;
    case ModeFichier::Creation:
        break;
    }
    return O_RDWR | O_CREAT | O_CLOEXEC;
}

// Whether the free blocks of the file system hold what is missing of `fin` bytes, as far as it
// says. For the file systems that reserve nothing.
bool ALaPlace(int descripteur, const struct stat& etat, std::int64_t fin) {
    constexpr std::int64_t kBloc = 512; // of st_blocks, whatever the file system
    struct statvfs disque = {};
    if (::fstatvfs(descripteur, &disque) != 0 || disque.f_blocks == 0)
        return true; // it does not say
    const auto libres = static_cast<double>(disque.f_bavail) * static_cast<double>(disque.f_frsize);
    return static_cast<double>(fin - etat.st_blocks * kBloc) <= libres;
}

} // namespace

Poignee Ouvrir(const std::filesystem::path& chemin, ModeFichier mode, std::error_code& raison) {
    constexpr mode_t kDroits = 0666;
    struct stat etat = {};
    if (::stat(chemin.c_str(), &etat) == 0 && !S_ISREG(etat.st_mode)) {
        raison = {S_ISDIR(etat.st_mode) ? EISDIR : ESPIPE, std::generic_category()};
        return kAucune;
    }
    const int descripteur = ::open(chemin.c_str(), Drapeaux(mode), kDroits);
    if (descripteur < 0)
        raison = DerniereErreur();
    return descripteur;
}

void Fermer(Poignee poignee) noexcept {
    ::close(Descripteur(poignee));
}

bool TenuParUnAutre(const std::filesystem::path& /*chemin*/, const std::error_code& /*raison*/) {
    return false; // opening locks nothing
}

std::int64_t Taille(Poignee poignee, std::error_code& raison) {
    struct stat etat = {};
    if (::fstat(Descripteur(poignee), &etat) != 0)
        raison = DerniereErreur();
    return etat.st_size;
}

std::size_t Lire(Poignee poignee, std::int64_t position, std::span<char> tampon,
                 std::error_code& raison) {
    ssize_t n = 0;
    do
        n = ::pread(Descripteur(poignee), tampon.data(), tampon.size(), position);
    while (n < 0 && errno == EINTR);
    if (n < 0)
        raison = DerniereErreur();
    return n < 0 ? 0 : static_cast<std::size_t>(n);
}

std::size_t Ecrire(Poignee poignee, std::int64_t position, std::span<const char> octets,
                   std::error_code& raison) {
    ssize_t n = 0;
    do
        n = ::pwrite(Descripteur(poignee), octets.data(), octets.size(), position);
    while (n < 0 && errno == EINTR);
    if (n <= 0)
        raison = n == 0 ? std::make_error_code(std::errc::no_space_on_device) : DerniereErreur();
    return n < 0 ? 0 : static_cast<std::size_t>(n);
}

void Reserver(Poignee poignee, std::int64_t fin, std::error_code& raison) {
    const int descripteur = Descripteur(poignee);
    struct stat etat = {};
    if (::fstat(descripteur, &etat) != 0) {
        raison = DerniereErreur();
        return;
    }
    if (::fallocate(descripteur, FALLOC_FL_KEEP_SIZE, 0, fin) == 0)
        return;
    const bool plein = errno == ENOSPC || errno == EDQUOT;
    if (!plein && ALaPlace(descripteur, etat, fin))
        return;
    raison = plein ? DerniereErreur() : std::make_error_code(std::errc::no_space_on_device);
    // What was reserved of it goes back.
    static_cast<void>(::ftruncate(descripteur, etat.st_size) == 0);
}

void Synchroniser(Poignee poignee, std::error_code& raison) {
    if (::fdatasync(Descripteur(poignee)) != 0 && errno != EINVAL && errno != EROFS)
        raison = DerniereErreur();
}

void Raccourcir(Poignee poignee, std::int64_t taille, std::error_code& raison) {
    if (::ftruncate(Descripteur(poignee), static_cast<off_t>(taille)) != 0)
        raison = DerniereErreur();
}

bool Verrouiller(Poignee poignee, bool /*lecture*/, std::error_code& raison) {
    if (::flock(Descripteur(poignee), LOCK_EX | LOCK_NB) == 0)
        return true;
    if (errno == EWOULDBLOCK)
        return false;
    if (errno != ENOLCK && errno != ENOSYS && errno != EOPNOTSUPP && errno != EINVAL)
        raison = DerniereErreur();
    return true;
}

bool EstLeMeme(Poignee poignee, const std::filesystem::path& autre) {
    struct stat ici = {};
    struct stat la = {};
    return ::fstat(Descripteur(poignee), &ici) == 0 && ::stat(autre.c_str(), &la) == 0 &&
           ici.st_dev == la.st_dev && ici.st_ino == la.st_ino;
}

void Renommer(const std::filesystem::path& ancien, const std::filesystem::path& nouveau,
              std::error_code& raison) {
    std::filesystem::rename(ancien, nouveau, raison);
}

void SynchroniserDossier(const std::filesystem::path& dossier, std::error_code& raison) {
    const int descripteur = ::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descripteur < 0)
        return;
    const bool fait = ::fsync(descripteur) == 0;
    const std::error_code echec = DerniereErreur();
    ::close(descripteur);
    if (!fait && (echec.value() == EIO || echec.value() == ENOSPC || echec.value() == EDQUOT))
        raison = echec;
}

std::error_code Commune(const std::error_code& raison) {
    return {raison.value(), std::generic_category()}; // the system's own numbers
}

std::span<const RaisonMotivee> RaisonsPropres() {
    return {};
}

std::filesystem::path LecteurDuSysteme() {
    return "/";
}

bool EstAmovible(const std::filesystem::path& racine) {
    return EstRacineAmovible(racine);
}

} // namespace noyau
} // namespace orvalis

#endif
