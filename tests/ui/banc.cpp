#include "ui/banc.h"

#include "ui/dialogues/a_propos.h"
#include "ui/dialogues/dlg1.h"
#include "ui/dialogues/dlg2.h"
#include "ui/widgets/vue_page.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QTest>

namespace orvalis::operateur {

using namespace Qt::Literals::StringLiterals;
using aides::Couper;

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
        octets += Octets(S(u"F%1QSO|12/05/02|%2|%2|14.210|SSB"_s.arg(k).arg(heure)), "JN04SD");
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

QKeySequence Lettre(const QWidget& widget) {
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&widget))
        return bouton->shortcut();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->buddy() != nullptr ? QKeySequence::mnemonic(label->text())
                                                         : QKeySequence();
}

std::array<std::unique_ptr<QDialog>, 3> Dialogues(Systeme& systeme) {
    return {std::make_unique<Dlg1>(std::filesystem::path(), systeme, nullptr),
            std::make_unique<Dlg2>(), std::make_unique<APropos>(systeme, nullptr)};
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

namespace {

void Exiger(bool condition, const std::string& sinon) {
    if (!condition)
        throw std::runtime_error(sinon);
}

constexpr const char* kManque[] = {" is hidden, disabled or nobody's", " is not refused"};

QString TexteDe(const QObject& controle) {
    if (const auto* feuille = qobject_cast<const VuePage*>(&controle))
        return feuille->toPlainText();
    const auto* liste = qobject_cast<const QListWidget*>(&controle);
    QStringList lignes;
    for (int i = 0; liste != nullptr && i < liste->count(); ++i)
        lignes << liste->item(i)->text();
    const QVariant texte = controle.property("text");
    Exiger(liste != nullptr || texte.isValid(), S(controle.objectName()) + " has no text");
    return liste == nullptr ? texte.toString() : lignes.join('|'_L1);
}

} // namespace

std::string Banc::Texte(const std::string& nom) const {
    const QWidget* foyer = QApplication::focusWidget();
    const auto* liste = Controle<QListWidget>("ListeLog");
    QString texte = nom == "foyer" && foyer == nullptr ? QString()
                    : nom == "foyer"                   ? foyer->objectName()
                    : nom == "demandes"                ? systeme.demandes.join('|'_L1)
                    : nom == "averti"                  ? systeme.avertissements.join('|'_L1)
                    : nom == "ligne" ? u"%1/%2"_s.arg(liste->currentRow() + 1).arg(liste->count())
                                     : TexteDe(*Controle<QObject>(nom));
    texte.replace(Q(TexteChemin(Dossier())), u"~"_s);
#ifdef _WIN32
    texte.replace(u'\\', u'/');
#endif
    return S(texte.replace('\n'_L1, u"\\n"_s));
}

std::string Banc::Etat(const std::string& nom) const {
    const auto* controle = Controle<QObject>(nom);
    const auto est = [controle](const char* quoi) { return controle->property(quoi).toBool(); };
    if (!est("enabled") || (controle->isWidgetType() && !est("visible")))
        return controle->isWidgetType() && !est("visible") ? "caché" : "grisé";
    const auto* boite = qobject_cast<const QLineEdit*>(controle);
    const auto rouge = [boite](QPalette::ColorRole role) {
        return boite != nullptr && boite->palette().color(role) == QColor(0xA0, 0, 0);
    };
    if (rouge(QPalette::Text) && rouge(QPalette::HighlightedText))
        return "rouge";
    return est("checked") ? "coché" : est("readOnly") ? "lecture" : "actif";
}

void Banc::Constater(const std::string& vu) const {
    const auto cotes = Couper(vu, "="), parties = Couper(vu, " contient ");
    std::istringstream mots(groupes.contains(cotes[0]) ? groupes.at(cotes[0]) : cotes[0]);
    std::string textes, etat;
    if (cotes.size() == 2) {
        for (std::string nom; mots >> nom;)
            textes += '|' + Texte(nom);
        EXPECT_EQ(textes.substr(1), cotes[1]) << cotes[0];
    } else if (parties.size() == 2) {
        EXPECT_PRED_FORMAT2(testing::IsSubstring, parties[1], Texte(parties[0]));
    } else {
        mots >> etat;
        Exiger(!mots.eof(), vu + " is no sight");
        for (std::string nom; mots >> nom;)
            EXPECT_EQ(Etat(nom), etat) << nom;
    }
}

void Banc::Suivre(const std::string& chemin) {
    std::string pas = chemin;
    try {
        for (const auto& [nom, gestes, vus] : aides::Etapes(chemin)) {
            SCOPED_TRACE(pas = nom);
            systeme.demandes.clear();
            Faire(gestes);
            for (const std::string& vu : Couper(vus, ";"))
                Constater(vu);
            EXPECT_TRUE(systeme.avertissements.empty() || vus.find("averti") != vus.npos)
                << Texte("averti");
            systeme.avertissements.clear();
        }
    } catch (const std::exception& erreur) {
        ADD_FAILURE() << pas << ": " << erreur.what();
    }
}

template<typename T> T* Banc::Atteindre(const std::string& nom, bool refus) const {
    T* controle = Controle<T>(nom);
    Exiger((controle->isVisible() && controle->isEnabled()) != refus, nom + kManque[refus]);
    return controle;
}

QWidget* Banc::Devant() const {
    const QWidget* foyer = QApplication::focusWidget();
    return foyer == nullptr ? fenetre.get() : foyer->window();
}

void Banc::Cliquer(const std::string& nom, bool refus) const {
    auto* controle = Atteindre<QWidget>(nom, refus);
    if (controle->isVisible())
        QTest::mouseClick(controle, Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Banc::Menu(const std::string& nom, bool refus) const {
    Atteindre<QAction>(nom, refus)->trigger();
    QCoreApplication::processEvents();
}

void Banc::Presser(const std::string& nom, bool refus) const {
    const QKeySequence touche(Q(nom));
    Exiger(!touche.isEmpty() && touche[0].key() != Qt::Key_unknown, nom + " is no key");
    bool repond = !nom.starts_with("Alt+");
    for (const QWidget* w : Devant()->findChildren<QWidget*>())
        repond = repond || (w->isVisible() && w->isEnabled() && Lettre(*w) == touche);
    Exiger(repond != refus, nom + kManque[refus]);
    Touche(touche[0].key(), touche[0].keyboardModifiers());
}

void Banc::Faire(const std::string& gestes) {
    using Mot = const std::string&;
    bool refus = false;
    const std::map<std::string, std::function<void(Mot)>> actions = {
        {"clic", [&](Mot nom) { Cliquer(nom, refus); }},
        {"menu", [&](Mot nom) { Menu(nom, refus); }},
        {"touche", [&](Mot nom) { Presser(nom, refus); }},
        {"foyer", [&](Mot nom) { Atteindre<QWidget>(nom, refus)->setFocus(); }},
        {"entree", [&](Mot n) { Taper(std::string(std::stoul(n), '\n')); }},
        {"tient",
         [&](Mot n) {
             Envoyer(QEvent::KeyPress, Qt::Key_Return, 2);
             for (int i = 0; i < std::stoi(n); ++i) {
                 Envoyer(QEvent::KeyRelease, Qt::Key_Return, i == 0 ? 500 : 30);
                 Envoyer(QEvent::KeyPress, Qt::Key_Return, 0);
             }
             Envoyer(QEvent::KeyRelease, Qt::Key_Return, 2);
         }},
        {"compose",
         [&](Mot texte) {
             QInputMethodEvent compose;
             compose.setCommitString(Q(texte));
             QCoreApplication::sendEvent(QApplication::focusWidget(), &compose);
         }},
        {"tape", [&](Mot texte) { Taper(texte); }},
        {"valide", [&](Mot texte) { Taper(texte + '\n'); }},
        {"colle",
         [&](Mot mots) {
             const std::size_t fin = mots.find(' ');
             Atteindre<QLineEdit>(mots.substr(0, fin))->insert(Q(mots.substr(fin + 1)));
         }},
        {"ligne",
         [&](Mot n) { Atteindre<QListWidget>("ListeLog")->setCurrentRow(std::stoi(n) - 1); }},
        {"rangee",
         [&](Mot n) {
             const auto* feuille = Atteindre<VuePage>("PageText1");
             QTest::mouseClick(feuille->viewport(), Qt::LeftButton, {},
                               feuille->RectDeRangee(std::stoi(n) - 1).center());
         }},
        {"fichier", [&](Mot nom) { systeme.fichierChoisi = Chemin(nom); }}};
    for (const std::string& geste : Couper(gestes, ";")) {
        const std::string mot = geste.substr(0, geste.find(' '));
        auto suite = Couper(geste.substr(mot.size()), ",");
        Exiger(actions.contains(mot) && !suite.empty(), geste + " is no gesture");
        const auto [nom, fin] = std::pair{suite.back(), suite.back().find(" refusé")};
        refus = mot != "tape" && mot != "valide" && fin != nom.npos;
        if (refus)
            suite.back().erase(fin);
        std::for_each(suite.begin(), suite.end(), actions.at(mot));
    }
}

// Enter, so many ms after the last; QTest gives its keys no times of their own.
void Banc::Envoyer(QEvent::Type type, int entree, int apres) const {
    QKeyEvent evenement(type, entree, Qt::NoModifier, u"\r"_s);
    evenement.setTimestamp(instant_ += static_cast<std::uint64_t>(apres));
    QCoreApplication::sendEvent(Devant()->windowHandle(), &evenement);
    QCoreApplication::processEvents();
}

void Banc::Touche(int touche, Qt::KeyboardModifiers modificateurs) const {
    QWidget* foyer = QApplication::focusWidget();
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        Envoyer(QEvent::KeyPress, touche, 2);
        return Envoyer(QEvent::KeyRelease, touche, 0);
    }
    // Only the overload for widgets tries mnemonics; only that for windows follows the focus.
    if (modificateurs.testFlag(Qt::AltModifier) && foyer != nullptr)
        QTest::keyClick(foyer, static_cast<Qt::Key>(touche), modificateurs);
    else
        QTest::keyClick(Devant()->windowHandle(), static_cast<Qt::Key>(touche), modificateurs);
    QCoreApplication::processEvents();
}

void Banc::Taper(const std::string& utf8) const {
    for (const QChar c : Q(utf8)) {
        QWidget* foyer = QApplication::focusWidget();
        Exiger(foyer != nullptr, "nothing has the focus for " + utf8);
        if (c == '\n'_L1)
            Touche(Qt::Key_Return);
        else // QTest::keyClicks knows ASCII only
            QTest::sendKeyEvent(QTest::Click, foyer, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

} // namespace orvalis::operateur
