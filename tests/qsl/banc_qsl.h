// A program folder of its own with a logbook and a label sheet, both written as plain bytes.
#pragma once

#include "core/fiches.h"
#include "qsl/feuille_qsl.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

namespace orvalis {

/// Fields side by side, each padded with blanks to its width.
inline std::string Octets(const std::vector<std::pair<std::string, std::size_t>>& champs) {
    std::string octets;
    for (const auto& [texte, largeur] : champs)
        octets += texte + std::string(largeur - texte.size(), ' ');
    return octets;
}

inline std::string Fiche(const std::string& csgn, const std::string& date, const std::string& heure,
                         const std::string& maQsl, const std::string& info = "") {
    return Octets({{csgn, 15},
                   {date, 8},
                   {heure, 10},
                   {"14.250", 10},
                   {"SSB", 5},
                   {"59+20dB", 65},
                   {info, 30},
                   {maQsl, 16},
                   {"JN15", 6}});
}

inline std::string Etiquette(const std::string& csgn, const std::string& date,
                             const std::string& heure, const std::string& numero) {
    return Octets({{csgn, 60}, {date, 8}, {heure, 28}, {numero, 10}});
}

inline const std::string kFin = Octets({{"\\", 159}, {"JN15AA", 6}});
inline const std::string kLibre = Octets({{"***", 106}});
/// `n` free records.
inline std::string Libres(int n) {
    return n == 0 ? "" : kLibre + Libres(n - 1);
}

struct Banc {
    std::filesystem::path dossier;
    Session session;
    FeuilleQSL feuille;

    Banc() {
        std::string modele = (std::filesystem::temp_directory_path() / "orvalis-XXXXXX").string();
        dossier = ::mkdtemp(modele.data());
    }
    Banc(const Banc&) = delete;
    Banc& operator=(const Banc&) = delete;
    ~Banc() { std::filesystem::remove_all(dossier); }

    void Ecrire(const std::string& nom, const std::string& octets) const {
        std::ofstream(dossier / nom, std::ios::binary) << octets;
    }
    [[nodiscard]] std::string Lire(const std::string& nom) const {
        std::ifstream flux(dossier / nom, std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }
    [[nodiscard]] std::string Cahier() const { return Lire("F1XYZ.Vek"); }
    [[nodiscard]] std::string Feuille() const { return Lire("FeuilleQSL.txt"); }
    void Ouvrir(const std::string& fiches, const std::string& octetsFeuille) {
        Ecrire("F1XYZ.Vek", fiches + kFin);
        Ecrire("FeuilleQSL.txt", octetsFeuille);
        OuvrirJournal(session, dossier / "F1XYZ.Vek");
        CompterFiches(session);
        ChargerFeuilleQSL(feuille, dossier);
    }
};

/// The states of the sixteen places, one letter each: L free, P prepared, R withdrawn.
inline std::string Etats(const FeuilleQSL& feuille) {
    std::string lettres;
    for (const EtatEtiquette etat : feuille.etats)
        lettres += "LPR"[static_cast<int>(etat)];
    return lettres;
}

} // namespace orvalis
