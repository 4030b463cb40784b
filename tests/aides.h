// What the tests share: a folder of their own, records set by hand, tables and walks of texts.
//
// A walk has a step on each line, `name : what is done -> what is seen`; the name is shown when the
// step fails. A line set in by two blanks or more goes on with the line above it. A text with a
// separator in it, or with blanks around it, stands between double quotes.
#pragma once

#include "core/cahier.h"
#include "core/chemins.h"
#include "core/station.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <map>
#include <random>
#include <sstream>
#ifndef _WIN32
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace orvalis::aides {

/// A folder that goes with its test. On Windows its name has letters of no one code page.
class Dossier {
  public:
    Dossier() {
#ifdef _WIN32
        const std::u8string nom = u8"orvalis-\u00e9\u03a9\u4e2d-";
#else
        const std::u8string nom = u8"orvalis";
#endif
        do
            chemin_ = std::filesystem::temp_directory_path() / nom;
        while (!std::filesystem::create_directory(chemin_ += std::to_string(hasard_())));
    }
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier() {
        std::filesystem::remove_all(chemin_);
    }
    [[nodiscard]] std::filesystem::path operator/(const std::string& n) const {
        return chemin_ / CheminTexte(n);
    }
    std::filesystem::path Poser(const std::string& nom, std::string_view octets) const {
        std::ofstream(*this / nom, std::ios::binary) << octets;
        return *this / nom;
    }

  private:
    std::random_device hasard_;
    std::filesystem::path chemin_;
};

#ifndef _WIN32
/// While one lives, no file of this program grows beyond `taille` bytes, as on a full disk.
class DisquePlein {
  public:
    explicit DisquePlein(std::uintmax_t taille) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit limite{taille, avant_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    DisquePlein(const DisquePlein&) = delete;
    DisquePlein& operator=(const DisquePlein&) = delete;
    ~DisquePlein() { ::setrlimit(RLIMIT_FSIZE, &avant_); }

  private:
    rlimit avant_ = {};
};

/// While one lives, the rights of files hold for root too.
class SansPrivileges {
  public:
    SansPrivileges() {
        ::syscall(SYS_capget, &tete_, avant_.data());
        auto sans = avant_;
        sans[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        ::syscall(SYS_capset, &tete_, sans.data());
    }
    SansPrivileges(const SansPrivileges&) = delete;
    SansPrivileges& operator=(const SansPrivileges&) = delete;
    ~SansPrivileges() { ::syscall(SYS_capset, &tete_, avant_.data()); }

  private:
    __user_cap_header_struct tete_ = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> avant_ = {};
};
#endif

inline std::string Lire(const std::filesystem::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

/// Blanks with texts put at byte offsets.
inline std::string Brute(std::initializer_list<std::pair<std::size_t, std::string_view>> morceaux,
                         std::size_t taille = 165) {
    std::string octets(taille, ' ');
    for (const auto& [decalage, texte] : morceaux)
        octets.replace(decalage, texte.size(), texte);
    return octets;
}

/// The same bytes `n` times.
inline std::string Fois(int n, const std::string& octets) {
    return n == 0 ? "" : octets + Fois(n - 1, octets);
}

/// A contact, with a byte in its town that Windows-1252 leaves undefined.
inline std::string Contact(std::string_view indicatif, std::string_view date = "",
                           std::string_view debut = "", std::string_view frequence = "") {
    return Brute({{0, indicatif}, {15, date}, {23, debut}, {33, frequence}, {64, "\x90"}});
}

inline std::string Fin(std::string_view monLocator = "JN18AA") {
    return Brute({{0, "\\"}, {159, monLocator}});
}

/// 165 bytes or fewer as a record.
inline QsoRecord Enregistrement(std::string_view octets) {
    QsoRecord fiche;
    octets.copy(fiche.octets.data(), kTailleFiche);
    return fiche;
}

/// The logbook `chemin`, open and counted.
inline Cahier Ouvrir(const std::filesystem::path& chemin) {
    Cahier cahier;
    OuvrirCahier(cahier, chemin);
    CompterFiches(cahier);
    return cahier;
}

/// The station whose logbooks the tests write.
inline Station MaStation() {
    return {{}, "F5ABC", "JN18AA"};
}

/// The pieces of a text between separators, without the blanks and then the quotes around them;
/// between quotes there is no separator. None when the text is empty.
inline std::vector<std::string> Couper(const std::string& texte, const std::string& separateur) {
    std::vector<std::string> morceaux(texte.empty() ? 0 : 1);
    bool protege = false;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        protege = protege != (texte[i] == '"');
        if (!protege && texte.compare(i, separateur.size(), separateur) == 0) {
            morceaux.emplace_back();
            i += separateur.size() - 1;
        } else {
            morceaux.back() += texte[i];
        }
    }
    for (std::string& m : morceaux) {
        m = std::string(Rogner(m));
        if (m.size() > 1 && m.front() == '"' && m.find('"', 1) == m.size() - 1)
            m = m.substr(1, m.size() - 2);
    }
    return morceaux;
}

/// Name, what is done and what is seen, for each step of a walk.
inline std::vector<std::array<std::string, 3>> Etapes(std::string chemin) {
    for (std::size_t p = 0; (p = chemin.find("\n  ")) != chemin.npos;)
        chemin.replace(p, chemin.find_first_not_of(" \n", p) - p, " ");
    std::vector<std::array<std::string, 3>> etapes;
    for (const std::string& ligne : Couper(chemin, "\n")) {
        const auto nom = Couper(ligne, " : ");
        const auto faits = Couper(ligne.empty() ? "" : nom.back(), "->");
        if (!ligne.empty() && (nom.size() != 2 || faits.empty() || faits.size() > 2))
            throw std::invalid_argument("not a step: " + ligne);
        if (!ligne.empty())
            etapes.push_back({nom[0], faits[0], faits.size() > 1 ? faits[1] : ""});
    }
    return etapes;
}

/// Texts and what a function makes of each.
template<class R> using Table = std::vector<std::pair<std::string, R>>;
using Textes = Table<std::string>;

template<class F, class R> void Verifier(F fonction, const Table<R>& table) {
    for (const auto& [texte, attendu] : table)
        EXPECT_EQ(fonction(texte), attendu) << texte;
}

/// What a function makes of each of the texts between strokes.
template<class F> std::string Suite(F fonction, const std::string& textes) {
    std::string suite;
    for (const std::string& texte : Couper(textes, "|"))
        suite += '|' + fonction(texte);
    return suite.substr(1);
}

} // namespace orvalis::aides
