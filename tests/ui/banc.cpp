#include "ui/banc.h"

#include "ui/feuille_log.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <sstream>

namespace orvalis::operateur {

using namespace Qt::Literals::StringLiterals;

void SystemeDEssai::Pause(int /*secondes*/) {
    if (auto action = std::exchange(pendantPause, nullptr))
        action();
    QCoreApplication::processEvents();
}

std::string Octets(const std::string& champs, std::string_view monLocator) {
    QsoRecord fiche;
    int champ = 0;
    for (const QString& texte : Q(champs).split('|'_L1))
        MettreChamp(fiche, static_cast<Champ>(++champ), S(texte));
    MettreChamp(fiche, Champ::MLOC, monLocator);
    return {fiche.octets.begin(), fiche.octets.end()};
}

std::string Contacts(int n) {
    std::string octets;
    for (int k = 1; k <= n; ++k) {
        const QString heure = QTime(k / 60 % 24, k % 60).toString(u"HH:mm"_s);
        const QString champs = u"F%1QSO|12/05/02|%2|%2|14.210|SSB"_s;
        octets += Octets(S(champs.arg(k).arg(heure)), "JN04SD");
    }
    return octets;
}

std::string Difference(const std::string& obtenu, const std::string& attendu) {
    const auto fiche = [](const std::string& octets, std::size_t debut) {
        return debut < octets.size() ? octets.substr(debut, kTailleFiche) : "<end>";
    };
    for (std::size_t debut = 0; obtenu != attendu; debut += kTailleFiche)
        if (const auto a = fiche(obtenu, debut), b = fiche(attendu, debut); a != b)
            return "record " + std::to_string(debut / kTailleFiche + 1) + "\n  " + a + "\n  " + b;
    return {};
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
        return systeme.codeDeFin || fenetre->windowTitle().startsWith(" Cahier de Trafic de "_L1);
    }));
    fenetre->activateWindow();
    static_cast<void>(
        QTest::qWaitFor([this] { return systeme.codeDeFin || fenetre->isActiveWindow(); }));
    QCoreApplication::processEvents();
}

QString Banc::Regarder(const std::string& regard) const {
    const QWidget* foyer = QApplication::focusWidget();
    if (regard == "@")
        return foyer == nullptr ? QString() : foyer->objectName();
    if (regard == "!")
        return systeme.demandes.join('|'_L1);
    const bool etat = regard[0] == '?', choix = regard[0] == '#';
    const auto* controle = Controle<QObject>(regard.c_str() + (etat || choix ? 1 : 0));
    const auto est = [controle](const char* quoi) { return controle->property(quoi).toBool(); };
    if (etat && controle->isWidgetType() && !est("visible"))
        return u"C"_s;
    if (etat)
        return !est("enabled")   ? u"G"_s
               : est("checked")  ? u"X"_s
               : est("readOnly") ? u"L"_s
                                 : u"A"_s;
    const auto* liste = qobject_cast<const QListWidget*>(controle);
    if (liste == nullptr)
        return controle->property("text").toString();
    if (choix)
        return u"%1/%2"_s.arg(liste->currentRow()).arg(liste->count());
    QStringList lignes;
    for (int i = 0; i < liste->count(); ++i)
        lignes << liste->item(i)->text();
    return lignes.join('|'_L1);
}

std::string Banc::Texte(const std::string& regards) const {
    QStringList vus;
    std::istringstream flux(regards);
    for (std::string regard; flux >> regard;)
        vus << Regarder(regard);
    vus << systeme.avertissements;
    return S(vus.join('|'_L1).replace(Q(Dossier().string()), u"~"_s));
}

void Banc::Suivre(const std::vector<Pas>& chemin) {
    for (const Pas& pas : chemin) {
        SCOPED_TRACE(pas.gestes);
        systeme.demandes.clear();
        Faire(pas.gestes);
        EXPECT_EQ(Texte(pas.regards), pas.attendu) << pas.regards;
        systeme.avertissements.clear();
    }
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

void Banc::Faire(const std::string& gestes) {
    std::istringstream flux(gestes);
    for (std::string geste; flux >> geste;)
        FaireUn(geste);
}

void Banc::FaireUn(const std::string& geste) {
    const std::string suite = geste.substr(1);
    const std::size_t colle = geste.find('+');
    if (geste[0] == '^') {
        Touche(geste[1], Qt::AltModifier);
    } else if (geste[0] == '!') {
        const QKeyCombination touche = QKeySequence(Q(suite))[0];
        Touche(touche.key(), touche.keyboardModifiers());
    } else if (geste[0] == '=') {
        Taper(S(Q(suite).replace('_'_L1, ' '_L1)) + "\n");
    } else if (geste[0] == ':') {
        Taper(suite);
    } else if (geste[0] == '@') {
        Controle<QWidget>(suite.c_str())->setFocus();
    } else if (geste[0] == '#') {
        Controle<QListWidget>("ListeLog")->setCurrentRow(std::stoi(suite));
    } else if (geste[0] == '%') {
        const auto* feuille = Controle<FeuilleLog>("PageText1");
        QTest::mouseClick(feuille->viewport(), Qt::LeftButton, {},
                          feuille->RectDeRangee(std::stoi(suite)).center());
    } else if (geste[0] == '<') {
        systeme.fichierChoisi = Chemin(suite.c_str());
    } else if (colle != std::string::npos) {
        Controle<QLineEdit>(geste.substr(0, colle).c_str())->insert(Q(geste.substr(colle + 1)));
    } else if (geste.starts_with("Mnu")) {
        Menu(geste.c_str());
    } else {
        Cliquer(geste.c_str());
    }
}

void Banc::Touche(int touche, Qt::KeyboardModifiers modificateurs) const {
    QWidget* foyer = QApplication::focusWidget();
    // Only the overload for widgets tries mnemonics; only that for windows follows the focus.
    if (modificateurs.testFlag(Qt::AltModifier) && foyer != nullptr)
        QTest::keyClick(foyer, static_cast<Qt::Key>(touche), modificateurs);
    else
        QTest::keyClick((foyer == nullptr ? fenetre.get() : foyer->window())->windowHandle(),
                        static_cast<Qt::Key>(touche), modificateurs);
    QCoreApplication::processEvents();
}

void Banc::Taper(const std::string& utf8) const {
    for (const QChar c : Q(utf8)) {
        if (c == '\n'_L1)
            Touche(Qt::Key_Return);
        else if (QWidget* foyer = QApplication::focusWidget()) // QTest::keyClicks knows ASCII only
            QTest::sendKeyEvent(QTest::Click, foyer, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

} // namespace orvalis::operateur
