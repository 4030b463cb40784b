// Fixed-pitch fonts for the list and the page view.
#pragma once

#include <QFont>
#include <QFontDatabase>

namespace orvalis {

/// The font `famille` at the size of `modele`, or the system's fixed-pitch font where the
/// installed one of that name is not fixed-pitch (a look-alike would break the columns).
[[nodiscard]] inline QFont PoliceFixe(const char* famille, const QFont& modele) {
    QFont police = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString nom = QString::fromLatin1(famille);
    if (QFontDatabase::hasFamily(nom) && QFontDatabase::isFixedPitch(nom))
        police.setFamily(nom);
    police.setPointSizeF(modele.pointSizeF());
    return police;
}

} // namespace orvalis
