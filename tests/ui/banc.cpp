#include "ui/banc.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QTest>

#include <algorithm>

namespace orvalis::essais {

void SystemeDEssai::Pause(int /*secondes*/) {
    QCoreApplication::processEvents();
    if (auto action = std::exchange(pendantPause, nullptr))
        action();
    QCoreApplication::processEvents();
}

std::string Octets(const std::string& champs, std::string_view monLocator) {
    QsoRecord fiche;
    int champ = 0;
    for (const QString& texte : Q(champs).split(QLatin1Char('|')))
        MettreChamp(fiche, static_cast<Champ>(++champ), S(texte));
    MettreChamp(fiche, Champ::MLOC, monLocator);
    return {fiche.octets.begin(), fiche.octets.end()};
}

std::string Contacts(int n) {
    std::string octets;
    for (int k = 1; k <= n; ++k) {
        const auto deux = [](int v) { return (v < 10 ? "0" : "") + std::to_string(v); };
        const std::string heure = deux(k / 60 % 24) + ":" + deux(k % 60);
        octets +=
            Octets("F" + std::to_string(k) + "QSO|12/05/02|" + heure + "|" + heure + "|14.210|SSB",
                   "JN04SD");
    }
    return octets;
}

void Banc::Installer(const std::string& octets) {
    std::filesystem::create_directory(Dossier());
    Ecrire("Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN04SD\"\r\n");
    Ecrire("F5ABC.Vek", octets);
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

QString Banc::Texte(const char* noms) const {
    QStringList textes;
    for (const QString& nom : QString::fromLatin1(noms).split(QLatin1Char(' ')))
        textes << Controle<QObject>(nom.toLatin1().constData())->property("text").toString();
    return textes.join(QLatin1Char('|'));
}

QString Banc::Foyer() const {
    const QWidget* foyer = QApplication::focusWidget();
    return foyer == nullptr ? QString() : foyer->objectName();
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

void Banc::Faire(const char* gestes) {
    for (const QString& geste :
         QString::fromUtf8(gestes).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const std::string nom = S(geste);
        if (nom[0] == '^')
            Touche(nom[1], Qt::AltModifier);
        else if (nom[0] == '=')
            Taper(nom.substr(1) + "\n");
        else if (nom[0] == '#')
            ChoisirLigne(std::stoi(nom.substr(1)));
        else if (nom[0] == '<')
            systeme.fichierChoisi = Chemin(nom.c_str() + 1);
        else if (nom.starts_with("Mnu"))
            Menu(nom.c_str());
        else
            Cliquer(nom.c_str());
    }
}

void Banc::ChoisirLigne(int rangee) const {
    Controle<QListWidget>("ListeLog")->setCurrentRow(rangee);
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
