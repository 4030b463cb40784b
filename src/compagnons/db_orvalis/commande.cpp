#include "compagnons/db_orvalis/commande.h"

#include "compagnons/db_orvalis/options.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/parametres.h"
#include "core/texte.h"
#include "echange/exporter.h"
#include "echange/importer.h"
#include "echange/refus.h"
#include "geo/locator.h"

#include <memory>
#include <optional>
#include <ostream>
#include <vector>

namespace orvalis {
namespace {

namespace fs = std::filesystem;

struct Parametrage {
    Parametres parametres;
    fs::path cahier;                ///< the station's logbook
    std::vector<fs::path> fichiers; ///< all files of the station
};

// The Settings, where there are any.
std::optional<Parametrage> LireParametrage(const Alentours& alentours) {
    const fs::path dossier = DossierProgramme(CalculerLecteur(alentours.courant, alentours.maison));
    const fs::path chemin = TrouverFichier(dossier, kNomParametres);
    if (!Present(chemin))
        return {};
    Parametrage parametrage{LireParametres(chemin), {}, {}};
    parametrage.cahier = TrouverFichier(dossier, parametrage.parametres.nomFichier);
    parametrage.fichiers = {parametrage.cahier, chemin, TrouverFichier(dossier, kNomFeuilleQSL)};
    return parametrage;
}

std::unique_ptr<Fuseau> ChoisirFuseau(const Options& options) {
    const std::string heures = options.heures.value_or("utc");
    if (MajusculesAscii(heures) == "UTC")
        return std::make_unique<Fuseau>();
    return std::make_unique<Fuseau>(heures == "locales" ? "" : heures);
}

Retour Exporter(const Options& options, const Alentours& alentours) {
    std::optional<Parametrage> parametrage;
    try {
        parametrage = LireParametrage(alentours);
    } catch (const Erreur&) {
        if (!options.cahier)
            throw; // with a logbook of its own no Settings are needed, not even sound ones
    }
    if (!options.cahier && !parametrage)
        throw RefusEchange("Aucun cahier de la station n'est trouvé : donnez-en un par --cahier.");
    DemandeExport demande;
    demande.cahier = options.cahier ? fs::path{*options.cahier} : parametrage->cahier;
    demande.genre = options.adx ? GenreAdif::Adx : GenreAdif::Adi;
    demande.cible = options.adx ? *options.adx : *options.adif;
    demande.creation = MaintenantAdif();
    if (parametrage)
        demande.proteges = parametrage->fichiers;
    if (options.indicatif)
        demande.indicatif = Majuscules(Rogner(*options.indicatif));
    else if (parametrage && MemeFichier(demande.cahier, parametrage->cahier))
        demande.indicatif = Rogner(parametrage->parametres.indicatif);

    const BilanExport bilan = ExporterAdif(demande, *ChoisirFuseau(options));
    alentours.messages << bilan.contacts << " contacts écrits dans « " << demande.cible.string()
                       << " ».\n";
    if (bilan.sansDate > 0)
        alentours.messages << bilan.sansDate
                           << " contacts n'ont pas de date lisible : les autres programmes les "
                              "laisseront de côté.\n";
    if (!bilan.finPresente || !bilan.longueurEntiere)
        alentours.messages << "Le cahier « " << demande.cahier.string()
                           << " » n'a pas la fin d'un cahier : il est peut-être abîmé.\n";
    const bool remarques = bilan.sansDate > 0 || !bilan.finPresente || !bilan.longueurEntiere;
    return remarques ? Retour::FaitAvecRemarques : Retour::Fait;
}

Retour Importer(const Options& options, const Alentours& alentours) {
    const auto parametrage = LireParametrage(alentours);
    DemandeImport demande;
    demande.source = *options.importer;
    demande.cible = *options.vers;
    demande.ancien = options.remplacer ? Ancien::Remplace : Ancien::Protege;
    if (options.locator) {
        demande.locator = Majuscules(Rogner(*options.locator));
        if (!LocatorValide(demande.locator))
            throw RefusEchange("« " + *options.locator +
                               " » n'est pas un locator de six caractères.");
    } else if (parametrage && LocatorValide(parametrage->parametres.monLocator)) {
        demande.locator = parametrage->parametres.monLocator;
    }
    if (parametrage)
        demande.proteges = parametrage->fichiers;

    const BilanImport bilan = ImporterAdif(demande, *ChoisirFuseau(options));
    alentours.messages << bilan.repris << " contacts repris dans « " << demande.cible.string()
                       << " », " << bilan.changes << " changés, " << bilan.laisses
                       << " laissés de côté, " << bilan.egaux
                       << " égaux à un autre ; le rapport est « " << bilan.rapport.string()
                       << " ».\n";
    return bilan.ADire() ? Retour::FaitAvecRemarques : Retour::Fait;
}

} // namespace

Retour ExecuterCommande(std::span<const std::string_view> arguments, const Alentours& alentours) {
    try {
        const Options options = LireOptions(arguments);
        if (options.aide) {
            alentours.sortie << TexteAide();
            return Retour::Fait;
        }
        return options.importer ? Importer(options, alentours) : Exporter(options, alentours);
    } catch (const OptionsRefusees& refus) {
        alentours.messages << refus.what() << " « dbOrvalis --help » montre les options.\n";
    } catch (const RefusEchange& refus) {
        alentours.messages << refus.what() << "\n";
    } catch (const std::exception& erreur) {
        alentours.messages << MessageErreur(erreur) << "\n";
    }
    return Retour::Refuse;
}

} // namespace orvalis
