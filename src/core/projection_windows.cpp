#ifdef _WIN32

#include "core/projection.h"

#include <cstring>
#include <windows.h>

namespace orvalis {

// The view is only read, and the workshop is memory of the program: a store into the view could be
// cut short anywhere, a single write of the system is not.
Projection::Projection(const Fichier& fichier, std::int64_t taille)
    : fichier_(fichier), taille_(static_cast<std::size_t>(taille)) {
    HANDLE projection = ::CreateFileMappingW(reinterpret_cast<HANDLE>(fichier.Poignee()), nullptr,
                                             PAGE_READONLY, 0, 0, nullptr);
    if (projection != nullptr) {
        octets_ = static_cast<char*>(::MapViewOfFile(projection, FILE_MAP_READ, 0, 0, taille_));
        const DWORD raison = ::GetLastError();
        ::CloseHandle(projection); // the view keeps it
        ::SetLastError(raison);
    }
    if (octets_ != nullptr)
        atelier_ = static_cast<char*>(
            ::VirtualAlloc(nullptr, kPlusGrandePiece, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (atelier_ == nullptr || fichier.EstProtege()) {
        const DWORD raison = atelier_ == nullptr ? ::GetLastError() : ERROR_ACCESS_DENIED;
        Liberer();
        // Not a failure of the logbook: nothing was lost.
        throw Erreur(NatureErreur::Projeter, fichier.Chemin(),
                     {static_cast<int>(raison), std::system_category()});
    }
}

Projection::~Projection() {
    Liberer();
}

void Projection::Liberer() noexcept {
    if (atelier_ != nullptr)
        ::VirtualFree(atelier_, 0, MEM_RELEASE);
    if (octets_ != nullptr)
        ::UnmapViewOfFile(octets_);
}

void Projection::Amener(std::int64_t /*position*/) noexcept {
    // What is written does not pass through the view.
}

Erreur Projection::Echec() const {
    return fichier_.Echec(NatureErreur::Ecrire,
                          {static_cast<int>(::GetLastError()), std::system_category()});
}

void Projection::Remplacer(std::int64_t position, std::span<const char> anciens) {
    std::error_code raison;
    const std::span<const char> piece(atelier_, anciens.size());
    const std::size_t ecrits = noyau::Ecrire(fichier_.Poignee(), position, piece, raison);
    if (ecrits < piece.size()) {
        std::error_code ignoree; // what failed first is told
        if (ecrits > 0)
            static_cast<void>(noyau::Ecrire(fichier_.Poignee(), position, anciens, ignoree));
        throw fichier_.Echec(NatureErreur::Ecrire,
                             raison ? raison : std::make_error_code(std::errc::no_space_on_device));
    }
    // A file on another computer may keep its view apart from what is written. Then nothing is lost
    // yet, but the next piece would be put together from what is no longer there.
    if (std::memcmp(octets_ + position, piece.data(), piece.size()) != 0)
        throw Erreur(NatureErreur::Projeter, fichier_.Chemin(),
                     std::make_error_code(std::errc::no_such_device));
}

} // namespace orvalis

#endif
