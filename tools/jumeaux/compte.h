// Accounts for the contacts of every logbook on a drive, from gesture to gesture: what was there is
// there still, unless the operator deleted or corrected it. And what another program may do to
// these files meanwhile. The records are read as bytes, not by the program's own code.
#pragma once

#include "monde.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

namespace jumeaux {

/// What the operator could see before the gesture, and may have answered by it.
struct Permis {
    bool question = false; ///< a deletion or a correction was asked, or began and ended
    bool marque = false;   ///< labels were on show: contacts may have got their mark
    bool jumelage = false; ///< contacts may have come from another logbook
};

class Compte {
  public:
    using Contacts = std::multiset<std::string>;

    /// What is wrong since the last look at the logbooks of `dossier`; empty when nothing is.
    [[nodiscard]] std::string Verifier(const std::filesystem::path& dossier, const Permis& permis) {
        std::string faute;
        auto ici = Regarder(dossier);
        for (const auto& [nom, avant] : vus_)
            if (const auto apres = ici.find(nom); apres == ici.end())
                faute += nom + " a disparu ; ";
            else if (nom == kCahier || !EstUneCopie(apres->second, ici))
                faute += Juger(nom, avant, apres->second, permis);
        Retenir(std::move(ici));
        return faute;
    }

    /// What is there now is what is to be kept.
    void Prendre(const std::filesystem::path& dossier) { Retenir(Regarder(dossier)); }

    /// Does to the own logbook or the label sheet what another program might; returns its words.
    [[nodiscard]] std::string Deranger(const std::filesystem::path& dossier, Alea& alea) {
        const bool feuille = alea.Un(4);
        const auto chemin = dossier / (feuille ? "FeuilleQSL.txt" : kCahier);
        std::string octets = Lire(chemin);
        if (octets.size() < 2 * kTaille || alea.Un(4))
            octets = feuille ? Etiquettes(alea) : Cahier(alea, 20, true);
        else if (!feuille && alea.Un(2))
            octets.insert(0, Cahier(alea, 1, false));
        else if (alea.Un(2))
            octets.resize(octets.size() / 2 + static_cast<std::size_t>(alea.Sous(200)));
        if (alea.Un(6)) {
            std::filesystem::remove(chemin);
            return "un autre programme supprime " + chemin.filename().string();
        }
        const bool renomme = alea.Un(2);
        const auto cible = renomme ? dossier / "autre.neuf" : chemin;
        std::ofstream(cible, std::ios::binary) << octets;
        if (renomme)
            std::filesystem::rename(cible, chemin);
        return std::string("un autre programme ") + (renomme ? "remplace " : "récrit ") +
               chemin.filename().string();
    }

  private:
    static constexpr const char* kCahier = "F5ABC.Vek";
    static constexpr std::size_t kTaille = 165, kMarque = 143, kTailleMarque = 8;

    [[nodiscard]] static std::string Lire(const std::filesystem::path& chemin) {
        std::ifstream fichier(chemin, std::ios::binary);
        return {std::istreambuf_iterator<char>(fichier), {}};
    }
    [[nodiscard]] static std::map<std::string, Contacts>
    Regarder(const std::filesystem::path& dossier) {
        std::map<std::string, Contacts> ici;
        for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier))
            if (entree.path().extension() == ".Vek") {
                Contacts& contacts = ici[std::filesystem::relative(entree.path(), dossier)];
                std::string octets = Lire(entree.path());
                // A record that was cut counts, and reads as if blanks went on.
                octets.resize((octets.size() + kTaille - 1) / kTaille * kTaille, ' ');
                for (std::size_t d = 0; d < octets.size() && octets[d] != '\\'; d += kTaille)
                    contacts.insert(octets.substr(d, kTaille));
            }
        return ici;
    }
    void Retenir(std::map<std::string, Contacts> ici) {
        vus_ = std::move(ici);
        if (vus_.contains(kCahier))
            cahiers_.insert(vus_[kCahier]);
    }
    // The logbook on show, which may be another. The own one, deleted, goes on in the file that the
    // program has open: one of those seen.
    [[nodiscard]] bool EstUneCopie(const Contacts& contacts,
                                   const std::map<std::string, Contacts>& ici) const {
        const auto pareil = [&](const auto& autre) { return autre.second == contacts; };
        const bool deux = std::count_if(ici.begin(), ici.end(), pareil) > 1;
        return deux || (!ici.contains(kCahier) && cahiers_.contains(contacts));
    }
    [[nodiscard]] static std::string Juger(const std::string& nom, const Contacts& avant,
                                           const Contacts& apres, const Permis& permis) {
        std::vector<std::string> perdus, gagnes;
        std::set_difference(avant.begin(), avant.end(), apres.begin(), apres.end(),
                            std::back_inserter(perdus));
        std::set_difference(apres.begin(), apres.end(), avant.begin(), avant.end(),
                            std::back_inserter(gagnes));
        std::string ecart = nom + " perd " + std::to_string(perdus.size()) + " et gagne " +
                            std::to_string(gagnes.size()) + " ; ";
        for (const auto& [signe, fiches] : {std::pair{"- ", &perdus}, std::pair{"+ ", &gagnes}})
            for (const std::string& fiche : *fiches)
                ecart += "\n  " + (signe + fiche);
        if (perdus.empty())
            return gagnes.size() <= 1 || permis.jumelage ? "" : ecart;
        if (perdus.size() == 1 && gagnes.size() <= 1 && permis.question)
            return "";
        // Otherwise the same contacts, but for the mark of their label.
        const auto sansMarque = [](std::vector<std::string>& fiches) {
            for (std::string& fiche : fiches)
                fiche.replace(kMarque, kTailleMarque, kTailleMarque, ' ');
            std::sort(fiches.begin(), fiches.end());
        };
        if (permis.marque) {
            sansMarque(perdus);
            sansMarque(gagnes);
            if (perdus == gagnes)
                return "";
        }
        return ecart;
    }

    std::map<std::string, Contacts> vus_;
    std::set<Contacts> cahiers_; // the own logbook, at any time
};

} // namespace jumeaux
