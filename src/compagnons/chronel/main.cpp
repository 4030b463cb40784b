#include "compagnons/chronel/fenetre_chronel.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Chronel"));
    // No menu entry of its own: desktops take name and icon from the main program's.
    QApplication::setDesktopFileName(QStringLiteral("orvalis"));
    QApplication::setApplicationVersion(QStringLiteral(ORVALIS_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/orvalis.svg")));
    // The menus of the boxes speak French whatever the system speaks.
    QTranslator francais;
    if (francais.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&francais);
    orvalis::FenetreChronel fenetre;
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}
