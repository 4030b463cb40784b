#ifndef _WIN32

#include "core/projection.h"

#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace orvalis {
namespace {

char* Projeter(noyau::Poignee descripteur, std::size_t taille) {
    void* adresse = ::mmap(nullptr, taille, PROT_READ | PROT_WRITE, MAP_SHARED,
                           static_cast<int>(descripteur), 0);
    return adresse == MAP_FAILED ? nullptr : static_cast<char*>(adresse);
}

} // namespace

Projection::Projection(const Fichier& fichier, std::int64_t taille)
    : fichier_(fichier), taille_(static_cast<std::size_t>(taille)),
      octets_(Projeter(fichier.Poignee(), taille_)) {
    if (octets_ != nullptr)
        page_ = ::memfd_create("orvalis-atelier", MFD_CLOEXEC);
    if (page_ != noyau::kAucune &&
        ::ftruncate(static_cast<int>(page_), static_cast<off_t>(kPlusGrandePiece)) == 0)
        atelier_ = Projeter(page_, kPlusGrandePiece);
    if (atelier_ == nullptr) {
        const std::error_code raison(errno, std::generic_category());
        Liberer();
        // Not a failure of the logbook: nothing was lost, and plain writes go on.
        throw Erreur(NatureErreur::Projeter, fichier.Chemin(), raison);
    }
}

Projection::~Projection() {
    Liberer();
}

void Projection::Liberer() noexcept {
    if (atelier_ != nullptr)
        ::munmap(atelier_, kPlusGrandePiece);
    if (page_ != noyau::kAucune)
        ::close(static_cast<int>(page_));
    if (octets_ != nullptr)
        ::munmap(octets_, taille_);
}

void Projection::Amener([[maybe_unused]] std::int64_t position) noexcept {
#ifdef MADV_POPULATE_READ // where the system does not know it, each page comes when it is written
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t debut = static_cast<std::size_t>(position) / page * page;
    static_cast<void>(::madvise(octets_ + debut, taille_ - debut, MADV_POPULATE_READ));
#endif
}

Erreur Projection::Echec() const {
    // The kernel says "bad address" for a page that the disk does not take.
    const int raison = errno == EFAULT || errno == 0 ? EIO : errno;
    return fichier_.Echec(NatureErreur::Ecrire, {raison, std::generic_category()});
}

void Projection::Remplacer(std::int64_t position, std::span<const char> anciens) {
    char* ici = octets_ + position;
    ssize_t copies = 0;
    do {
        errno = 0;
        copies = ::pread(static_cast<int>(page_), ici, anciens.size(), 0);
    } while (copies < 0 && errno == EINTR);
    if (copies == static_cast<ssize_t>(anciens.size()))
        return;
    const Erreur echec = Echec();
    if (copies > 0)
        std::memcpy(ici, anciens.data(), static_cast<std::size_t>(copies));
    throw echec;
}

} // namespace orvalis

#endif
