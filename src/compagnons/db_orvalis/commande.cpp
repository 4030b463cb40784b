#include "compagnons/db_orvalis/commande.h"

#include "compagnons/db_orvalis/bilan_html.h"
#include "compagnons/db_orvalis/options.h"
#include "compagnons/db_orvalis/phrases.h"
#include "compagnons/db_orvalis/station_lue.h"
#include "core/chemins.h"
#include "core/erreurs.h"
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

std::unique_ptr<Fuseau> ChoisirFuseau(const Options& options) {
    const std::string heures = options.heures.value_or("utc");
    const std::string mot = MajusculesAscii(heures);
    if (mot == "UTC")
        return std::make_unique<Fuseau>();
    return std::make_unique<Fuseau>(mot == "LOCALES" ? "" : heures);
}

// The logbook that is read, and what is known of its station.
struct Origine {
    fs::path cahier;
    std::string indicatif;
    std::vector<fs::path> proteges;
};

Origine ChoisirOrigine(const Options& options, const Alentours& alentours) {
    std::optional<StationLue> station;
    try {
        station = LireStation(alentours.courant, alentours.maison);
    } catch (const Erreur&) {
        if (!options.cahier)
            throw; // with a logbook of its own no Settings are needed, not even sound ones
    }
    if (!options.cahier && !station)
        throw RefusEchange(
            "Aucun cahier de la station n'est trouvé\u00A0: donnez-en un par --cahier.");
    Origine origine;
    origine.cahier = options.cahier ? CheminTexte(*options.cahier) : station->cahier;
    origine.proteges = FichiersDe(station);
    origine.indicatif = options.indicatif ? Majuscules(Rogner(*options.indicatif))
                                          : IndicatifDe(station, origine.cahier);
    return origine;
}

Retour Conclure(const Alentours& alentours, const Constat& constat) {
    alentours.messages << constat.texte;
    return constat.remarques ? Retour::FaitAvecRemarques : Retour::Fait;
}

Retour Exporter(const Options& options, const Alentours& alentours) {
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = CheminTexte(options.adx ? *options.adx : *options.adif);
    const DemandeExport demande{origine.cahier,
                                cible,
                                options.adx ? GenreAdif::Adx : GenreAdif::Adi,
                                origine.indicatif,
                                origine.proteges,
                                EcrireInstantAdif(Maintenant())};
    const BilanSortie bilan = ExporterAdif(demande, *ChoisirFuseau(options));
    return Conclure(alentours, DireSortie(bilan, origine.cahier, cible, kSansDateAdif));
}

void RefuserHeures(const Options& options, std::string_view option, std::string_view sujet) {
    if (options.heures)
        throw OptionsRefusees("«\u00A0--heures\u00A0» ne va pas avec «\u00A0" +
                              std::string{option} + "\u00A0»\u00A0: " + std::string{sujet} +
                              " garde les heures du cahier.");
}

Retour Baser(const Options& options, const Alentours& alentours) {
    RefuserHeures(options, "--base", "la base");
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = CheminTexte(*options.base);
    const BilanSortie bilan = FaireBase({origine.cahier, cible, origine.indicatif, origine.proteges,
                                         EcrireInstantIso(Maintenant())});
    return Conclure(alentours, DireSortie(bilan, origine.cahier, cible, kSansDateBase));
}

Retour FaireLeBilan(const Options& options, const Alentours& alentours) {
    RefuserHeures(options, "--bilan", "le bilan");
    const Origine origine = ChoisirOrigine(options, alentours);
    const fs::path cible = CheminTexte(*options.bilan);
    const BilanSortie bilan =
        EcrireBilan({origine.cahier, cible, origine.indicatif, origine.proteges, Aujourdhui()});
    return Conclure(alentours,
                    DireSortie(bilan, origine.cahier, cible, kSansDateBilan, "compté", "comptés"));
}

Retour Importer(const Options& options, const Alentours& alentours) {
    const auto station = LireStation(alentours.courant, alentours.maison);
    DemandeImport demande;
    demande.source = CheminTexte(*options.importer);
    demande.cible = CheminTexte(*options.vers);
    demande.ancien = options.remplacer ? Ancien::Remplace : Ancien::Protege;
    demande.locator = options.locator ? Majuscules(Rogner(*options.locator)) : LocatorDe(station);
    if (options.locator && !LocatorValide(demande.locator))
        throw RefusEchange("«\u00A0" + *options.locator +
                           "\u00A0» n'est pas un locator de six caractères.");
    demande.proteges = FichiersDe(station);
    return Conclure(alentours,
                    DireImport(ImporterAdif(demande, *ChoisirFuseau(options)), demande.cible));
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
