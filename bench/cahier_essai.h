// A generated logbook in a folder of its own, gone with the object.
#pragma once

#include "core/cahier.h"
#include "core/pages.h"
#include "core/qso_record.h"
#include "core/station.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <span>
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

/// Bytes of a logbook of `nbFiches` generated contacts and its end-of-log record.
inline std::vector<QsoRecord> FichesGenerees(std::int64_t nbFiches) {
    std::vector<QsoRecord> fiches;
    fiches.reserve(static_cast<std::size_t>(nbFiches) + 1);
    for (std::int32_t i = 0; i < nbFiches; ++i)
        fiches.push_back(FicheGeneree(i));
    fiches.push_back(FicheFinDeLog("JN18DU"));
    return fiches;
}

/// Where a logbook lies: in memory, where a flush costs nothing and what is left is the program's
/// own work and the system calls; or on the disk.
enum class Lieu { Memoire, Disque };

inline std::filesystem::path Dossier(Lieu lieu) {
    const std::filesystem::path memoire = "/dev/shm";
    return lieu == Lieu::Memoire && std::filesystem::is_directory(memoire)
               ? memoire
               : std::filesystem::temp_directory_path();
}

class CahierEssai {
  public:
    explicit CahierEssai(std::int64_t nbFiches, Lieu lieu = Lieu::Memoire)
        : fiches_(FichesGenerees(nbFiches)), nbFiches_(static_cast<std::int32_t>(nbFiches)) {
        std::string modele = (bench::Dossier(lieu) / "orvalis-bench-XXXXXX").string();
        if (mkdtemp(modele.data()) == nullptr)
            throw std::system_error(errno, std::generic_category(), modele);
        dossier_ = modele;
        Ecrire(fiches_);
    }
    CahierEssai(const CahierEssai&) = delete;
    CahierEssai& operator=(const CahierEssai&) = delete;
    ~CahierEssai() {
        std::error_code erreur;
        std::filesystem::remove_all(dossier_, erreur);
    }

    /// Makes the file hold exactly these records.
    void Ecrire(std::span<const QsoRecord> fiches) const {
        FichierFiches fichier(Chemin(), ModeFichier::Creation);
        fichier.Ecrire(kPremiereFiche, fiches);
        std::filesystem::resize_file(Chemin(), fiches.size_bytes());
    }
    /// The logbook as the window has it after start-up.
    [[nodiscard]] Cahier Ouvrir() const {
        Cahier cahier;
        OuvrirCahier(cahier, Chemin());
        CompterFiches(cahier);
        return cahier;
    }
    [[nodiscard]] static Station Poste() { return {{}, "BENCH", "JN18DU"}; }

    [[nodiscard]] std::filesystem::path Dossier() const { return dossier_; }
    [[nodiscard]] std::filesystem::path Chemin() const { return dossier_ / "BENCH.Vek"; }
    [[nodiscard]] std::int32_t NbFiches() const { return nbFiches_; }
    /// The last full page.
    [[nodiscard]] PageAffichee DernierePage() const {
        const NumeroFiche derniere{nbFiches_};
        return {1, derniere - (kFichesParPage - 1), derniere};
    }
    [[nodiscard]] std::size_t NbOctets() const { return fiches_.size() * kTailleFiche; }
    /// The records it was made with, the end-of-log record included.
    [[nodiscard]] const std::vector<QsoRecord>& Fiches() const { return fiches_; }

  private:
    std::filesystem::path dossier_;
    std::vector<QsoRecord> fiches_;
    std::int32_t nbFiches_;
};

} // namespace orvalis::bench
