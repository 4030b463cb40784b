// What the tests of files share: a folder of their own, bytes in and out, records set by hand.
#pragma once

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <utility>

namespace orvalis::essai {

/// A folder that goes with its test.
class DossierTemporaire {
  public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "orvalisXXXXXX").string();
        chemin_ = ::mkdtemp(modele.data());
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;
    ~DossierTemporaire() { std::filesystem::remove_all(chemin_); }
    [[nodiscard]] std::filesystem::path operator/(std::string_view nom) const {
        return chemin_ / nom;
    }
    [[nodiscard]] const std::filesystem::path& Chemin() const { return chemin_; }

  private:
    std::filesystem::path chemin_;
};

inline void EcrireOctets(const std::filesystem::path& chemin, std::string_view octets) {
    std::ofstream(chemin, std::ios::binary) << octets;
}

inline std::string LireOctets(const std::filesystem::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

/// 165 blanks with texts put at byte offsets.
inline std::string Brute(std::initializer_list<std::pair<std::size_t, std::string_view>> morceaux) {
    std::string octets(165, ' ');
    for (const auto& [decalage, texte] : morceaux)
        octets.replace(decalage, texte.size(), texte);
    return octets;
}

/// A record of callsign, date, start time and frequency.
inline std::string Contact(std::string_view indicatif, std::string_view date = "",
                           std::string_view debut = "", std::string_view frequence = "") {
    return Brute({{0, indicatif}, {15, date}, {23, debut}, {33, frequence}});
}

inline std::string FinDeLog() {
    return Brute({{0, "\\"}, {159, "JN18AA"}});
}

} // namespace orvalis::essai
