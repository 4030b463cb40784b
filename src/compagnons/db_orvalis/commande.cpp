#include "compagnons/db_orvalis/commande.h"

#include "compagnons/db_orvalis/bilan_html.h"
#include "compagnons/db_orvalis/options.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/parametres.h"
#include "core/texte.h"
#include "echange/base.h"
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

// The logbook that is read, and what is known of its station.
struct Origine {
    fs::path cahier;
    std::string indicatif;
    std::vector<fs::path> proteges;
};

Origine ChoisirOrigine(const Options& options, const Alentours& alentours) {
    std::optional<Parametrage> parametrage;
    try {
        parametrage = LireParametrage(alentours);
    } catch (const Erreur&) {
        if (!options.cahier)
            throw; // with a logbook of its own no Settings are needed, not even sound ones
    }
    if (!options.cahier && !parametrage)
        throw RefusEchange("Aucun cahier de la station n'est trouvé : donnez-en un par --cahier.");
    Origine origine;
    origine.cahier = options.cahier ? fs::path{*options.cahier} : parametrage->cahier;
    if (parametrage)
        origine.proteges = parametrage->fichiers;
    if (options.indicatif)
        origine.indicatif = Majuscules(Rogner(*options.indicatif));
    else if (parametrage && MemeFichier(origine.cahier, parametrage->cahier))
        origine.indicatif = Rogner(parametrage->parametres.indicatif);
    return origine;
}

std::string Contacts(std::size_t nombre, std::string_view un, std::string_view plusieurs) {
    const bool pluriel = nombre > 1;
    return std::to_string(nombre) + (pluriel ? " contacts " : " contact ") +
           std::string{pluriel ? plusieurs : un};
}

// Tells what was written, and what of the logbook is not as it should be; `sansDate` says what
// comes of contacts without a date.
template<class Bilan>
Retour Conclure(std::ostream& messages, const Bilan& bilan, const fs::path& cahier,
                const fs::path& cible, std::string_view sansDate, std::string_view un = "écrit",
                std::string_view plusieurs = "écrits") {
    messages << Contacts(bilan.contacts, un, plusieurs) << " dans « " << cible.string() << " ».\n";
    if (bilan.sansDate > 0)
        messages << Contacts(bilan.sansDate, "n'a", "n'ont")
                 << " pas de date lisible : " << sansDate << ".\n";
    const bool sain = bilan.finPresente && bilan.longueurEntiere;
    if (!sain)
        messages << "Le cahier « " << cahier.string()
                 << " » n'a pas la fin d'un cahier : il est peut-être abîmé.\n";
    return bilan.sansDate > 0 || !sain ? Retour::FaitAvecRemarques : Retour::Fait;
}

Retour Exporter(const Options& options, const Alentours& alentours) {
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = options.adx ? *options.adx : *options.adif;
    const DemandeExport demande{origine.cahier,
                                cible,
                                options.adx ? GenreAdif::Adx : GenreAdif::Adi,
                                origine.indicatif,
                                origine.proteges,
                                EcrireInstantAdif(Maintenant())};
    const BilanExport bilan = ExporterAdif(demande, *ChoisirFuseau(options));
    return Conclure(alentours.messages, bilan, origine.cahier, cible,
                    "les autres programmes les laissent de côté");
}

void RefuserHeures(const Options& options, std::string_view option, std::string_view sujet) {
    if (options.heures)
        throw OptionsRefusees("« --heures » ne va pas avec « " + std::string{option} +
                              " » : " + std::string{sujet} + " garde les heures du cahier.");
}

Retour Baser(const Options& options, const Alentours& alentours) {
    if (options.heures)
        throw OptionsRefusees("« --heures » ne va pas avec « --base » : la base garde les heures "
                              "du cahier.");
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = *options.base;
    const BilanBase bilan = FaireBase({origine.cahier, cible, origine.indicatif, origine.proteges,
                                       EcrireInstantIso(Maintenant())});
    return Conclure(alentours.messages, bilan, origine.cahier, cible,
                    "voyez la vue dates_illisibles");
}

Retour FaireLeBilan(const Options& options, const Alentours& alentours) {
    RefuserHeures(options, "--bilan", "le bilan");
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = *options.bilan;
    const BilanExport bilan =
        EcrireBilan({origine.cahier, cible, origine.indicatif, origine.proteges, Aujourdhui()});
    return Conclure(alentours.messages, bilan, origine.cahier, cible,
                    "leurs numéros sont à la fin du bilan", "compté", "comptés");
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
    const auto nombre = [](std::int64_t n) { return static_cast<std::size_t>(n); };
    alentours.messages << Contacts(nombre(bilan.repris), "repris", "repris") << " dans « "
                       << demande.cible.string() << " » ; changés : " << bilan.changes
                       << ", égaux à un autre : " << bilan.egaux
                       << ", laissés de côté : " << bilan.laisses << ". Le rapport est « "
                       << bilan.rapport.string() << " ».\n";
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
        if (options.importer)
            return Importer(options, alentours);
        if (options.bilan)
            return FaireLeBilan(options, alentours);
        return options.base ? Baser(options, alentours) : Exporter(options, alentours);
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
