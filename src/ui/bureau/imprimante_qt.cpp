#include "ui/bureau/imprimante_qt.h"

#include "core/chemins.h"
#include "core/erreurs.h"
#include "ui/bureau/texte_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrintEngine>
#include <QSaveFile>
#include <QString>
#include <QTemporaryFile>
#include <QVariant>

#include <array>
#include <cerrno>
#include <memory>

namespace orvalis {
namespace {

constexpr int kTwipsParPouce = 1440;

// A device that prints up to the edge (a PDF file) names no margin. Ten points centre the page
// and the sheet of labels on A4 and keep a PDF printable on any printer.
constexpr QMarginsF kMargesParDefaut{10, 10, 10, 10};

bool EstPdf(const QPrinter& imprimante) {
    return imprimante.outputFormat() == QPrinter::PdfFormat;
}

Erreur Refus(const QPrinter& imprimante) {
    if (EstPdf(imprimante))
        return {NatureErreur::EcrirePdf, CheminTexte(S(imprimante.outputFileName()))};
    return Erreur::DImprimante(imprimante.printerName().toStdString());
}

// What is chosen in the set-up of a printer. The last is what the dialog keeps of the options of a
// CUPS printer; Qt has no public name for it.
constexpr std::array kChoix = {
    QPrintEngine::PPK_CollateCopies,   QPrintEngine::PPK_ColorMode,
    QPrintEngine::PPK_Creator,         QPrintEngine::PPK_DocumentName,
    QPrintEngine::PPK_FullPage,        QPrintEngine::PPK_CopyCount,
    QPrintEngine::PPK_PageOrder,       QPrintEngine::PPK_PaperSource,
    QPrintEngine::PPK_SelectionOption, QPrintEngine::PPK_PrinterProgram,
    QPrintEngine::PPK_Resolution,      QPrintEngine::PPK_Duplex,
    QPrintEngine::PPK_QPageLayout,     static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00)};

// The same choices with an output of their own. One that a full disk has broken stays broken.
std::unique_ptr<QPrinter> SortieNeuve(const QPrinter& choisie) {
    auto neuve = std::make_unique<QPrinter>(QPrinter::HighResolution);
    neuve->setOutputFormat(choisie.outputFormat());
    if (!EstPdf(choisie))
        neuve->setPrinterName(choisie.printerName());
    for (const QPrintEngine::PrintEnginePropertyKey cle : kChoix)
        if (const QVariant choix = choisie.printEngine()->property(cle); choix.isValid())
            neuve->printEngine()->setProperty(cle, choix);
    neuve->setPrintRange(choisie.printRange());
    neuve->setFromTo(choisie.fromPage(), choisie.toPage());
    return neuve;
}

// Puts a finished document in the place of a file, wholly or not at all.
bool Livrer(const QString& document, const QString& cible) {
    const QFileInfo la(cible);
    QFile source(document);
    QSaveFile fichier(cible); // which a folder that takes no new file refuses
    if ((la.exists() && !la.isFile()) || !source.open(QIODevice::ReadOnly) ||
        !fichier.open(QIODevice::WriteOnly))
        return false;
    const QByteArray octets = source.readAll();
    return fichier.write(octets) == octets.size() && fichier.commit();
}

// A full disk shows only in the file: its last line is missing.
bool PdfComplet(const QString& chemin) {
    constexpr qint64 kQueue = 16;
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly) || fichier.size() < kQueue)
        return false;
    return fichier.seek(fichier.size() - kQueue) && fichier.readAll().contains("%%EOF");
}

// The folder where a document is made before it is delivered does not take it.
Erreur SansProvisoire(int raison) {
    return {NatureErreur::Creer,
            CheminTexte(S(QDir::tempPath())) / "orvalis*.pdf",
            {raison, std::generic_category()}};
}

} // namespace

bool SortieChoisie(const QPrinter& imprimante) {
    return EstPdf(imprimante) ? !imprimante.outputFileName().isEmpty()
                              : !imprimante.printerName().isEmpty();
}

ImprimanteQt::ImprimanteQt(QPrinter& imprimante) : imprimante_(imprimante) {
    imprimante_.setResolution(kTwipsParPouce);
}

void ImprimanteQt::ChoisirPapier(Papier papier, Orientation orientation) {
    switch (papier) {
    case Papier::A4:
        imprimante_.setPageSize(QPageSize{QPageSize::A4});
        break;
    }
    switch (orientation) {
    case Orientation::Portrait:
        imprimante_.setPageOrientation(QPageLayout::Portrait);
        break;
    }
    imprimante_.setFullPage(false);
    QPageLayout page = imprimante_.pageLayout();
    page.setUnits(QPageLayout::Point);
    const QMarginsF marges = page.minimumMargins();
    imprimante_.setPageMargins(marges.isNull() ? kMargesParDefaut : marges, QPageLayout::Point);
}

std::string ImprimanteQt::Nom() const {
    return S(EstPdf(imprimante_) ? imprimante_.outputFileName() : imprimante_.printerName());
}

void ImprimanteQt::TerminerDocument() {
    const DessinQt dessin = Prendre();
    if (!SortieChoisie(imprimante_))
        throw Erreur::DImprimante({});
    const std::unique_ptr<QPrinter> sortie = SortieNeuve(imprimante_);
    QTemporaryFile document(QDir::tempPath() + QStringLiteral("/orvalisXXXXXX.pdf"));
    const bool pdf = EstPdf(imprimante_);
    if (pdf && !document.open())
        throw SansProvisoire(errno);
    if (pdf)
        sortie->setOutputFileName(document.fileName());
    QPainter peintre;
    if (!sortie->isValid() || !peintre.begin(sortie.get()))
        throw Refus(imprimante_);
    // A printer that refuses the resolution is scaled to twips.
    peintre.scale(static_cast<double>(sortie->logicalDpiX()) / kTwipsParPouce,
                  static_cast<double>(sortie->logicalDpiY()) / kTwipsParPouce);
    bool tournee = true;
    for (std::size_t feuille = 0; feuille < dessin.NbFeuilles() && tournee; ++feuille) {
        tournee = feuille == 0 || sortie->newPage();
        if (tournee)
            dessin.PeindreFeuille(peintre, feuille);
    }
    const bool envoye = peintre.end() && tournee;
    const QPrinter::PrinterState etat = sortie->printerState();
    if (pdf && !PdfComplet(document.fileName()))
        throw SansProvisoire(ENOSPC);
    if (!envoye || etat == QPrinter::Error || etat == QPrinter::Aborted ||
        (pdf && !Livrer(document.fileName(), imprimante_.outputFileName())))
        throw Refus(imprimante_);
}

} // namespace orvalis
