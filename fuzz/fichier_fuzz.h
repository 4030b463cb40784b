// What the fuzz targets share: a folder in memory whose files hold arbitrary bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvalis::fuzz {

/// The folder of this process; it stays while the target runs.
inline const std::filesystem::path& Dossier() {
    static const struct Propre {
        std::filesystem::path chemin;
        Propre() {
            const bool memoire = std::filesystem::is_directory("/dev/shm");
            std::string modele = memoire ? "/dev/shm/orvalisXXXXXX" : "orvalisXXXXXX";
            const char* fait = ::mkdtemp(modele.data());
            chemin = fait == nullptr ? throw std::runtime_error("mkdtemp") : fait;
        }
        Propre(const Propre&) = delete;
        Propre& operator=(const Propre&) = delete;
        ~Propre() { std::filesystem::remove_all(chemin); }
    } dossier;
    return dossier.chemin;
}

inline std::filesystem::path Poser(const char* nom, const std::uint8_t* octets, std::size_t n) {
    std::filesystem::path chemin = Dossier() / nom;
    std::ofstream(chemin, std::ios::binary)
        .write(reinterpret_cast<const char*>(octets), static_cast<std::streamsize>(n));
    return chemin;
}

inline std::string Relire(const std::filesystem::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

/// A property that must hold for every input.
inline void Exiger(bool vrai) {
    if (!vrai)
        std::abort();
}

} // namespace orvalis::fuzz
