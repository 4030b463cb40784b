#include "core/fichier_fiches.h"

#include <algorithm>

namespace orvalis {
namespace {

std::span<char> Tampon(std::span<QsoRecord> fiches) {
    return {fiches.data()->octets.data(), fiches.size_bytes()};
}

} // namespace

std::span<const char> OctetsFiches(std::span<const QsoRecord> fiches) {
    return {reinterpret_cast<const char*>(fiches.data()), fiches.size_bytes()};
}

QsoRecord FichierFiches::Lire(NumeroFiche k) const {
    QsoRecord fiche;
    static_cast<void>(Lire(k, std::span(&fiche, 1)));
    return fiche;
}

std::size_t FichierFiches::Lire(NumeroFiche k, std::span<QsoRecord> fiches) const {
    if (fiches.empty())
        return 0;
    const std::span<char> octets = Tampon(fiches);
    const std::size_t lus = fichier_.Lire(PositionFiche(k), octets);
    std::fill(octets.begin() + static_cast<std::ptrdiff_t>(lus), octets.end(), ' ');
    return (lus + kTailleFiche - 1) / kTailleFiche;
}

void FichierFiches::Ecrire(NumeroFiche k, std::span<const QsoRecord> fiches) {
    EcrireEntier(fichier_, PositionFiche(k), OctetsFiches(fiches));
}

namespace {

// Shows `voir` every record before the end-of-log record; returns how many there are.
template<typename Voir> std::int32_t Parcourir(const FichierFiches& fichier, Voir voir) {
    std::vector<QsoRecord> bloc(kFichesParBloc);
    for (NumeroFiche k = kPremiereFiche;;) {
        const std::size_t lus = fichier.Lire(k, bloc);
        for (std::size_t i = 0; i < lus; ++i) {
            if (EstFinDeLog(bloc[i]))
                return k - kPremiereFiche + static_cast<std::int32_t>(i);
            voir(bloc[i]);
        }
        k += static_cast<std::int32_t>(lus);
        if (lus < bloc.size())
            return k - kPremiereFiche;
    }
}

} // namespace

OctetsIndicatif IndicatifDe(const QsoRecord& fiche) {
    OctetsIndicatif octets;
    const std::string_view champ = OctetsChamp(fiche, Champ::CSGN);
    std::copy(champ.begin(), champ.end(), octets.begin());
    return octets;
}

std::int32_t FichierFiches::Compter() const {
    return Parcourir(*this, [](const QsoRecord&) {});
}

std::int32_t FichierFiches::Compter(std::vector<OctetsIndicatif>& indicatifs) const {
    indicatifs.clear();
    return Parcourir(*this,
                     [&](const QsoRecord& fiche) { indicatifs.push_back(IndicatifDe(fiche)); });
}

LecteurFiches::LecteurFiches(const FichierFiches& fichier) : fichier_(fichier) {}

const QsoRecord& LecteurFiches::Lire(NumeroFiche k) {
    if (bloc_.empty())
        bloc_.resize(kFichesParBloc);
    const auto taille = static_cast<std::int32_t>(bloc_.size());
    if (premiere_ == kAucuneFiche || k < premiere_ || k >= premiere_ + taille) {
        static_cast<void>(fichier_.Lire(k, bloc_));
        premiere_ = k;
    }
    return bloc_[static_cast<std::size_t>(k - premiere_)];
}

} // namespace orvalis
