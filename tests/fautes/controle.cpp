#include "fautes/controle.h"

#include "qsl/qsl_slot_record.h"

#include <algorithm>
#include <set>

namespace orvalis::essais {
namespace {

using Fiches = std::vector<std::string>;

std::string Fichier(const Fichiers& fichiers, const std::string& nom) {
    const auto f = fichiers.find(nom);
    return f == fichiers.end() ? std::string() : f->second;
}

/// The contacts, in order; `fini` tells whether an end-of-log record closes them.
Fiches Contacts(const std::string& octets, bool* fini = nullptr) {
    Fiches fiches;
    for (std::size_t i = 0; i < octets.size(); i += kTailleFiche) {
        fiches.push_back(octets.substr(i, kTailleFiche));
        if (fiches.back().starts_with("\\ ")) {
            fiches.pop_back();
            if (fini != nullptr)
                *fini = true;
            return fiches;
        }
    }
    return fiches;
}

Fiches Sans(Fiches fiches, const Fiches& autres) {
    for (const std::string& autre : autres)
        fiches.erase(std::remove(fiches.begin(), fiches.end(), autre), fiches.end());
    return fiches;
}

std::string Nommer(const std::string& fiche) {
    return "[" + fiche.substr(0, 33) + "...]";
}

/// Takes one of `fiches` that equals one of `choix` out; false when there is none.
bool Prendre(Fiches& fiches, const Fiches& choix) {
    const auto f = std::find_first_of(fiches.begin(), fiches.end(), choix.begin(), choix.end());
    const bool la = f != fiches.end();
    if (la)
        fiches.erase(f);
    return la;
}

std::string DegatDuCahier(const std::string& avant, const std::string& apres,
                          const std::string& trouve) {
    bool fini = false;
    bool finiAvant = false;
    Fiches reste = Contacts(trouve, &fini);
    const Fiches anciens = Contacts(avant, &finiAvant);
    const Fiches nouveaux = Contacts(apres);
    if (finiAvant && !fini)
        return "no end-of-log record";
    const Fiches disparus = Sans(anciens, nouveaux);
    const Fiches apparus = Sans(nouveaux, anciens);
    for (const std::string& fiche : Sans(anciens, disparus))
        if (!Prendre(reste, {fiche}))
            return "lost " + Nommer(fiche);
    if (disparus.size() == apparus.size()) {
        for (std::size_t i = 0; i < disparus.size(); ++i)
            if (!Prendre(reste, {disparus[i], apparus[i]}))
                return "neither old nor new " + Nommer(disparus[i]);
    } else {
        // A deletion blanks its contact first.
        for (const std::string& fiche : disparus)
            Prendre(reste, {fiche, std::string(kTailleFiche, ' ')});
        std::size_t nouvelles = 0;
        for (const std::string& fiche : apparus)
            nouvelles += Prendre(reste, {fiche}) ? 1 : 0;
        if (nouvelles != 0 && nouvelles != apparus.size())
            return "only " + std::to_string(nouvelles) + " of the appended contacts";
    }
    return reste.empty() ? std::string() : "invented or doubled " + Nommer(reste.front());
}

std::string DegatDeLaFeuille(const Fichiers& avant, const Fichiers& apres,
                             const Fichiers& trouves) {
    const std::string nom = "FeuilleQSL.txt";
    const std::string a = Fichier(avant, nom);
    const std::string b = Fichier(apres, nom);
    const std::string t = Fichier(trouves, nom);
    if (t.empty() && a.empty())
        return {};
    if (t.size() != b.size())
        return "sheet of " + std::to_string(t.size()) + " bytes";
    std::set<std::string> indicatifs;
    for (std::size_t i = 0; i < t.size(); i += kTailleEtiquette) {
        const std::string place = t.substr(i, kTailleEtiquette);
        if (place != b.substr(i, kTailleEtiquette) &&
            (a.empty() || place != a.substr(i, kTailleEtiquette)))
            return "torn label [" + place + "]";
        indicatifs.insert(place.substr(0, 15));
    }
    for (const std::string& fiche : Contacts(Fichier(trouves, "F5ABC.Vek")))
        if (fiche.substr(143, 8) == "En cours" && !indicatifs.contains(fiche.substr(0, 15)))
            return "without a label: " + Nommer(fiche);
    return {};
}

} // namespace

std::string Degat(const Fichiers& avant, const Fichiers& apres, const Fichiers& trouves) {
    const std::string cahier = "F5ABC.Vek";
    std::string degat =
        DegatDuCahier(Fichier(avant, cahier), Fichier(apres, cahier), Fichier(trouves, cahier));
    if (degat.empty())
        degat = DegatDeLaFeuille(avant, apres, trouves);
    for (const auto& [nom, octets] : avant) {
        const bool intact = nom == cahier || nom == "FeuilleQSL.txt" ||
                            Fichier(trouves, nom) == octets ||
                            Fichier(trouves, nom) == Fichier(apres, nom);
        if (degat.empty() && !intact)
            degat = nom + " is neither the old nor the new one";
    }
    return degat;
}

} // namespace orvalis::essais
