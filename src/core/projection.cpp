#include "core/projection.h"

#include <algorithm>

namespace orvalis {

void Projection::Remplacer(std::int64_t position, std::size_t nombre) {
    // Not out of the mapping: where another program has cut the file short, that ends in a signal.
    const std::span<char> anciens = std::span(anciens_).first(nombre);
    if (fichier_.Lire(position, anciens) < nombre)
        throw fichier_.Echec(NatureErreur::Ecrire, std::make_error_code(std::errc::io_error));
    Remplacer(position, anciens);
}

EcritureEntiere::EcritureEntiere(Fichier& fichier, std::int64_t taille,
                                 std::optional<std::int64_t> depuis)
    : fichier_(fichier) {
    if constexpr (noyau::kEcritureIndivisible)
        return;
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
