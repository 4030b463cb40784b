#include "ui/bureau/systeme_reel.h"

#include "core/chemins.h"
#include "core/dossier.h"
#include "core/noyau.h"
#include "ui/bureau/dossier_amovible.h"
#include "ui/bureau/dossier_courant.h"
#include "ui/bureau/imprimante_qt.h"
#include "ui/bureau/texte_qt.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTimer>

#include <cmath>

namespace orvalis {
namespace {

// Seconds since midnight, with their fraction.
double SecondesDuJour() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

QString RaisonDeLancement(const QString& chemin) {
    const QFileInfo info(chemin);
    if (!info.exists())
        return QStringLiteral("le programme n'existe pas");
    if (!info.isFile() || !info.isExecutable())
        return QStringLiteral("ce fichier n'est pas un programme exécutable");
    return QStringLiteral("le système a refusé de le démarrer");
}

// A path or a callsign is no markup, whatever stands in it.
void Dire(QMessageBox::Icon icone, QWidget* parent, const QString& titre, const QString& texte) {
    QMessageBox boite(icone, titre, texte, QMessageBox::Ok, parent);
    boite.setTextFormat(Qt::PlainText);
    // No narrower than its title, which most desktops write bold, with an icon and three buttons.
    constexpr int kAutour = 16;
    QFont gras = boite.font();
    gras.setBold(true);
    const QFontMetrics lettres(gras);
    if (auto* grille = qobject_cast<QGridLayout*>(boite.layout()))
        grille->addItem(
            new QSpacerItem(lettres.horizontalAdvance(titre) + kAutour * lettres.averageCharWidth(),
                            0),
            grille->rowCount(), 0, 1, grille->columnCount());
    boite.exec();
}

} // namespace

std::filesystem::path SystemeReel::Lecteur() const {
#ifdef Q_OS_WIN
    const std::filesystem::path repli = noyau::LecteurDuSysteme();
#else
    const std::filesystem::path repli = CheminTexte(S(QDir::homePath()));
#endif
    return CalculerLecteur(CheminTexte(S(QDir::currentPath())), repli);
}

Instant SystemeReel::Maintenant() const {
    constexpr int kSecondesParMinute = 60;
    const QDateTime t = QDateTime::currentDateTime();
    return {t.date().year(),
            t.date().month(),
            t.date().day(),
            t.time().hour(),
            t.time().minute(),
            t.time().second(),
            t.offsetFromUtc() / kSecondesParMinute};
}

void SystemeReel::Pause(int secondes) {
    const double fin = std::floor(SecondesDuJour() + 0.5) + secondes;
    QTimer reveil; // wakes the loop while nothing else happens
    reveil.start(20);
    // Kept on purpose, for the operators: no wrap at midnight. A pause that would end after it
    // lasts until they quit.
    while (!arret_ && SecondesDuJour() < fin)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void SystemeReel::Informer(QWidget* parent, const QString& titre, const QString& texte) {
    Dire(QMessageBox::Information, parent, titre, texte);
}

void SystemeReel::Avertir(QWidget* parent, const QString& texte) {
    Dire(QMessageBox::Warning, parent, QStringLiteral("Orvalis"), texte);
}

namespace {

// A logbook is found again by its ending.
QString AvecExtension(const QString& chemin) {
    const QString extension = QStringLiteral(".Vek");
    return chemin.endsWith(extension, Qt::CaseInsensitive) ? chemin : chemin + extension;
}

bool Remplacer(QWidget* parent, const QString& chemin) {
    if (!QFileInfo::exists(chemin))
        return true;
    QMessageBox boite(QMessageBox::Question, QStringLiteral("Orvalis"),
                      QStringLiteral("Le fichier «\u00a0%1\u00a0» existe déjà. Voulez-vous le "
                                     "remplacer\u00a0?")
                          .arg(QDir::toNativeSeparators(chemin)),
                      QMessageBox::Yes | QMessageBox::No, parent);
    boite.setTextFormat(Qt::PlainText);
    boite.setDefaultButton(QMessageBox::No);
    return boite.exec() == QMessageBox::Yes;
}

} // namespace

QString SystemeReel::ChoisirFichier(QWidget* parent, const DemandeFichier& demande) {
    const DossierCourantGarde garde;
    const QString dossier =
        demande.dossier.isEmpty() ? Q(TexteChemin(DossierProgramme(Lecteur()))) : demande.dossier;
    QFileDialog dialogue(parent, demande.titre, dossier, QStringLiteral("Fichier (*.Vek)"));
    constexpr int kLarge = 115, kHaut = 35; // characters and lines: all columns of the files
    const QFontMetrics mesure = dialogue.fontMetrics();
    dialogue.resize(kLarge * mesure.averageCharWidth(), kHaut * mesure.height());
    dialogue.setDefaultSuffix(QStringLiteral("Vek"));
    dialogue.setAcceptMode(demande.enregistrer ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(demande.enregistrer ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!demande.nomPropose.isEmpty())
        dialogue.selectFile(demande.nomPropose);
    // The dialog would ask before the name is complete.
    dialogue.setOption(QFileDialog::DontConfirmOverwrite);
    while (dialogue.exec() == QDialog::Accepted && !dialogue.selectedFiles().isEmpty()) {
        QString choisi = dialogue.selectedFiles().constFirst();
        if (!demande.enregistrer)
            return choisi;
        if (QString complet = AvecExtension(choisi); Remplacer(parent, complet))
            return complet;
    }
    return {};
}

std::filesystem::path SystemeReel::DossierInstalle() const {
    return CheminTexte(S(QCoreApplication::applicationDirPath()));
}

std::optional<QString> SystemeReel::Lancer(const QString& chemin) {
    if (QProcess::startDetached(chemin, {}))
        return std::nullopt;
    return RaisonDeLancement(chemin);
}

void SystemeReel::Quitter(int code) {
    arret_ = true;
    QCoreApplication::exit(code);
}

SystemeReel::SystemeReel() = default;
SystemeReel::~SystemeReel() = default;

// Made when it is first needed: asking the system for its printers takes a moment.
QPrinter& SystemeReel::Sortie() {
    if (sortie_ == nullptr) {
        sortie_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        sortie_->setDocName(QStringLiteral("Orvalis"));
    }
    return *sortie_;
}

namespace {

// A file that is not there yet, in the folder of the last one.
QString PdfPropose(const QString& dernier) {
    if (!dernier.isEmpty() && !QFileInfo::exists(dernier))
        return dernier; // chosen, and not written
    const QDir dossier(dernier.isEmpty() ? DossierDocuments() : QFileInfo(dernier).path());
    QString nom = QStringLiteral("Orvalis.pdf");
    for (int n = 2; dossier.exists(nom); ++n)
        nom = QStringLiteral("Orvalis-%1.pdf").arg(n);
    return dossier.filePath(nom);
}

} // namespace

bool SystemeReel::DemanderSortie(QWidget* parent, const QString& titre) {
    const DossierCourantGarde garde;
    QPrinter& sortie = Sortie();
    sortie.setCopyCount(1);
    QPrintDialog dialogue(&sortie, parent);
    dialogue.setWindowTitle(titre);
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    // Where Qt draws the dialog itself, it proposes a folder or the file just written.
    if (auto* fichier = dialogue.findChild<QLineEdit*>(QStringLiteral("filename")))
        fichier->setText(PdfPropose(sortie.outputFileName()));
    if (dialogue.exec() != QDialog::Accepted)
        return false;
    pdfEcrit_ = false;
    return true;
}

std::unique_ptr<Imprimante> SystemeReel::PreparerImpression(QWidget* parent) {
    QPrinter& sortie = Sortie();
    // A second document would silently take the place of the first in the same PDF file.
    if ((!SortieChoisie(sortie) || pdfEcrit_) &&
        !DemanderSortie(parent, QStringLiteral("Imprimer")))
        return nullptr;
    pdfEcrit_ = sortie.outputFormat() == QPrinter::PdfFormat;
    return std::make_unique<ImprimanteQt>(sortie);
}

void SystemeReel::ConfigurerImprimante(QWidget* parent) {
    static_cast<void>(DemanderSortie(parent, QStringLiteral("Configurer l'imprimante")));
}

} // namespace orvalis
