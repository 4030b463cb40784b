#include "core/fichier.h"

#include <string>
#include <utility>

namespace orvalis {

Fichier::Fichier(std::filesystem::path chemin, ModeFichier mode)
    : protege_(mode == ModeFichier::Lecture), chemin_(std::move(chemin)) {
    std::error_code raison;
    poignee_ = noyau::Ouvrir(chemin_, mode, raison);
    if (EstOuvert())
        return;
    if (!protege_ && noyau::TenuParUnAutre(chemin_, raison))
        throw Echec(NatureErreur::DejaOuvert, {});
    throw Echec(mode == ModeFichier::Creation ? NatureErreur::Creer : NatureErreur::Ouvrir, raison);
}

Fichier::Fichier(Fichier&& autre) noexcept
    : poignee_(std::exchange(autre.poignee_, noyau::kAucune)), protege_(autre.protege_),
      estLeCahier_(autre.estLeCahier_), chemin_(std::move(autre.chemin_)) {}

Fichier& Fichier::operator=(Fichier&& autre) noexcept {
    if (this != &autre) {
        Fermer();
        poignee_ = std::exchange(autre.poignee_, noyau::kAucune);
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
    if (EstOuvert())
        noyau::Fermer(poignee_);
    poignee_ = noyau::kAucune;
}

Erreur Fichier::Echec(NatureErreur nature, std::error_code raison) const {
    Erreur echec(nature, chemin_, raison);
    if (estLeCahier_)
        echec.ImputerAuCahier();
    return echec;
}

void Fichier::Exiger(NatureErreur nature, const std::error_code& raison) const {
    if (raison)
        throw Echec(nature, raison);
}

std::int64_t Fichier::Taille() const {
    std::error_code raison;
    const std::int64_t taille = noyau::Taille(poignee_, raison);
    Exiger(NatureErreur::Lire, raison);
    return taille;
}

std::size_t Fichier::Lire(std::int64_t position, std::span<char> tampon) const {
    std::size_t lus = 0;
    while (lus < tampon.size()) {
        std::error_code raison;
        const std::size_t n = noyau::Lire(poignee_, position + static_cast<std::int64_t>(lus),
                                          tampon.subspan(lus), raison);
        Exiger(NatureErreur::Lire, raison);
        if (n == 0)
            break;
        lus += n;
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
        std::error_code raison;
        ecrits += noyau::Ecrire(poignee_, position + static_cast<std::int64_t>(ecrits),
                                octets.subspan(ecrits), raison);
        Exiger(NatureErreur::Ecrire, raison);
    }
}

void Fichier::Reserver(std::int64_t fin) {
    std::error_code raison;
    noyau::Reserver(poignee_, fin, raison);
    Exiger(NatureErreur::Ecrire, raison);
}

void Fichier::Synchroniser() {
    std::error_code raison;
    noyau::Synchroniser(poignee_, raison);
    Exiger(NatureErreur::Synchroniser, raison);
}

void Fichier::Raccourcir(std::int64_t taille) {
    std::error_code raison;
    noyau::Raccourcir(poignee_, taille, raison);
    Exiger(NatureErreur::Ecrire, raison);
}

bool Fichier::Verrouiller() {
    std::error_code raison;
    const bool pris = noyau::Verrouiller(poignee_, protege_, raison);
    Exiger(NatureErreur::Verrouiller, raison);
    return pris;
}

bool Fichier::EstLeMeme(const std::filesystem::path& autre) const {
    return EstOuvert() && noyau::EstLeMeme(poignee_, autre);
}

void SynchroniserNom(const std::filesystem::path& fichier) {
    std::filesystem::path dossier = fichier.parent_path();
    if (dossier.empty())
        dossier = ".";
    std::error_code raison;
    noyau::SynchroniserDossier(dossier, raison);
    if (raison)
        throw Erreur(NatureErreur::Synchroniser, dossier, raison);
}

} // namespace orvalis
