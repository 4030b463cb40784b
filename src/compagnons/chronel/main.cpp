#include "compagnons/chronel/fenetre_chronel.h"
#include "ui/widgets/application.h"

#include <QIcon>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTranslator francais;
    orvalis::PreparerApplication(QStringLiteral("Chronel"), francais);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/orvalis.svg")));
    orvalis::FenetreChronel fenetre;
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}
