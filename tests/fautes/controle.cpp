#include "fautes/fautes.h"
#include "qsl/qsl_slot_record.h"

#include <span>

namespace orvalis::operateur {
namespace {

using Fiches = std::vector<std::string>;

// The contacts before the end-of-log record, sorted.
Fiches Lire(const std::string& octets) {
    Fiches fiches;
    for (std::size_t i = 0; i < octets.size() && octets.compare(i, 2, "\\ ") != 0;
         i += kTailleFiche)
        fiches.push_back(octets.substr(i, kTailleFiche));
    std::sort(fiches.begin(), fiches.end());
    return fiches;
}

// The contacts of `fiches` less those of `autres`, one for one.
Fiches Sans(const Fiches& fiches, const Fiches& autres) {
    Fiches reste;
    std::set_difference(fiches.begin(), fiches.end(), autres.begin(), autres.end(),
                        std::back_inserter(reste));
    return reste;
}

std::string DegatDuCahier(const std::string& avant, const std::string& apres,
                          const std::string& trouve, bool repare) {
    const Fiches anciens = Lire(avant), nouveaux = Lire(apres), trouves = Lire(trouve);
    if (anciens.size() * kTailleFiche < avant.size() &&
        trouves.size() * kTailleFiche >= trouve.size())
        return "no end-of-log record";
    const Fiches disparus = Sans(anciens, nouveaux), apparus = Sans(nouveaux, anciens);
    const Fiches communs = Sans(anciens, disparus);
    if (const Fiches perdus = Sans(communs, trouves); !perdus.empty())
        return "lost " + perdus[0];
    const Fiches restes = Sans(trouves, communs);
    if (repare && trouve.size() != avant.size() && trouve.size() != apres.size())
        return "logbook of " + std::to_string(trouve.size()) + " bytes";
    // A deletion blanks its contact first; contacts are appended together or not at all.
    const Fiches blanche(repare ? 0 : disparus.size(), std::string(kTailleFiche, ' '));
    if (restes == disparus || restes == apparus || (apparus.empty() && restes == blanche))
        return {};
    // Corrections come one after the other, which sorting leaves in the same places.
    bool corriges = restes.size() == disparus.size() && restes.size() == apparus.size();
    for (std::size_t i = 0; corriges && i < restes.size(); ++i)
        corriges = restes[i] == disparus[i] || restes[i] == apparus[i];
    return corriges ? "" : "torn, invented or doubled" + (restes.empty() ? "" : ' ' + restes[0]);
}

std::string DegatDeLaFeuille(const std::string& a, const std::string& b, const std::string& t,
                             const std::string& cahier) {
    if (t.empty() && a.empty())
        return {};
    if (t.size() != b.size())
        return "sheet of " + std::to_string(t.size()) + " bytes";
    for (std::size_t i = 0; i < t.size(); i += kTailleEtiquette) {
        const std::string place = t.substr(i, kTailleEtiquette);
        const bool ancienne = !a.empty() && place == a.substr(i, kTailleEtiquette);
        if (place != b.substr(i, kTailleEtiquette) && !ancienne)
            return "torn label [" + place + "]";
    }
    for (const std::string& fiche : Lire(cahier))
        if (fiche.substr(143, 8) == "En cours" && t.find(fiche.substr(0, 15)) == t.npos)
            return "without a label: " + fiche;
    return {};
}

} // namespace

std::string Journal(const Bilan& bilan) {
    std::string journal, dernier;
    for (const Appel& appel : std::span(bilan.appels).first(bilan.nombre)) {
        const std::string_view nom(appel.nom);
        const char* signe = nom.ends_with("sync") ? "!" : nom == "rename" ? ">" : "";
        if (!appel.ecrit && *signe == '\0')
            continue;
        const std::string mot = std::string(" ") + appel.fichier.data() + signe;
        if (mot != dernier)
            journal += mot;
        dernier = mot;
    }
    return journal.empty() ? "" : journal.substr(1);
}

std::string NonSynchronise(const Bilan& bilan) {
    std::map<std::string, bool> sales;
    for (const Appel& appel : std::span(bilan.appels).first(bilan.nombre)) {
        const std::string_view nom(appel.nom), fichier(appel.fichier.data());
        bool& sale = sales[std::string(fichier)];
        const bool coupe = nom == "ftruncate" && fichier.ends_with(".Vek");
        if (coupe && sale)
            return std::string(fichier) + " is cut before it is flushed";
        sale = (sale && !nom.ends_with("sync")) || appel.ecrit || coupe;
    }
    for (const auto& [fichier, sale] : sales)
        if (sale && !fichier.ends_with(".tmp"))
            return fichier + " is not flushed";
    return {};
}

std::string Degat(Fichiers avant, Fichiers apres, Fichiers trouves, bool repare) {
    const std::string c = "F5ABC.Vek", f = "FeuilleQSL.txt";
    if (trouves.contains(f) && trouves[f].empty())
        return "a sheet of 0 bytes";
    std::string degat = DegatDuCahier(avant[c], apres[c], trouves[c], repare);
    if (degat.empty())
        degat = DegatDeLaFeuille(avant[f], apres[f], trouves[f], trouves[c]);
    for (const auto& [nom, octets] : avant)
        if (degat.empty() && nom != c && nom != f && trouves[nom] != octets &&
            trouves[nom] != apres[nom])
            degat = nom + " is neither the old nor the new one";
    return degat;
}

} // namespace orvalis::operateur
