#include "core/fichier_fiches.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

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

// Shows `voir` the records before the end-of-log record, block by block; returns how many there
// are.
template<typename Voir> std::int32_t Parcourir(const FichierFiches& fichier, Voir voir) {
    std::vector<QsoRecord> bloc(kFichesParBloc);
    for (NumeroFiche k = kPremiereFiche;;) {
        const std::size_t lus = fichier.Lire(k, bloc);
        const std::span lues = std::span(bloc).first(lus);
        const auto nb = std::find_if(lues.begin(), lues.end(), EstFinDeLog) - lues.begin();
        voir(lues.first(static_cast<std::size_t>(nb)));
        k += static_cast<std::int32_t>(nb);
        if (static_cast<std::size_t>(nb) < bloc.size())
            return k - kPremiereFiche;
    }
}

} // namespace

OctetsIndicatif IndicatifDe(const QsoRecord& fiche) {
    OctetsIndicatif octets;
    std::memcpy(octets.data(), OctetsChamp(fiche, Champ::CSGN).data(), octets.size());
    return octets;
}

std::int32_t FichierFiches::Compter() const {
    return Parcourir(*this, [](std::span<const QsoRecord>) {});
}

std::int32_t FichierFiches::Compter(std::vector<OctetsIndicatif>& indicatifs) const {
    // Where reading fails, those counted before stay with the number they go with.
    std::vector<OctetsIndicatif> lus;
    lus.reserve(indicatifs.size());
    const std::int32_t nombre = Parcourir(*this, [&](std::span<const QsoRecord> fiches) {
        const std::size_t avant = lus.size();
        lus.resize(avant + fiches.size());
        auto* ici = lus.data() + avant;
        for (const QsoRecord& fiche :
             fiches) // straight into its place: a detour costs as much again
            std::memcpy(ici++, OctetsChamp(fiche, Champ::CSGN).data(), sizeof *ici);
    });
    indicatifs.swap(lus);
    return nombre;
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
