#include "ui/bureau/systeme_reel.h"
#include "ui/fenetre/orvalis.h"
#include "ui/widgets/application.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTranslator francais;
    orvalis::PreparerApplication(QStringLiteral("Orvalis"), francais);
    orvalis::SystemeReel systeme;
    orvalis::Orvalis fenetre(systeme);
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}
