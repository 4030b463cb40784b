#include "echange/bilan.h"

#include "core/departements.h"
#include "echange/mesure.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace orvalis {
namespace {

constexpr std::string_view kCorse = "20";

// Both halves of Corsica count for the one department that the card names.
std::string_view CodeCompte(std::string_view departement) {
    return departement == "2A" || departement == "2B" ? kCorse : departement;
}

std::vector<BilanDepartement> TousLesDepartements() {
    constexpr int kDernierMetropole = 95;
    constexpr int kPremierOutreMer = 971;
    constexpr int kDernierOutreMer = 974;
    std::vector<BilanDepartement> departements;
    for (int n = 1; n <= kDernierOutreMer; n = n == kDernierMetropole ? kPremierOutreMer : n + 1) {
        const std::string_view code =
            LireDepartement(n < 10 ? "0" + std::to_string(n) : std::to_string(n));
        departements.push_back({code, Rogner(NomDepartement(code)), 0, EtatDepartement::Jamais});
    }
    return departements;
}

// How far a contact went; kept for each, so it is small.
struct Portee {
    std::int32_t numero;
    double km;
};

// What is counted by a name until it can be put in order.
struct Comptes {
    std::map<int, std::size_t> annees;
    std::unordered_map<const Bande*, std::size_t> bandes;
    std::unordered_map<std::string_view, std::size_t> modes;
    std::unordered_map<std::string, BilanCarre> carres;
    std::vector<Portee> portees; ///< of contacts with a callsign
};

void CompterDate(BilanCahier& bilan, Comptes& comptes, std::int32_t numero,
                 const std::optional<Jour>& date) {
    if (!date) {
        bilan.datesIllisibles.push_back(numero);
        return;
    }
    ++comptes.annees[static_cast<int>(date->year())];
    ++bilan.mois[static_cast<unsigned>(date->month()) - 1];
    if (!bilan.premier || *date < *bilan.premier)
        bilan.premier = date;
    if (!bilan.dernier || *date > *bilan.dernier)
        bilan.dernier = date;
}

void CompterDepartement(BilanCahier& bilan, std::string_view departement, bool confirme) {
    if (departement.empty())
        return;
    const std::string_view code = CodeCompte(departement);
    const auto la = std::find_if(bilan.departements.begin(), bilan.departements.end(),
                                 [code](const BilanDepartement& d) { return d.code == code; });
    if (la == bilan.departements.end())
        return;
    ++la->contacts;
    if (la->etat == EtatDepartement::Jamais)
        la->etat = EtatDepartement::Contacte;
    if (confirme)
        la->etat = EtatDepartement::Confirme;
}

void CompterLieu(Comptes& comptes, std::int32_t numero, const QsoRecord& fiche,
                 const SensFiche& sens, bool confirme) {
    if (!sens.carre.empty()) {
        BilanCarre& carre = comptes.carres[sens.carre];
        ++carre.contacts;
        carre.confirme = carre.confirme || confirme;
    }
    if (!sens.indicatif.empty())
        comptes.portees.push_back({numero, MesurerContact(fiche).km.value_or(0)});
}

void RangerBandesEtModes(BilanCahier& bilan, const Comptes& comptes) {
    for (const Bande& bande : Bandes())
        if (const auto la = comptes.bandes.find(&bande); la != comptes.bandes.end())
            bilan.bandes.push_back({bande.nom, la->second});
    for (const auto& [nom, contacts] : comptes.modes)
        bilan.modes.push_back({nom, contacts});
    std::sort(bilan.modes.begin(), bilan.modes.end(), [](const ComptePar& a, const ComptePar& b) {
        return a.contacts != b.contacts ? a.contacts > b.contacts : a.nom < b.nom;
    });
}

void RangerCarres(BilanCahier& bilan, Comptes& comptes) {
    for (auto& [nom, carre] : comptes.carres) {
        carre.carre = nom;
        bilan.carresConfirmes += carre.confirme ? 1 : 0;
        bilan.carres.push_back(std::move(carre));
    }
    std::sort(bilan.carres.begin(), bilan.carres.end(),
              [](const BilanCarre& a, const BilanCarre& b) { return a.carre < b.carre; });
}

// Of each station the contact of the longest distance, the first of several; of these the farthest.
void RangerStations(BilanCahier& bilan, std::span<const QsoRecord> fiches,
                    std::vector<Portee>& portees) {
    const auto fiche = [fiches](const Portee& p) -> const QsoRecord& {
        return fiches[static_cast<std::size_t>(p.numero) - 1];
    };
    const auto station = [&fiche](const Portee& p) {
        return Rogner(OctetsChamp(fiche(p), Champ::CSGN));
    };
    const auto plusLoin = [](const Portee& a, const Portee& b) {
        return a.km != b.km ? a.km > b.km : a.numero < b.numero;
    };
    std::sort(portees.begin(), portees.end(), [&](const Portee& a, const Portee& b) {
        const int ordre = station(a).compare(station(b));
        return ordre != 0 ? ordre < 0 : plusLoin(a, b);
    });
    const auto meme = [&](const Portee& a, const Portee& b) { return station(a) == station(b); };
    portees.erase(std::unique(portees.begin(), portees.end(), meme), portees.end());
    bilan.stations = portees.size();
    std::erase_if(portees, [](const Portee& p) { return p.km <= 0; });
    const std::size_t n = std::min(kNbLointains, portees.size());
    std::partial_sort(portees.begin(), portees.begin() + static_cast<std::ptrdiff_t>(n),
                      portees.end(), plusLoin);
    portees.resize(n);
    for (const Portee& p : portees) {
        SensFiche sens = ComprendreFiche(fiche(p));
        bilan.lointains.push_back({p.numero, std::move(sens.indicatif), std::move(sens.carre),
                                   sens.date, MesurerContact(fiche(p)).distance, p.km});
    }
}

void RangerDepartements(BilanCahier& bilan) {
    for (const BilanDepartement& d : bilan.departements) {
        bilan.departementsContactes += d.etat != EtatDepartement::Jamais ? 1 : 0;
        bilan.departementsConfirmes += d.etat == EtatDepartement::Confirme ? 1 : 0;
    }
}

} // namespace

std::string_view NomUsuel(const ModeAdif& mode) {
    return mode.mode == "SSB" || mode.sousMode.empty() ? mode.mode : mode.sousMode;
}

BilanCahier FaireBilan(std::span<const QsoRecord> fiches) {
    BilanCahier bilan;
    bilan.contacts = fiches.size();
    bilan.departements = TousLesDepartements();
    Comptes comptes;
    std::int32_t numero = 0;
    for (const QsoRecord& fiche : fiches) {
        const SensFiche sens = ComprendreFiche(fiche);
        const bool confirme = sens.saCarte.etat == EtatQsl::Faite;
        CompterDate(bilan, comptes, ++numero, sens.date);
        ++(sens.frequence.bande == nullptr ? bilan.sansBande
                                           : comptes.bandes[sens.frequence.bande]);
        const std::string_view mode = NomUsuel(sens.mode);
        ++(mode.empty() ? bilan.sansMode : comptes.modes[mode]);
        CompterDepartement(bilan, sens.departement, confirme);
        CompterLieu(comptes, numero, fiche, sens, confirme);
        ++bilan.maCarte[static_cast<std::size_t>(sens.maCarte.etat)];
        ++bilan.saCarte[static_cast<std::size_t>(sens.saCarte.etat)];
        bilan.aRepondre += confirme && sens.maCarte.etat == EtatQsl::Rien ? 1 : 0;
    }
    for (const auto& [annee, contacts] : comptes.annees)
        bilan.annees.push_back({annee, contacts});
    RangerBandesEtModes(bilan, comptes);
    RangerDepartements(bilan);
    RangerCarres(bilan, comptes);
    RangerStations(bilan, fiches, comptes.portees);
    return bilan;
}

} // namespace orvalis
