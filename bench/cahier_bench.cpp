// What opening, browsing and searching a logbook cost.
#include "core/page_texte.h"
#include "core/pages.h"
#include "core/recherche.h"
#include "mesures.h"
#include "print/page_cahier.h"

namespace orvalis::bench {
namespace {

void Compter(benchmark::State& etat, const CahierEssai& essai) {
    Cahier cahier = essai.Ouvrir();
    for ([[maybe_unused]] auto _ : etat)
        CompterFiches(cahier);
}

void OuvrirEtCompter(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat) {
        Cahier cahier;
        OuvrirCahier(cahier, essai.Chemin());
        CompterFiches(cahier);
        benchmark::DoNotOptimize(cahier.nbFiches);
    }
}

// The last page, as lines of the list and as cells of the sheet.
void Page(benchmark::State& etat, const CahierEssai& essai) {
    const FichierFiches fichier(essai.Chemin(), ModeFichier::Lecture);
    const NumeroFiche premiere = essai.DernierePage().premiere;
    std::array<QsoRecord, kFichesParPage> fiches;
    for ([[maybe_unused]] auto _ : etat) {
        static_cast<void>(fichier.Lire(premiere, fiches));
        NumeroFiche k = premiere;
        for (const QsoRecord& fiche : fiches) {
            benchmark::DoNotOptimize(LigneListe(k, fiche));
            benchmark::DoNotOptimize(CellulesDeFiche(k, fiche));
            ++k;
        }
    }
}

void Chercher(benchmark::State& etat, const CahierEssai& essai, std::string_view texte) {
    const Cahier cahier = essai.Ouvrir();
    std::size_t trouves = 0;
    for ([[maybe_unused]] auto _ : etat)
        trouves = ChercherContacts(cahier, texte).lignes.size();
    etat.counters["found"] = static_cast<double>(trouves);
}

void ParIndicatif(benchmark::State& etat, const CahierEssai& essai) {
    Chercher(etat, essai, TexteRogne(FicheGeneree(500), Champ::CSGN));
}

// A date without contacts: the scan alone.
void ParDateVide(benchmark::State& etat, const CahierEssai& essai) {
    Chercher(etat, essai, "31/12/99");
}

// A contest day: a thousand contacts or more become lines.
void ParDate(benchmark::State& etat, const CahierEssai& essai) {
    Chercher(etat, essai, "01/01/20");
}

void Doublons(benchmark::State& etat, const CahierEssai& essai) {
    const Cahier cahier = essai.Ouvrir();
    for ([[maybe_unused]] auto _ : etat)
        benchmark::DoNotOptimize(ChercherDoublons(cahier).lignes.data());
}

// A printer that only receives.
class ImprimanteNulle : public Imprimante {
  public:
    void ChoisirPapier(Papier /*papier*/, Orientation /*orientation*/) override {}
    void ChoisirPolice(std::string_view /*famille*/) override {}
    void ChoisirTaille(int /*points*/) override {}
    void ChoisirGras(bool /*gras*/) override {}
    void ChoisirEncre(Encre /*encre*/) override {}
    void Placer(int /*x*/, int /*y*/) override {}
    void Ecrire(std::string_view utf8, Suite /*suite*/) override {
        benchmark::DoNotOptimize(utf8.data());
    }
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override {
        return static_cast<int>(utf8.size());
    }
    void TracerLigne(int /*x1*/, int /*y1*/, int /*x2*/, int /*y2*/) override {}
    void TracerRectangle(int /*x1*/, int /*y1*/, int /*x2*/, int /*y2*/) override {}
    void RemplirRectangle(int /*x1*/, int /*y1*/, int /*x2*/, int /*y2*/) override {}
    void TournerPage() override {}
    void TerminerDocument() override {}
};

void Imprimer(benchmark::State& etat, const CahierEssai& essai) {
    const Cahier cahier = essai.Ouvrir();
    const Station poste = CahierEssai::Poste();
    const PageAffichee page = essai.DernierePage();
    ImprimanteNulle imprimante;
    for ([[maybe_unused]] auto _ : etat)
        ImprimerPage(imprimante, cahier, poste, page, page.premiere);
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"Count", Compter, LireTout},
    {"Open and count", OuvrirEtCompter, LireTout},
    {"Page: lines and cells", Page, LireUnePage},
    {"Search by callsign", ParIndicatif, LireTout},
    {"Search by date, none found", ParDateVide, LireTout},
    {"Search by date, contest day", ParDate, LireTout},
    {"Duplicates", Doublons, LireTout},
    {"Print a page, drawing only", Imprimer, LireUnePage},
});

} // namespace
} // namespace orvalis::bench
