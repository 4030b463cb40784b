#include "ui/banc.h"

#include "ui/texte_qt.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvalis::essais {

void SystemeDEssai::Pause(int /*secondes*/) {
    QCoreApplication::processEvents();
    if (auto action = std::exchange(pendantPause, nullptr))
        action();
    QCoreApplication::processEvents();
}

void SystemeDEssai::Informer(QWidget* /*parent*/, const QString& titre, const QString& texte) {
    informations.push_back(titre + QLatin1Char('|') + texte);
}

void SystemeDEssai::Avertir(QWidget* /*parent*/, const QString& texte) {
    avertissements.push_back(texte);
}

QString SystemeDEssai::ChoisirFichier(QWidget* /*parent*/, const DemandeFichier& demande) {
    demandes.push_back(demande);
    return fichierChoisi;
}

std::unique_ptr<Imprimante> SystemeDEssai::PreparerImpression(QWidget* /*parent*/) {
    return imprimante ? imprimante() : nullptr;
}

void SystemeDEssai::ConfigurerImprimante(QWidget* /*parent*/) {
    ++configurations;
}

std::optional<QString> SystemeDEssai::Lancer(const QString& chemin, const QStringList& /*args*/) {
    lances.push_back(chemin);
    return refusDeLancer;
}

void SystemeDEssai::Quitter(int code) {
    codeDeFin = code;
}

std::string Octets(std::initializer_list<std::pair<Champ, std::string_view>> champs) {
    QsoRecord fiche;
    for (const auto& [champ, texte] : champs)
        MettreChamp(fiche, champ, texte);
    return {fiche.octets.begin(), fiche.octets.end()};
}

std::string Contacts(int n) {
    std::string octets;
    for (int k = 1; k <= n; ++k) {
        const auto deux = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
        const std::string heure = deux(k / 60 % 24) + ":" + deux(k % 60);
        octets += Octets({{Champ::CSGN, "F" + std::to_string(k) + "QSO"},
                          {Champ::DQSO, "12/05/02"},
                          {Champ::HDEB, heure},
                          {Champ::HFIN, heure},
                          {Champ::FREQ, "14.210"},
                          {Champ::MODE, "SSB"},
                          {Champ::MLOC, "JN04SD"}});
    }
    return octets;
}

std::string Fin(std::string_view monLocator) {
    return Octets({{Champ::CSGN, "\\"}, {Champ::MLOC, monLocator}});
}

Banc::Banc() {
    systeme.lecteur = S(disque.path());
}

Banc::~Banc() = default;

std::filesystem::path Banc::Dossier() const {
    return systeme.lecteur / "Orvalis";
}

void Banc::Installer(const std::string& octets) {
    std::filesystem::create_directory(Dossier());
    Ecrire("Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN04SD\"\r\n");
    Ecrire("F5ABC.Vek", octets);
}

void Banc::Ecrire(const std::string& nom, const std::string& octets) const {
    std::ofstream(Dossier() / nom, std::ios::binary) << octets;
}

std::string Banc::Lire(const std::string& nom) const {
    std::ifstream flux(Dossier() / nom, std::ios::binary);
    std::ostringstream octets;
    octets << flux.rdbuf();
    return octets.str();
}

void Banc::Ouvrir() {
    fenetre = std::make_unique<Orvalis>(systeme);
    fenetre->show();
    fenetre->activateWindow();
    static_cast<void>(QTest::qWaitFor([this] {
        return systeme.codeDeFin ||
               fenetre->windowTitle().startsWith(QStringLiteral(" Cahier de Trafic de "));
    }));
    if (!systeme.codeDeFin)
        Activer();
}

void Banc::Activer() {
    fenetre->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(fenetre.get()));
    QCoreApplication::processEvents();
}

QString Banc::Texte(const char* nom) const {
    if (auto* label = Controle<QLabel>(nom))
        return label->text();
    if (auto* boite = Controle<QLineEdit>(nom))
        return boite->text();
    if (auto* bouton = Controle<QAbstractButton>(nom))
        return bouton->text();
    return QStringLiteral("<%1 ?>").arg(QString::fromLatin1(nom));
}

QString Banc::Foyer() const {
    const QWidget* foyer = QApplication::focusWidget();
    return foyer == nullptr ? QString() : foyer->objectName();
}

bool Banc::Visible(const char* nom) const {
    const auto* controle = Controle<QWidget>(nom);
    return controle != nullptr && controle->isVisible();
}

void Banc::Cliquer(const char* nom) const {
    auto* controle = Controle<QWidget>(nom);
    ASSERT_TRUE(controle != nullptr && controle->isVisible() && controle->isEnabled()) << nom;
    QTest::mouseClick(controle, Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Banc::Menu(const char* nom) const {
    Controle<QAction>(nom)->trigger();
    QCoreApplication::processEvents();
}

void Banc::Touche(int touche, Qt::KeyboardModifiers modificateurs) const {
    QWidget* foyer = QApplication::focusWidget();
    // Only the overload for widgets tries mnemonics; only that for windows follows the focus.
    if (modificateurs.testFlag(Qt::AltModifier) && foyer != nullptr)
        QTest::keyClick(foyer, static_cast<Qt::Key>(touche), modificateurs);
    else
        QTest::keyClick(fenetre->windowHandle(), static_cast<Qt::Key>(touche), modificateurs);
    QCoreApplication::processEvents();
}

void Banc::Taper(const std::string& utf8) const {
    for (const QChar c : Q(utf8)) {
        if (c == QLatin1Char('\n')) {
            Touche(Qt::Key_Return);
            continue;
        }
        // QTest::keyClicks knows ASCII only.
        QWidget* foyer = QApplication::focusWidget();
        if (foyer == nullptr)
            return;
        QTest::sendKeyEvent(QTest::Click, foyer, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

std::string Difference(const std::string& obtenu, const std::string& attendu) {
    if (obtenu == attendu)
        return {};
    const std::size_t octet = static_cast<std::size_t>(
        std::mismatch(obtenu.begin(), obtenu.end(), attendu.begin(), attendu.end()).first -
        obtenu.begin());
    const std::size_t debut = octet - octet % kTailleFiche;
    const auto fiche = [debut](const std::string& octets) {
        return debut < octets.size() ? octets.substr(debut, kTailleFiche) : "<end>";
    };
    return "byte " + std::to_string(octet) + ", sizes " + std::to_string(obtenu.size()) + "/" +
           std::to_string(attendu.size()) + "\n  " + fiche(obtenu) + "\n  " + fiche(attendu);
}

QStringList Banc::Lignes(const char* liste) const {
    QStringList lignes;
    const auto* controle = Controle<QListWidget>(liste);
    for (int i = 0; i < controle->count(); ++i)
        lignes << controle->item(i)->text();
    return lignes;
}

} // namespace orvalis::essais
