#include "compagnons/chronel/fenetre_chronel.h"
#include "ui/bureau/icone.h"
#include "ui/widgets/application.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTranslator francais;
    orvalis::PreparerApplication(QStringLiteral("Chronel"), francais);
    QApplication::setWindowIcon(orvalis::IconeProgramme());
    orvalis::FenetreChronel fenetre;
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}
