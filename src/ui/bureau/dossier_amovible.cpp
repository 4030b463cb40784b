#include "ui/bureau/dossier_amovible.h"

#include <QStandardPaths>
#include <QStorageInfo>

#include <array>

namespace orvalis {

QString DossierAmovible() {
    constexpr std::array<const char*, 4> kRacines = {"/media/", "/run/media/", "/mnt/",
                                                     "/Volumes/"};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        for (const char* racine : kRacines)
            if (volume.isReady() && !volume.isReadOnly() &&
                volume.rootPath().startsWith(QLatin1String(racine)))
                return volume.rootPath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace orvalis
