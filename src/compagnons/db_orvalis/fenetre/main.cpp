#include "compagnons/db_orvalis/commande.h"
#include "compagnons/db_orvalis/fenetre/fenetre_db_orvalis.h"
#include "core/chemins.h"
#include "ui/bureau/dossier_courant.h"
#include "ui/bureau/systeme_reel.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/application.h"

#include <QDir>
#include <QFileDialog>
#include <QIcon>

#include <cstdlib>
#include <iostream>
#include <vector>
#ifdef Q_OS_WIN
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace {

using namespace orvalis;

QString DemanderChemin(QWidget* parent, const DemandeChemin& demande) {
    const DossierCourantGarde garde;
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

#ifdef Q_OS_WIN

// The arguments that the system hands over are in its code page; Qt has them as they were typed.
// What is written is UTF-8, and so is what the console takes while this lasts.
int main(int argc, char** argv) {
    std::error_code erreur;
    const Lieu lieu{std::filesystem::current_path(erreur), CheminTexte(S(QDir::homePath()))};
    if (argc < 2)
        return MontrerFenetre(argc, argv, lieu);
    const QCoreApplication application(argc, argv);
    std::vector<std::string> textes;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        textes.push_back(S(argument));
    const std::vector<std::string_view> arguments(textes.begin(), textes.end());
    ::_setmode(::_fileno(stdout), _O_BINARY); // the same bytes as elsewhere in a file
    ::_setmode(::_fileno(stderr), _O_BINARY);
    const UINT avant = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
    const auto retour =
        ExecuterCommande(arguments, {lieu.courant, lieu.maison, std::cout, std::cerr});
    std::cout.flush();
    ::SetConsoleOutputCP(avant);
    return static_cast<int>(retour);
}

#else

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

#endif
