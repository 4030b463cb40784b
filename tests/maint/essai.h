// A folder of its own for each test, and logbook bytes written by hand.
#pragma once

#include "core/fiches.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orvalis::essai {

class Dossier {
  public:
    Dossier() {
        std::string modele = (std::filesystem::temp_directory_path() / "orvalisXXXXXX").string();
        chemin_ = ::mkdtemp(modele.data());
    }
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;
    ~Dossier() {
        std::error_code ignore;
        std::filesystem::remove_all(chemin_, ignore);
    }
    [[nodiscard]] std::filesystem::path operator/(const char* nom) const { return chemin_ / nom; }
    [[nodiscard]] std::filesystem::path Poser(const char* nom, const std::string& octets) const {
        std::ofstream(chemin_ / nom, std::ios::binary) << octets;
        return chemin_ / nom;
    }

  private:
    std::filesystem::path chemin_;
};

inline std::string Octets(const std::filesystem::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

/// 165 bytes: callsign at 0, date at 15, start at 23, locator at 159; byte 64 is one that
/// Windows-1252 leaves undefined.
inline std::string Fiche(const std::string& csgn, const std::string& dqso = "01/01/01",
                         const std::string& hdeb = "10:00", const std::string& mloc = "JN18EU") {
    std::string fiche(165, ' ');
    fiche.replace(0, csgn.size(), csgn).replace(15, dqso.size(), dqso);
    fiche.replace(23, hdeb.size(), hdeb).replace(159, mloc.size(), mloc);
    fiche[64] = '\x90';
    return fiche;
}

inline std::string Fin(const std::string& mloc = "JN18EU") {
    std::string fiche(165, ' ');
    return fiche.replace(0, 1, "\\").replace(159, mloc.size(), mloc);
}

/// A session on the logbook `chemin`, counted.
inline Session Ouvrir(const std::filesystem::path& chemin) {
    Session session;
    session.indicatif = "F5ABC";
    session.monLocator = "JN18EU";
    OuvrirJournal(session, chemin);
    CompterFiches(session);
    return session;
}

} // namespace orvalis::essai
