#include "core/fichier.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace orvalis {
namespace {

std::error_code DerniereErreur() {
    return {errno, std::generic_category()};
}

int Drapeaux(ModeFichier mode) {
    switch (mode) {
    case ModeFichier::Lecture:
        return O_RDONLY | O_CLOEXEC;
    case ModeFichier::LectureEcriture:
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

Fichier::Fichier(std::filesystem::path chemin, ModeFichier mode)
    : protege_(mode == ModeFichier::Lecture), chemin_(std::move(chemin)) {
    constexpr mode_t kDroits = 0666;
    const auto nature = mode == ModeFichier::Creation ? NatureErreur::Creer : NatureErreur::Ouvrir;
    // A pipe would keep the program waiting, a device has no end to read up to.
    struct stat etat = {};
    if (::stat(chemin_.c_str(), &etat) == 0 && !S_ISREG(etat.st_mode))
        throw Echec(nature, {S_ISDIR(etat.st_mode) ? EISDIR : ESPIPE, std::generic_category()});
    descripteur_ = ::open(chemin_.c_str(), Drapeaux(mode), kDroits);
    if (descripteur_ < 0)
        throw Echec(nature, DerniereErreur());
}

Fichier::Fichier(Fichier&& autre) noexcept
    : descripteur_(std::exchange(autre.descripteur_, -1)), protege_(autre.protege_),
      estLeCahier_(autre.estLeCahier_), chemin_(std::move(autre.chemin_)) {}

Fichier& Fichier::operator=(Fichier&& autre) noexcept {
    if (this != &autre) {
        Fermer();
        descripteur_ = std::exchange(autre.descripteur_, -1);
        protege_ = autre.protege_;
        estLeCahier_ = autre.estLeCahier_;
        chemin_ = std::move(autre.chemin_);
    }
    return *this;
}

Fichier::~Fichier() {
    Fermer();
}

void Fichier::Fermer() noexcept {
    if (descripteur_ >= 0)
        ::close(descripteur_);
    descripteur_ = -1;
}

Erreur Fichier::Echec(NatureErreur nature, std::error_code raison) const {
    Erreur echec(nature, chemin_, raison);
    if (estLeCahier_)
        echec.ImputerAuCahier();
    return echec;
}

std::int64_t Fichier::Taille() const {
    struct stat etat = {};
    if (::fstat(descripteur_, &etat) != 0)
        throw Echec(NatureErreur::Lire, DerniereErreur());
    return etat.st_size;
}

std::size_t Fichier::Lire(std::int64_t position, std::span<char> tampon) const {
    std::size_t lus = 0;
    while (lus < tampon.size()) {
        const auto n = ::pread(descripteur_, tampon.data() + lus, tampon.size() - lus,
                               position + static_cast<std::int64_t>(lus));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            throw Echec(NatureErreur::Lire, DerniereErreur());
        if (n == 0)
            break;
        lus += static_cast<std::size_t>(n);
    }
    return lus;
}

void Fichier::Ecrire(std::int64_t position, std::span<const char> octets) {
    std::string comble;
    if (const std::int64_t taille = Taille(); taille < position) {
        comble.assign(static_cast<std::size_t>(position - taille), ' ');
        comble.append(octets.data(), octets.size());
        octets = comble;
        position = taille;
    }
    for (std::size_t ecrits = 0; ecrits < octets.size();) {
        const auto n = ::pwrite(descripteur_, octets.data() + ecrits, octets.size() - ecrits,
                                position + static_cast<std::int64_t>(ecrits));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            throw Echec(NatureErreur::Ecrire,
                        n == 0 ? std::make_error_code(std::errc::no_space_on_device)
                               : DerniereErreur());
        ecrits += static_cast<std::size_t>(n);
    }
}

void Fichier::Reserver(std::int64_t fin) {
    struct stat etat = {};
    if (::fstat(descripteur_, &etat) != 0)
        throw Echec(NatureErreur::Lire, DerniereErreur());
    if (::fallocate(descripteur_, FALLOC_FL_KEEP_SIZE, 0, fin) == 0)
        return;
    const bool plein = errno == ENOSPC || errno == EDQUOT;
    if (!plein && ALaPlace(descripteur_, etat, fin))
        return;
    const std::error_code raison =
        plein ? DerniereErreur() : std::make_error_code(std::errc::no_space_on_device);
    // What was reserved of it goes back.
    static_cast<void>(::ftruncate(descripteur_, etat.st_size) == 0);
    throw Echec(NatureErreur::Ecrire, raison);
}

void Fichier::Synchroniser() {
    if (::fdatasync(descripteur_) != 0 && errno != EINVAL && errno != EROFS)
        throw Echec(NatureErreur::Synchroniser, DerniereErreur());
}

void Fichier::Raccourcir(std::int64_t taille) {
    if (::ftruncate(descripteur_, static_cast<off_t>(taille)) != 0)
        throw Echec(NatureErreur::Ecrire, DerniereErreur());
}

bool Fichier::Verrouiller() {
    if (::flock(descripteur_, LOCK_EX | LOCK_NB) == 0)
        return true;
    if (errno == EWOULDBLOCK)
        return false;
    if (errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP || errno == EINVAL)
        return true;
    throw Echec(NatureErreur::Verrouiller, DerniereErreur());
}

bool Fichier::EstLeMeme(const std::filesystem::path& autre) const {
    struct stat ici = {};
    struct stat la = {};
    return EstOuvert() && ::fstat(descripteur_, &ici) == 0 && ::stat(autre.c_str(), &la) == 0 &&
           ici.st_dev == la.st_dev && ici.st_ino == la.st_ino;
}

void SynchroniserNom(const std::filesystem::path& fichier) {
    std::filesystem::path dossier = fichier.parent_path();
    if (dossier.empty())
        dossier = ".";
    const int descripteur = ::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descripteur < 0)
        return;
    const bool fait = ::fsync(descripteur) == 0;
    const std::error_code raison = DerniereErreur();
    ::close(descripteur);
    if (!fait && (raison.value() == EIO || raison.value() == ENOSPC || raison.value() == EDQUOT))
        throw Erreur(NatureErreur::Synchroniser, dossier, raison);
}

} // namespace orvalis
