// What the tests share: a folder of their own, records set by hand, tables of texts.
#pragma once

#include "core/fiches.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

namespace orvalis::aides {

/// A folder that goes with its test.
class Dossier {
  public:
    Dossier() {
        std::string modele = (std::filesystem::temp_directory_path() / "orvalisXXXXXX").string();
        chemin_ = ::mkdtemp(modele.data());
    }
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier() { std::filesystem::remove_all(chemin_); }
    [[nodiscard]] std::filesystem::path operator/(const std::string& n) const {
        return chemin_ / n;
    }
    std::filesystem::path Poser(const std::string& nom, std::string_view octets) const {
        std::ofstream(chemin_ / nom, std::ios::binary) << octets;
        return chemin_ / nom;
    }

  private:
    std::filesystem::path chemin_;
};

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

/// A session on the logbook `chemin`, counted.
inline Session Ouvrir(const std::filesystem::path& chemin) {
    Session session;
    session.indicatif = "F5ABC";
    session.monLocator = "JN18AA";
    OuvrirJournal(session, chemin);
    CompterFiches(session);
    return session;
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
    std::istringstream flux(textes + '|');
    std::string suite;
    for (std::string texte; std::getline(flux, texte, '|');)
        suite += fonction(texte) + '|';
    return suite.substr(0, suite.size() - 1);
}

} // namespace orvalis::aides
