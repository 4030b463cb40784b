#include "core/projection.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace orvalis {
namespace {

char* Projeter(int descripteur, std::size_t taille) {
    void* adresse = ::mmap(nullptr, taille, PROT_READ | PROT_WRITE, MAP_SHARED, descripteur, 0);
    return adresse == MAP_FAILED ? nullptr : static_cast<char*>(adresse);
}

} // namespace

Projection::Projection(const Fichier& fichier, std::int64_t taille)
    : fichier_(fichier), taille_(static_cast<std::size_t>(taille)),
      octets_(Projeter(fichier.Descripteur(), taille_)) {
    if (octets_ != nullptr)
        page_ = ::memfd_create("orvalis-atelier", MFD_CLOEXEC);
    if (page_ >= 0 && ::ftruncate(page_, static_cast<off_t>(kPlusGrandePiece)) == 0)
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
    if (page_ >= 0)
        ::close(page_);
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

void Projection::Remplacer(std::int64_t position, std::size_t nombre) {
    // Not out of the mapping: where another program has cut the file short, that ends in a signal.
    const std::span<char> anciens = std::span(anciens_).first(nombre);
    if (fichier_.Lire(position, anciens) < nombre)
        throw fichier_.Echec(NatureErreur::Ecrire, std::make_error_code(std::errc::io_error));
    Remplacer(position, anciens);
}

void Projection::Remplacer(std::int64_t position, std::span<const char> anciens) {
    char* ici = octets_ + position;
    ssize_t copies = 0;
    do {
        errno = 0;
        copies = ::pread(page_, ici, anciens.size(), 0);
    } while (copies < 0 && errno == EINTR);
    if (copies == static_cast<ssize_t>(anciens.size()))
        return;
    const Erreur echec = Echec();
    if (copies > 0)
        std::memcpy(ici, anciens.data(), static_cast<std::size_t>(copies));
    throw echec;
}

EcritureEntiere::EcritureEntiere(Fichier& fichier, std::int64_t taille,
                                 std::optional<std::int64_t> depuis)
    : fichier_(fichier) {
    try {
        projection_.emplace(fichier, taille);
        if (depuis)
            projection_->Amener(*depuis);
    } catch (const Erreur&) { // NOLINT(bugprone-empty-catch)
        // Better a write that a kill might cut than none.
    }
}

void EcritureEntiere::Poser(std::int64_t position, std::span<const char> octets) {
    if (!projection_)
        return fichier_.Ecrire(position, octets);
    std::copy(octets.begin(), octets.end(), projection_->Atelier().begin());
    projection_->Remplacer(position, octets.size());
}

void EcritureEntiere::Poser(std::int64_t position, std::span<const char> octets,
                            std::span<const char> anciens) {
    if (!projection_)
        return fichier_.Ecrire(position, octets);
    std::copy(octets.begin(), octets.end(), projection_->Atelier().begin());
    projection_->Remplacer(position, anciens);
}

void EcrireEntier(Fichier& fichier, std::int64_t position, std::span<const char> octets) {
    const auto fin = position + static_cast<std::int64_t>(octets.size());
    if (octets.empty() || octets.size() > kPlusGrandePiece || fichier.Taille() < fin)
        return fichier.Ecrire(position, octets);
    EcritureEntiere(fichier, fin).Poser(position, octets);
}

} // namespace orvalis
