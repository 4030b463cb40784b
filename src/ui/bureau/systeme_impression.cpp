// The real printer: one for the program's life, as the operator set it up.
#include "ui/bureau/imprimante_qt.h"
#include "ui/bureau/systeme.h"

#include <QPrintDialog>
#include <QPrinter>

namespace orvalis {

SystemeReel::SystemeReel() = default;
SystemeReel::~SystemeReel() = default;

// Made when it is first needed: asking the system for its printers takes a moment.
QPrinter& SystemeReel::Sortie() {
    if (sortie_ == nullptr) {
        sortie_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        sortie_->setDocName(QStringLiteral("Orvalis"));
    }
    return *sortie_;
}

bool SystemeReel::DemanderSortie(QWidget* parent, const QString& titre) {
    QPrinter& sortie = Sortie();
    sortie.setCopyCount(1);
    QPrintDialog dialogue(&sortie, parent);
    dialogue.setWindowTitle(titre);
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialogue.exec() != QDialog::Accepted)
        return false;
    pdfEcrit_ = false;
    return true;
}

std::unique_ptr<Imprimante> SystemeReel::PreparerImpression(QWidget* parent) {
    QPrinter& sortie = Sortie();
    // A second document would silently take the place of the first in the same PDF file.
    if ((!SortieChoisie(sortie) || pdfEcrit_) &&
        !DemanderSortie(parent, QStringLiteral("Imprimer")))
        return nullptr;
    pdfEcrit_ = sortie.outputFormat() == QPrinter::PdfFormat;
    return std::make_unique<ImprimanteQt>(sortie);
}

void SystemeReel::ConfigurerImprimante(QWidget* parent) {
    static_cast<void>(DemanderSortie(parent, QStringLiteral("Configurer l'imprimante")));
}

} // namespace orvalis
