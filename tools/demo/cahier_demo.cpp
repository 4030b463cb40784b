// Writes the sample drive: orvalis_demo <contacts.txt> <folder>. The folder gets Orvalis/ with the
// Settings file, the logbook of the invented station and the label sheet that its pending cards
// lie on. The table is checked on the way, so that the sample never holds what the window would
// refuse.
#include "core/dates.h"
#include "core/dossier.h"
#include "core/fichier_fiches.h"
#include "core/parametres.h"
#include "core/texte.h"
#include "geo/locator.h"
#include "qsl/contact_etiquette.h"
#include "qsl/feuille_qsl.h"

#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace orvalis;

namespace {

const std::string kIndicatif = "F4YZX";
const std::string kLocator = "JN18DU";

// The column order of the table. The remark and the manager are the two halves of INFO.
enum Colonne : std::size_t {
    Indicatif,
    Date,
    Debut,
    Fin,
    Frequence,
    Mode,
    Donne,
    Recu,
    Qth,
    Locator,
    Departement,
    Prenom,
    Infos,
    Manager,
    MaQsl,
    SaQsl,
    kNbColonnes
};
using Ligne = std::array<std::string, kNbColonnes>;

struct ChampDeColonne {
    Colonne colonne;
    Champ champ;
};
constexpr std::array<ChampDeColonne, 14> kChampsDesColonnes = {{
    {Indicatif, Champ::CSGN},
    {Date, Champ::DQSO},
    {Debut, Champ::HDEB},
    {Fin, Champ::HFIN},
    {Frequence, Champ::FREQ},
    {Mode, Champ::MODE},
    {Donne, Champ::SRST},
    {Recu, Champ::MRST},
    {Qth, Champ::SQTH},
    {Locator, Champ::SLOC},
    {Departement, Champ::DEPT},
    {Prenom, Champ::SNOM},
    {MaQsl, Champ::MQSL},
    {SaQsl, Champ::SQSL},
}};

Ligne Decouper(const std::string& texte) {
    Ligne ligne;
    std::size_t debut = 0;
    for (std::size_t i = 0; i < ligne.size(); ++i) {
        const std::size_t fin = texte.find(';', debut);
        if ((fin == std::string::npos) != (i + 1 == ligne.size()))
            throw std::runtime_error("not sixteen values: " + texte);
        ligne[i] = texte.substr(debut, fin - debut);
        debut = fin + 1;
    }
    return ligne;
}

void Verifier(const Ligne& ligne, const std::string& texte) {
    for (const auto& [colonne, champ] : kChampsDesColonnes)
        if (Longueur(ligne[colonne]) > Description(champ).largeur)
            throw std::runtime_error("value too long in: " + texte);
    if (Longueur(ligne[Infos]) > kLargeurDemiInfo || Longueur(ligne[Manager]) > kLargeurDemiInfo)
        throw std::runtime_error("remark or manager too long in: " + texte);
    const auto accepte = [](const Verification& v, const std::string& valeur) {
        return v.ValiditeOK && v.texte == valeur;
    };
    if (!accepte(ControlerDate(ligne[Date]), ligne[Date]) ||
        !accepte(ControlerHeure(ligne[Debut]), ligne[Debut]) ||
        !accepte(ControlerHeure(ligne[Fin]), ligne[Fin]))
        throw std::runtime_error("bad date or time in: " + texte);
    if (!ligne[Locator].empty() && !LocatorValide(ligne[Locator]))
        throw std::runtime_error("bad locator in: " + texte);
}

QsoRecord Fiche(const Ligne& ligne) {
    QsoRecord fiche;
    for (const auto& [colonne, champ] : kChampsDesColonnes)
        MettreChamp(fiche, champ, ligne[colonne]);
    MettreChamp(fiche, Champ::INFO, Cadrer(ligne[Infos], kLargeurDemiInfo) + ligne[Manager]);
    MettreChamp(fiche, Champ::MLOC, kLocator);
    return fiche;
}

std::vector<QsoRecord> LireTable(const std::string& chemin) {
    std::ifstream table(chemin);
    if (!table)
        throw std::runtime_error("cannot read " + chemin);
    std::vector<QsoRecord> fiches;
    for (std::string texte; std::getline(table, texte);) {
        if (texte.empty() || texte.front() == '#')
            continue;
        const Ligne ligne = Decouper(texte);
        Verifier(ligne, texte);
        fiches.push_back(Fiche(ligne));
    }
    return fiches;
}

// The pending cards, in the order of the log, on the first places of the sheet.
std::vector<QslSlotRecord> Etiquettes(const std::vector<QsoRecord>& fiches) {
    std::vector<QslSlotRecord> etiquettes;
    for (std::size_t i = 0; i < fiches.size(); ++i) {
        const QsoRecord& fiche = fiches[i];
        if (TexteRogne(fiche, Champ::MQSL) != kEnCours)
            continue;
        const auto copier = [&](ChampEtiquette vers, Champ de) {
            MettreChamp(etiquettes.back(), vers, TexteRogne(fiche, de));
        };
        QslSlotRecord& etiquette = etiquettes.emplace_back();
        copier(ChampEtiquette::Indicatif, Champ::CSGN);
        copier(ChampEtiquette::Date, Champ::DQSO);
        copier(ChampEtiquette::Heure, Champ::HDEB);
        copier(ChampEtiquette::Frequence, Champ::FREQ);
        copier(ChampEtiquette::Report, Champ::SRST);
        copier(ChampEtiquette::Mode, Champ::MODE);
        // The heading reads "F4YZX  Confirming QSO with  ...".
        MettreChamp(etiquette, ChampEtiquette::Ligne1, kIndicatif);
        MettreChamp(etiquette, ChampEtiquette::Ligne2,
                    Rogner(Gauche(TexteChamp(fiche, Champ::INFO), kLargeurDemiInfo)));
        MettreChamp(etiquette, ChampEtiquette::Voie, kVoieBureau);
        MettreChamp(etiquette, ChampEtiquette::Fiche, std::to_string(i + 1));
    }
    QslSlotRecord libre;
    MettreChamp(libre, ChampEtiquette::Indicatif, kMarqueLibre);
    etiquettes.resize(kNbEtiquettes, libre);
    return etiquettes;
}

} // namespace

int main(int nbArguments, char** arguments) try {
    if (nbArguments != 3) {
        std::fputs("usage: orvalis_demo <contacts.txt> <folder>\n", stderr);
        return 2;
    }
    std::vector<QsoRecord> fiches = LireTable(arguments[1]);
    fiches.push_back(FicheFinDeLog(kLocator));
    const std::filesystem::path dossier = DossierProgramme(arguments[2]);
    std::filesystem::create_directories(dossier);
    const std::string nom = NomDuCahier(kIndicatif);
    FichierFiches cahier(dossier / nom, ModeFichier::Creation);
    cahier.Ecrire(kPremiereFiche, fiches);
    const std::vector<QslSlotRecord> etiquettes = Etiquettes(fiches);
    Fichier feuille(dossier / kNomFeuilleQSL, ModeFichier::Creation);
    feuille.Ecrire(0, {etiquettes.data()->octets.data(), etiquettes.size() * kTailleEtiquette});
    EcrireParametres(dossier / kNomParametres, {kIndicatif, nom, kLocator});
    return 0;
} catch (const std::exception& erreur) {
    std::fprintf(stderr, "orvalis_demo: %s\n", erreur.what());
    return 1;
}
