#include "ui/bureau/dossier_amovible.h"

#include "core/dossier.h"
#include "ui/bureau/texte_qt.h"

#include <QStandardPaths>
#include <QStorageInfo>

namespace orvalis {

QString DossierAmovible() {
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isReady() && !volume.isReadOnly() && EstRacineAmovible(S(volume.rootPath())))
            return volume.rootPath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace orvalis
