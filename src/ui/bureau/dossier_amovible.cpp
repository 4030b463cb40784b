#include "ui/bureau/dossier_amovible.h"

#include "core/chemins.h"
#include "core/noyau.h"
#include "ui/bureau/texte_qt.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

namespace orvalis {

QString DossierDocuments() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

QString DossierAmovible() {
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isReady() && !volume.isReadOnly() &&
            noyau::EstAmovible(CheminTexte(S(volume.rootPath()))))
            return volume.rootPath();
    return DossierDocuments();
}

} // namespace orvalis
