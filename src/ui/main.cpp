#include "ui/bureau/systeme_reel.h"
#include "ui/fenetre/orvalis.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvalis"));
    QApplication::setDesktopFileName(QStringLiteral("orvalis"));
    QApplication::setApplicationVersion(QStringLiteral(ORVALIS_VERSION));
    // Standard buttons and dialogs speak French whatever the system speaks.
    QTranslator francais;
    if (francais.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&francais);
    orvalis::SystemeReel systeme;
    orvalis::Orvalis fenetre(systeme);
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}
