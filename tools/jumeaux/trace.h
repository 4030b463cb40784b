// What was seen after each gesture, as a text of what changed since the gesture before; and the
// comparison of two such texts.
#pragma once

#include "monde.h"

#include <algorithm>
#include <climits>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>

namespace jumeaux {

/// One property of one control. What is no control (files, the system, the focus) has a name in
/// parentheses.
struct Valeur {
    std::string controle;
    std::string propriete;
    std::string texte;

    [[nodiscard]] bool Avant(const Valeur& autre) const {
        const int ordre = controle.compare(autre.controle);
        return ordre != 0 ? ordre < 0 : propriete < autre.propriete;
    }
};

/// All that is seen at one moment, in order.
using Etat = std::vector<Valeur>;

inline void Ordonner(Etat& etat) {
    std::stable_sort(etat.begin(), etat.end(),
                     [](const Valeur& a, const Valeur& b) { return a.Avant(b); });
    // Two controls of one name: the later ones get a number, and their order is that of creation.
    for (std::size_t i = 1; i < etat.size(); ++i)
        if (etat[i].controle == etat[i - 1].controle && etat[i].propriete == etat[i - 1].propriete)
            etat[i].propriete += "'";
}

/// The text of a property; empty when there is none.
[[nodiscard]] inline const std::string& Lire(const Etat& etat, const std::string& controle,
                                             const std::string& propriete) {
    static const std::string kRien;
    const auto place =
        std::lower_bound(etat.begin(), etat.end(), Valeur{controle, propriete, {}},
                         [](const Valeur& a, const Valeur& b) { return a.Avant(b); });
    return place != etat.end() && place->controle == controle && place->propriete == propriete
               ? place->texte
               : kRien;
}

/// Writes blocks. A gesture ends with one block; what is seen in the middle of it (a pause, a
/// dialog) comes before, in blocks numbered from 1.
class Trace {
  public:
    explicit Trace(const std::string& chemin) : sortie_(chemin, std::ios::binary) {}

    void Ecrire(int geste, int milieu, const std::string& mots, const Etat& etat) {
        sortie_ << "# " << geste;
        if (milieu != 0)
            sortie_ << '/' << milieu;
        sortie_ << ' ' << Ligne(mots) << '\n';
        std::uint64_t somme = Empreinte({});
        auto avant = avant_.begin();
        for (const Valeur& v : etat) {
            somme = Empreinte(v.controle, somme);
            somme = Empreinte(v.propriete, somme);
            somme = Empreinte(v.texte, somme);
            while (avant != avant_.end() && avant->Avant(v))
                Retirer(*avant++);
            const bool connue = avant != avant_.end() && !v.Avant(*avant);
            if (!connue || avant->texte != v.texte)
                sortie_ << '+' << v.controle << '\t' << v.propriete << '\t' << Ligne(v.texte)
                        << '\n';
            if (connue)
                ++avant;
        }
        while (avant != avant_.end())
            Retirer(*avant++);
        sortie_ << "= " << std::hex << somme << std::dec << '\n';
        sortie_.flush(); // where the program dies, the gesture before must be known
        avant_ = etat;
    }
    /// False when something could not be written.
    [[nodiscard]] bool Fermer() {
        sortie_.close();
        return sortie_.good();
    }

  private:
    void Retirer(const Valeur& v) { sortie_ << '-' << v.controle << '\t' << v.propriete << '\n'; }
    [[nodiscard]] static std::string Ligne(const std::string& texte) {
        std::string ligne;
        for (const char c : texte)
            if (c == '\n' || c == '\t' || c == '\r' || c == '\\')
                ligne += {'\\', c == '\n' ? 'n' : c == '\t' ? 't' : c == '\r' ? 'r' : '\\'};
            else
                ligne += c;
        return ligne;
    }

    std::ofstream sortie_;
    Etat avant_;
};

struct Cle {
    std::string controle, propriete;
    friend auto operator<=>(const Cle&, const Cle&) = default;
};

struct Bloc {
    int geste = 0;
    int milieu = INT_MAX; ///< the end of the gesture comes last
    std::string mots, somme;
    std::vector<std::pair<Cle, std::optional<std::string>>> changements;

    [[nodiscard]] std::pair<int, int> Rang() const { return {geste, milieu}; }
};

/// Reads blocks, and keeps what they add up to.
class Lecture {
  public:
    explicit Lecture(const std::string& chemin) : entree_(chemin, std::ios::binary) {
        std::getline(entree_, tete_);
        Suivant();
    }
    [[nodiscard]] const std::optional<Bloc>& Courant() const { return bloc_; }
    [[nodiscard]] const std::map<Cle, std::string>& Vu() const { return vu_; }
    /// Takes in the changes of the block, adds their keys to `touchees` and goes on.
    void Passer(std::vector<Cle>& touchees) {
        for (auto& [cle, texte] : bloc_->changements) {
            if (texte)
                vu_[cle] = *texte;
            else
                vu_.erase(cle);
            touchees.push_back(std::move(cle));
        }
        Suivant();
    }

  private:
    void Suivant() {
        if (!tete_.starts_with("# ")) {
            bloc_.reset();
            return;
        }
        Bloc bloc;
        std::istringstream tete(tete_.substr(2));
        tete >> bloc.geste;
        if (tete.peek() == '/')
            tete.ignore() >> bloc.milieu;
        std::getline(tete >> std::ws, bloc.mots);
        while (std::getline(entree_, tete_) && !tete_.starts_with("# ")) {
            const std::string suite = tete_.substr(std::min<std::size_t>(1, tete_.size()));
            if (tete_.starts_with('=')) {
                bloc.somme = suite;
                continue;
            }
            const auto premier = suite.find('\t'), second = suite.find('\t', premier + 1);
            const Cle cle{suite.substr(0, premier),
                          suite.substr(premier + 1, second - premier - 1)};
            if (tete_.starts_with('+'))
                bloc.changements.emplace_back(cle, suite.substr(second + 1));
            else
                bloc.changements.emplace_back(cle, std::nullopt);
        }
        if (!entree_)
            tete_.clear();
        bloc_ = std::move(bloc);
    }

    std::ifstream entree_;
    std::string tete_;
    std::optional<Bloc> bloc_;
    std::map<Cle, std::string> vu_;
};

/// Follows two traces side by side. A difference is told where it begins or changes, and counted
/// by the blocks that it lasts.
class Comparaison {
  public:
    Comparaison(const std::string& ancienne, const std::string& nouvelle)
        : a_(ancienne), b_(nouvelle) {}

    /// Returns whether the two are the same.
    [[nodiscard]] bool Faire() {
        while (a_.Courant() && b_.Courant()) {
            std::vector<Cle> touchees;
            const Bloc& un = *a_.Courant();
            const Bloc& autre = *b_.Courant();
            if (un.Rang() != autre.Rang()) {
                Seul(un.Rang() < autre.Rang());
                continue;
            }
            ++blocs_;
            if (un.mots != autre.mots)
                nouvelles_.push_back("(geste) mots : " + un.mots + " | " + autre.mots);
            const std::string tete = Tete(un);
            a_.Passer(touchees);
            b_.Passer(touchees);
            touchees.insert(touchees.end(), attente_.begin(), attente_.end());
            attente_.clear();
            Confronter(touchees);
            for (const auto& [cle, valeurs] : ouvertes_)
                ++comptes_[cle].blocs;
            Dire(tete);
        }
        if (a_.Courant() || b_.Courant()) {
            std::cout << "une des traces s'arrête avant l'autre\n";
            ++differents_;
        }
        Resumer();
        return differents_ == 0;
    }

  private:
    using Vue = std::pair<std::string, std::string>;
    struct Compte {
        int debuts = 0, blocs = 0;
    };
    static constexpr int kMontres = 4000;

    [[nodiscard]] static std::string Tete(const Bloc& bloc) {
        return std::to_string(bloc.geste) +
               (bloc.milieu == INT_MAX ? "" : "/" + std::to_string(bloc.milieu)) + "  " + bloc.mots;
    }
    [[nodiscard]] static std::string Valeur(const Lecture& lecture, const Cle& cle) {
        const auto place = lecture.Vu().find(cle);
        return place == lecture.Vu().end() ? "(absent)" : "«" + place->second + "»";
    }

    // A block that only one of the two has: what it changes is compared at the next common one.
    void Seul(bool ancienne) {
        Lecture& lecture = ancienne ? a_ : b_;
        const std::string tete = Tete(*lecture.Courant());
        nouvelles_.push_back(ancienne ? "(bloc) de l'ancienne seule"
                                      : "(bloc) de la nouvelle seule");
        ++comptes_[{"(bloc)", "seul"}].debuts;
        lecture.Passer(attente_);
        Dire(tete);
    }
    void Confronter(const std::vector<Cle>& touchees) {
        for (const Cle& cle : touchees) {
            Vue vue{Valeur(a_, cle), Valeur(b_, cle)};
            if (vue.first == vue.second) {
                ouvertes_.erase(cle);
                continue;
            }
            Vue& connue = ouvertes_[cle];
            if (connue == vue)
                continue;
            ++comptes_[cle].debuts;
            nouvelles_.push_back(cle.controle + " " + cle.propriete + " : " + vue.first + " | " +
                                 vue.second);
            connue = std::move(vue);
        }
    }
    void Dire(const std::string& tete) {
        if (nouvelles_.empty())
            return;
        if (++differents_ <= kMontres) {
            std::cout << tete << '\n';
            for (const std::string& ligne : nouvelles_)
                std::cout << "    " << ligne << '\n';
        }
        nouvelles_.clear();
    }
    void Resumer() const {
        std::cout << blocs_ << " blocs comparés, " << differents_
                  << " où une différence commence ou change";
        if (differents_ > kMontres)
            std::cout << " (les " << kMontres << " premiers ci-dessus)";
        std::cout << '\n';
        std::vector<std::pair<Cle, Compte>> lignes(comptes_.begin(), comptes_.end());
        std::stable_sort(lignes.begin(), lignes.end(), [](const auto& x, const auto& y) {
            return x.second.debuts > y.second.debuts;
        });
        for (const auto& [cle, compte] : lignes)
            std::cout << "  " << cle.controle << ' ' << cle.propriete << " : " << compte.debuts
                      << " fois, " << compte.blocs << " blocs\n";
    }

    Lecture a_, b_;
    std::map<Cle, Vue> ouvertes_;
    std::map<Cle, Compte> comptes_;
    std::vector<std::string> nouvelles_;
    std::vector<Cle> attente_;
    int blocs_ = 0, differents_ = 0;
};

} // namespace jumeaux
