// A file of the interchange format of arbitrary bytes. What comes in is a logbook, which goes out
// and in again as it is, in both kinds of file.
#include "echange/exporter.h"
#include "echange/importer.h"
#include "echange/refus.h"
#include "fichier_fuzz.h"

namespace orvalis {
namespace {

namespace fs = std::filesystem;

std::string Importer(const fs::path& source, const fs::path& cible) {
    static const Fuseau utc;
    const BilanImport bilan = ImporterAdif({source, cible, Ancien::Remplace, "JN18AA", {}}, utc);
    std::string cahier = fuzz::Relire(cible);
    fuzz::Exiger(cahier.size() == kTailleFiche * static_cast<std::size_t>(bilan.repris + 1));
    fuzz::Exiger(bilan.repris + bilan.laisses == bilan.lus);
    for (std::size_t i = 0; i < cahier.size(); i += kTailleFiche) {
        QsoRecord fiche;
        cahier.copy(fiche.octets.data(), kTailleFiche, i);
        fuzz::Exiger(EstFinDeLog(fiche) == (i + kTailleFiche == cahier.size()));
    }
    return cahier;
}

} // namespace
} // namespace orvalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    using namespace orvalis;
    const auto source = fuzz::Poser("source", octets, n);
    const auto cible = fuzz::Dossier() / "G.Vek";
    std::string cahier;
    try {
        cahier = Importer(source, cible);
    } catch (const RefusEchange&) {
        return 0; // no contact in it, or entities
    }
    for (const GenreAdif genre : {GenreAdif::Adi, GenreAdif::Adx}) {
        const auto sortie = fuzz::Dossier() / "sortie";
        static const Fuseau utc;
        static_cast<void>(ExporterAdif({cible, sortie, genre, "", {}, ""}, utc));
        if (cahier.size() > kTailleFiche)
            fuzz::Exiger(Importer(sortie, fuzz::Dossier() / "H.Vek") == cahier);
    }
    return 0;
}
