// What an import would come to, before anything is written.
#pragma once

#include "echange/importer.h"

#include <QDialog>
#include <QStringList>

namespace orvalis {

/// The lines of the report that the preview shows; the report itself has all of them.
inline constexpr qsizetype kLignesApercu = 2000;

/// A study without writing.
struct EtudeImport {
    BilanImport bilan;
    QStringList lignes; ///< up to kLignesApercu, and one that says so when there are more
};
[[nodiscard]] EtudeImport Etudier(const DemandeImport& demande, const Fuseau& fuseau);

class DlgApercu : public QDialog {
  public:
    DlgApercu(QWidget* parent, const QString& source, const EtudeImport& etude);
};

} // namespace orvalis
