// A generated logbook in a folder of its own, gone with the object.
#pragma once

#include "core/journal.h"
#include "core/qso_record.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace orvalis::bench {

/// Sizes that every benchmark of a logbook runs on: the last is the most that the list shows.
inline constexpr std::array<std::int64_t, 3> kTailles = {1000, 10000, 32767};

/// Contact `i` (from 0): one minute after contact i - 1, with one of some 7,000 stations.
inline QsoRecord FicheGeneree(std::int32_t i) {
    const auto deux = [](std::int32_t n) {
        return std::string{static_cast<char>('0' + n / 10 % 10), static_cast<char>('0' + n % 10)};
    };
    const std::int32_t jours = i / 1440;
    const std::int32_t minutes = i % 1440;
    const std::int32_t station = static_cast<std::int32_t>(i * 2654435761LL % 6911);
    QsoRecord fiche;
    MettreChamp(fiche, Champ::CSGN, std::string{"F"}.append(std::to_string(station)));
    MettreChamp(fiche, Champ::DQSO, deux(1 + jours % 28) + "/" + deux(1 + jours / 28 % 12) + "/20");
    MettreChamp(fiche, Champ::HDEB, deux(minutes / 60) + ":" + deux(minutes % 60));
    MettreChamp(fiche, Champ::HFIN, deux(minutes / 60) + ":" + deux(minutes % 60));
    MettreChamp(fiche, Champ::FREQ, "7.085");
    MettreChamp(fiche, Champ::MODE, "SSB");
    MettreChamp(fiche, Champ::SRST, "59");
    MettreChamp(fiche, Champ::MRST, "59");
    MettreChamp(fiche, Champ::SQTH, "SAINT-ÉTIENNE");
    MettreChamp(fiche, Champ::SLOC, "JN25EK");
    MettreChamp(fiche, Champ::DEPT, "42");
    MettreChamp(fiche, Champ::SNOM, "Hélène");
    MettreChamp(fiche, Champ::MLOC, "JN18DU");
    return fiche;
}

class Carnet {
  public:
    /// A logbook of `nbFiches` contacts and its end-of-log record.
    explicit Carnet(std::int64_t nbFiches) : nbFiches_(static_cast<std::int32_t>(nbFiches)) {
        std::string modele =
            (std::filesystem::temp_directory_path() / "orvalis-bench-XXXXXX").string();
        if (mkdtemp(modele.data()) == nullptr)
            throw std::system_error(errno, std::generic_category(), modele);
        dossier_ = modele;
        std::vector<QsoRecord> fiches;
        fiches.reserve(static_cast<std::size_t>(nbFiches) + 1);
        for (std::int32_t i = 0; i < nbFiches_; ++i)
            fiches.push_back(FicheGeneree(i));
        fiches.push_back(FicheFinDeLog("JN18DU"));
        Journal(Chemin(), ModeFichier::Creation).Ecrire(1, fiches);
    }
    Carnet(const Carnet&) = delete;
    Carnet& operator=(const Carnet&) = delete;
    ~Carnet() {
        std::error_code erreur;
        std::filesystem::remove_all(dossier_, erreur);
    }

    [[nodiscard]] std::filesystem::path Dossier() const { return dossier_; }
    [[nodiscard]] std::filesystem::path Chemin() const { return dossier_ / "BENCH.Vek"; }
    [[nodiscard]] std::int32_t NbFiches() const { return nbFiches_; }

  private:
    std::filesystem::path dossier_;
    std::int32_t nbFiches_;
};

} // namespace orvalis::bench
