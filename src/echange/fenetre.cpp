#include "echange/fenetre.h"

#include "echange/lettres.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace orvalis {

Fenetre::Fenetre(const Fichier& fichier)
    : fichier_(fichier), taille_(fichier.Taille()), octets_(2 * kVueMax) {}

std::string_view Fenetre::Voir(std::size_t n) {
    if (lus_ - place_ < n && !fini_)
        Garnir();
    return {octets_.data() + place_, lus_ - place_};
}

void Fenetre::Garnir() {
    repere_ = false;
    std::memmove(octets_.data(), octets_.data() + place_, lus_ - place_);
    debut_ += static_cast<std::int64_t>(place_);
    lus_ -= place_;
    place_ = 0;
    const std::size_t n =
        fichier_.Lire(debut_ + static_cast<std::int64_t>(lus_), std::span(octets_).subspan(lus_));
    fini_ = n == 0;
    lus_ += n;
}

char Fenetre::OctetA(std::int64_t position) const {
    const std::int64_t ici = position - debut_;
    if (ici >= 0 && ici < static_cast<std::int64_t>(lus_))
        return octets_[static_cast<std::size_t>(ici)];
    std::array<char, 1> octet = {' '};
    static_cast<void>(fichier_.Lire(position, octet));
    return octet[0];
}

// Once for the whole window: lengths that lie do not make the same text be counted again and again.
void Fenetre::Reperer() {
    caracteres_.clear();
    for (std::size_t i = place_; i < lus_;) {
        caracteres_.push_back(i);
        i += std::max<std::size_t>(LongueurSequence({octets_.data() + i, lus_ - i}), 1);
    }
    repere_ = true;
}

std::int64_t Fenetre::OctetsDe(std::int64_t n) {
    static_cast<void>(Voir(static_cast<std::size_t>(4 * kCaracteresMax + 1)));
    if (!repere_)
        Reperer();
    const auto ici = std::lower_bound(caracteres_.begin(), caracteres_.end(), place_);
    if (caracteres_.end() - ici < n)
        return taille_ + 1;
    const auto fin = ici + static_cast<std::ptrdiff_t>(n);
    return static_cast<std::int64_t>((fin == caracteres_.end() ? lus_ : *fin) - place_);
}

void Fenetre::Avancer(std::int64_t n) {
    while (n > 0) {
        const std::string_view vu = Voir();
        const auto pas = static_cast<std::size_t>(
            std::min<std::int64_t>(n, static_cast<std::int64_t>(vu.size())));
        if (pas == 0)
            return;
        ligne_ += std::count(vu.begin(), vu.begin() + static_cast<std::ptrdiff_t>(pas), '\n');
        place_ += pas;
        n -= static_cast<std::int64_t>(pas);
    }
}

bool Fenetre::AvancerJusqua(char c) {
    for (std::string_view vu = Voir(); !vu.empty(); vu = Voir()) {
        const std::size_t trouve = vu.find(c);
        Avancer(static_cast<std::int64_t>(std::min(trouve, vu.size())));
        if (trouve != vu.npos)
            return true;
    }
    return false;
}

} // namespace orvalis
