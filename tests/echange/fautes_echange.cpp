// Tries every fault at every call of the system while a logbook goes out and comes in: the former
// file or the new one stands there afterwards, and nothing else has changed.
#include "compagnons/db_orvalis/bilan_html.h"
#include "echange/aides_echange.h"
#include "echange/base.h"
#include "echange/exporter.h"
#include "echange/refus.h"
#include "fautes/injection.h"

#include <iostream>

namespace orvalis::operateur {
namespace {

namespace fs = std::filesystem;
using Fichiers = std::map<std::string, std::string>;

struct Operation {
    const char* nom;
    std::function<void(const fs::path&)> agir;
};

const fs::path kCahier = "S.Vek";

void Exporter(const fs::path& ici, const char* cible, GenreAdif genre) {
    static_cast<void>(ExporterAdif({ici / kCahier, ici / cible, genre, "F5ABC", {}, "x"}, {}));
}
void Importer(const fs::path& ici, const char* cible, Ancien ancien) {
    static_cast<void>(ImporterAdif({ici / "f.adi", ici / cible, ancien, "", {}}, {}));
}

const std::vector<Operation> kOperations = {
    {"ADI, replaced", [](auto& ici) { Exporter(ici, "ancien.adi", GenreAdif::Adi); }},
    {"ADX, new", [](auto& ici) { Exporter(ici, "neuf.adx", GenreAdif::Adx); }},
    {"base, replaced",
     [](auto& ici) {
         static_cast<void>(FaireBase({ici / kCahier, ici / "ancien.sqlite", "F5ABC", {}, "x"}));
     }},
    {"summary, replaced",
     [](auto& ici) {
         static_cast<void>(EcrireBilan({ici / kCahier,
                                        ici / "ancien.html",
                                        "F5ABC",
                                        {},
                                        Jour{std::chrono::year{2026} / 9 / 30}}));
     }},
    {"import, new", [](auto& ici) { Importer(ici, "G.Vek", Ancien::Protege); }},
    {"import, replaced", [](auto& ici) { Importer(ici, "A.Vek", Ancien::Remplace); }},
};

Fichiers LireFichiers(const fs::path& dossier) {
    Fichiers fichiers;
    for (const auto& entree : fs::directory_iterator(dossier))
        fichiers[entree.path().filename()] = aides::Lire(entree.path());
    return fichiers;
}

// What was said, "killed" or "crashed".
std::string Essayer(const Operation& operation, const fs::path& ici, const Fichiers& avant,
                    const Plan& plan, Bilan& bilan) {
    for (const auto& entree : fs::directory_iterator(ici))
        fs::remove(entree.path());
    for (const auto& [nom, octets] : avant)
        std::ofstream(ici / nom, std::ios::binary) << octets;
    return LancerArme(ici.string(), plan, bilan, [&]() -> std::string {
        try {
            operation.agir(ici);
            return {};
        } catch (const std::exception& erreur) {
            return erreur.what();
        }
    });
}

std::string Juger(const Plan& plan, const std::string& dit, const Fichiers& avant,
                  const Fichiers& apres, Fichiers trouves) {
    if ((dit == "killed") != plan.faute.tue || dit == "crashed")
        return "died: " + dit;
    if (plan.faute.tue) // what was under way stays under a name of its own
        std::erase_if(trouves, [](const auto& f) { return f.first.ends_with(".tmp"); });
    if (dit.find(".tmp") != dit.npos)
        return "names a file that nobody asked for: " + dit;
    if (dit.empty() && trouves != apres)
        return "said nothing, although it is not done";
    for (const auto& [nom, octets] : trouves) {
        const auto la = [&](const Fichiers& f) { return f.contains(nom) && f.at(nom) == octets; };
        if (!la(avant) && !la(apres))
            return nom + " is neither the former nor the new one";
    }
    for (const auto& [nom, octets] : avant)
        if (!trouves.contains(nom))
            return nom + " is gone";
    return "";
}

} // namespace
} // namespace orvalis::operateur

int main() {
    using namespace orvalis::operateur;
    Bilan& bilan = NouveauBilan();
    const orvalis::aides::Dossier dossier;
    const fs::path ici = (dossier / "").parent_path();
    Fichiers avant = {
        {"S.Vek", orvalis::aides::Contact("F1AAA", "09/01/25") + orvalis::aides::Fin()},
        {"ancien.adi", "former"},
        {"ancien.html", "former"},
        {"ancien.sqlite", "SQLite format 3"},
        {"A.Vek", orvalis::aides::Fin()},
        {"A.rapport.txt", "former"}};
    const std::string contact =
        "<CALL:5>F4WKA <QSO_DATE:8>20250109 <MY_GRIDSQUARE:6>JN18DU <EOR>\n";
    for (int i = 0; i < 60; ++i)
        avant["f.adi"] += contact;
    int essais = 0;
    int degats = 0;
    for (const Operation& operation : kOperations) {
        const std::string temoin = Essayer(operation, ici, avant, {}, bilan);
        const std::vector<Appel> appels(bilan.appels.data(), bilan.appels.data() + bilan.nombre);
        const Fichiers apres = LireFichiers(ici);
        const bool marche = temoin.empty() && apres != avant && !appels.empty();
        std::cout << operation.nom << ": " << appels.size() << " calls "
                  << (marche ? "" : "does not work " + temoin) << "\n";
        degats += marche ? 0 : 1;
        for (std::size_t rang = 0; rang < appels.size(); ++rang)
            for (const Plan& plan : Fautes(appels[rang], rang)) {
                const std::string dit = Essayer(operation, ici, avant, plan, bilan);
                const std::string degat = Juger(plan, dit, avant, apres, LireFichiers(ici));
                ++essais;
                degats += degat.empty() ? 0 : 1;
                if (!degat.empty())
                    std::cout << "  " << plan.faute.nom << " at call " << rang + 1 << " ("
                              << appels[rang].nom << "): " << degat << "\n";
            }
    }
    std::cout << essais << " faults tried, " << degats << " damaged\n";
    return essais > 0 && degats == 0 ? 0 : 1;
}
