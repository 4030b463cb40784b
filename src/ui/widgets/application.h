// What the programs of the house have in common before their window opens.
#pragma once

#include "ui/widgets/style_lisible.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace orvalis {

/// Names the program; desktops take name and icon of all of them from the main program's entry.
/// `francais`, which must live as long as the application, has standard buttons, menus and dialogs
/// speak French whatever the system speaks. What the desktop shows too faintly to be read is made
/// legible.
inline void PreparerApplication(const QString& nom, QTranslator& francais) {
    QApplication::setApplicationName(nom);
    QApplication::setDesktopFileName(QStringLiteral("orvalis"));
    QApplication::setApplicationVersion(QStringLiteral(ORVALIS_VERSION));
    QApplication::setStyle(new StyleLisible);
    if (francais.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&francais);
}

} // namespace orvalis
