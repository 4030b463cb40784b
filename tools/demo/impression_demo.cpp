// Prints what the guide shows of paper: orvalis_impression <drive> <folder>. From the logbook and
// the label sheet of the drive, writes page.pdf (the last full page), etiquettes.pdf (the labels
// prepared) and vierges.pdf (a sheet of blank labels) into the folder.
#include "core/cahier.h"
#include "core/dossier.h"
#include "core/pages.h"
#include "core/parametres.h"
#include "print/etiquette.h"
#include "print/page_cahier.h"
#include "qsl/feuille_qsl.h"
#include "qsl/vie_etiquette.h"
#include "ui/bureau/imprimante_qt.h"
#include "ui/carte/donnees_etiquette.h"

#include <QGuiApplication>
#include <QPrinter>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <vector>

using namespace orvalis;
namespace fs = std::filesystem;

namespace {

void ImprimerPdf(const fs::path& chemin, const std::function<void(Imprimante&)>& dessin) {
    QPrinter sortie(QPrinter::HighResolution);
    sortie.setOutputFormat(QPrinter::PdfFormat);
    sortie.setOutputFileName(QString::fromStdString(chemin.string()));
    ImprimanteQt imprimante(sortie);
    dessin(imprimante);
}

std::vector<EtiquettePlacee> EtiquettesPreparees(const fs::path& dossier) {
    FeuilleQSL feuille;
    ChargerFeuilleQSL(feuille, dossier);
    std::vector<EtiquettePlacee> etiquettes;
    for (const Place place : EtiquettesAImprimer(feuille))
        etiquettes.push_back({place, DonneesDeEtiquette(LireEnregistrement(feuille, place))});
    return etiquettes;
}

} // namespace

int main(int nbArguments, char** arguments) try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(nbArguments, arguments);
    if (nbArguments != 3) {
        std::fputs("usage: orvalis_impression <drive> <folder>\n", stderr);
        return 2;
    }
    const fs::path dossier = DossierProgramme(arguments[1]);
    const fs::path sortie = arguments[2];
    const Parametres parametres = LireParametres(TrouverParametres(dossier));
    const Station station{arguments[1], parametres.indicatif, parametres.monLocator};
    Cahier cahier;
    OuvrirCahier(cahier, TrouverFichier(dossier, parametres.nomFichier));
    CompterFiches(cahier);
    const std::int32_t numero = std::max(1, cahier.nbFiches / kFichesParPage);
    const PlagePage plage = CalculerPlage(numero, cahier.nbFiches);
    const PageAffichee page{numero, plage.premiere, plage.derniere};
    ImprimerPdf(sortie / "page.pdf", [&](Imprimante& imprimante) {
        ImprimerPage(imprimante, cahier, station, page, page.premiere);
    });
    std::string enTete;
    std::vector<EtiquettePlacee> etiquettes = EtiquettesPreparees(dossier);
    ImprimerPdf(sortie / "etiquettes.pdf",
                [&](Imprimante& imprimante) { ImprimerFeuille(imprimante, etiquettes, enTete); });
    ImprimerPdf(sortie / "vierges.pdf", [&](Imprimante& imprimante) {
        ImprimerFeuilleVierge(imprimante, station.indicatif, enTete);
    });
    return 0;
} catch (const std::exception& erreur) {
    std::fprintf(stderr, "orvalis_impression: %s\n", erreur.what());
    return 1;
}
