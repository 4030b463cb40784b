#include "compagnons/db_orvalis/commande.h"
#include "compagnons/db_orvalis/fenetre/fenetre_db_orvalis.h"
#include "ui/bureau/systeme_reel.h"
#include "ui/widgets/application.h"

#include <QFileDialog>
#include <QIcon>

#include <cstdlib>
#include <iostream>
#include <vector>

namespace {

using namespace orvalis;

QString DemanderChemin(QWidget* parent, const DemandeChemin& demande) {
    QFileDialog dialogue(parent, demande.titre, {}, demande.filtre);
    dialogue.setAcceptMode(demande.enregistrer ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(demande.enregistrer ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogue.setDefaultSuffix(demande.suffixe);
    const QFileInfo propose(demande.propose);
    dialogue.setDirectory(propose.isDir() ? demande.propose : propose.path());
    if (!propose.isDir())
        dialogue.selectFile(propose.fileName());
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty())
        return {};
    return dialogue.selectedFiles().constFirst();
}

int MontrerFenetre(int argc, char** argv, const Lieu& lieu) {
    const QApplication application(argc, argv);
    QTranslator francais;
    PreparerApplication(QStringLiteral("dbOrvalis"), francais);
    SystemeReel systeme;
    FenetreDbOrvalis fenetre(
        lieu,
        {DemanderChemin, [&systeme](QWidget* parent) { return systeme.PreparerImpression(parent); },
         [&systeme](QWidget* parent, const QString& texte) { systeme.Avertir(parent, texte); }});
    fenetre.show();
    fenetre.activateWindow();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const char* maison = std::getenv("HOME");
    std::error_code erreur;
    const Lieu lieu{std::filesystem::current_path(erreur), maison == nullptr ? "/" : maison};
    if (argc < 2)
        return MontrerFenetre(argc, argv, lieu);
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    return static_cast<int>(
        ExecuterCommande(arguments, {lieu.courant, lieu.maison, std::cout, std::cerr}));
}
