#include "ui/bureau/imprimante_qt.h"

#include "core/erreurs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrintEngine>
#include <QSaveFile>
#include <QString>
#include <QTemporaryFile>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace orvalis {
namespace {

constexpr int kTwipsParPouce = 1440;
constexpr int kTwipsParPoint = 20;
constexpr double kEpaisseurTrait = 8; // twips

// A device that prints up to the edge (a PDF file) names no margin. Ten points centre the page
// and the sheet of labels on A4 and keep a PDF printable on any printer.
constexpr QMarginsF kMargesParDefaut{10, 10, 10, 10};

// Families that stand in for one the system lacks, best first. The layouts are measured for the
// narrow faces asked for; what the system would pick by itself crosses the rules, and for the
// second is a script with swashes. A family that is not here gets the system's choice.
struct Remplacants {
    std::string_view famille;
    std::array<std::string_view, 3> par;
};
constexpr std::array kRemplacants = {
    Remplacants{"MS sans Serif", {"Microsoft Sans Serif", "Arial", "Liberation Sans"}},
    Remplacants{"Comic sans MS", {"Comic Relief", "Comic Neue", "Liberation Sans"}},
    // Kept on purpose with its double r, for the printed sheets: no system has it, and Arial is
    // what the layout was measured with in its place. A wider face runs the date of a label into
    // the time.
    Remplacants{"Courrier", {"Arial", "Liberation Sans", "Nimbus Sans"}},
};

QString Texte(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool EstPdf(const QPrinter& imprimante) {
    return imprimante.outputFormat() == QPrinter::PdfFormat;
}

Erreur Refus(const QPrinter& imprimante) {
    if (EstPdf(imprimante))
        return {NatureErreur::EcrirePdf, imprimante.outputFileName().toStdString()};
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
    QSaveFile fichier(cible);
    fichier.setDirectWriteFallback(true); // a folder that takes no new file
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

void ImprimanteQt::ChoisirPolice(std::string_view famille) {
    QStringList familles{Texte(famille)};
    for (const Remplacants& remplacants : kRemplacants)
        if (remplacants.famille == famille)
            for (const std::string_view par : remplacants.par)
                familles << Texte(par);
    police_.setFamilies(familles);
}

// One unit is a twip, so that the size in units does not depend on the device.
void ImprimanteQt::ChoisirTaille(int points) {
    police_.setPixelSize(points * kTwipsParPoint);
}

void ImprimanteQt::ChoisirGras(bool gras) {
    police_.setBold(gras);
}

void ImprimanteQt::Placer(int x, int y) {
    position_ = QPointF(x, y);
}

void ImprimanteQt::Ecrire(std::string_view utf8, Suite suite) {
    const QFontMetricsF mesures(police_, &imprimante_);
    const QString texte = Texte(utf8);
    const QPointF ligneDeBase = position_ + QPointF(0, mesures.ascent());
    dessin_.emplace_back([police = police_, ligneDeBase, texte](QPainter& peintre) {
        peintre.setFont(police);
        peintre.drawText(ligneDeBase, texte);
    });
    if (suite == Suite::MemeLigne)
        position_.rx() += mesures.horizontalAdvance(texte);
    else
        position_ = QPointF(0, position_.y() + mesures.lineSpacing());
}

int ImprimanteQt::LargeurTexte(std::string_view utf8) const {
    return static_cast<int>(
        std::lround(QFontMetricsF(police_, &imprimante_).horizontalAdvance(Texte(utf8))));
}

void ImprimanteQt::TracerLigne(int x1, int y1, int x2, int y2) {
    dessin_.emplace_back([=](QPainter& peintre) { peintre.drawLine(x1, y1, x2, y2); });
}

void ImprimanteQt::TracerRectangle(int x1, int y1, int x2, int y2) {
    const QRect cadre(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1));
    dessin_.emplace_back([=](QPainter& peintre) { peintre.drawRect(cadre); });
}

void ImprimanteQt::TerminerDocument() {
    const std::vector<Trace> dessin = std::exchange(dessin_, {});
    if (!SortieChoisie(imprimante_))
        throw Erreur::DImprimante({});
    const std::unique_ptr<QPrinter> sortie = SortieNeuve(imprimante_);
    QTemporaryFile document(QDir::tempPath() + QStringLiteral("/orvalisXXXXXX.pdf"));
    const bool pdf = EstPdf(imprimante_);
    if (pdf && document.open())
        sortie->setOutputFileName(document.fileName());
    QPainter peintre;
    if (!sortie->isValid() || !peintre.begin(sortie.get()))
        throw Refus(imprimante_);
    // A printer that refuses the resolution is scaled to twips.
    peintre.scale(static_cast<double>(sortie->logicalDpiX()) / kTwipsParPouce,
                  static_cast<double>(sortie->logicalDpiY()) / kTwipsParPouce);
    peintre.setPen({Qt::black, kEpaisseurTrait, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    for (const Trace& trace : dessin)
        trace(peintre);
    const bool envoye = peintre.end();
    const QPrinter::PrinterState etat = sortie->printerState();
    if (!envoye || etat == QPrinter::Error || etat == QPrinter::Aborted ||
        (pdf && (!PdfComplet(document.fileName()) ||
                 !Livrer(document.fileName(), imprimante_.outputFileName()))))
        throw Refus(imprimante_);
}

} // namespace orvalis
