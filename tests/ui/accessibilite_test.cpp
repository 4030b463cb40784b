// What a screen reader says and what the keyboard reaches, in every state of the window.
#include "ui/banc.h"
#include "ui/widgets/style_lisible.h"
#include "ui/widgets/teintes.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <cmath>
#include <set>

namespace orvalis::operateur::accessibilite {

bool EstUnControle(const QWidget& widget) {
    const auto est = [](const QWidget* w, const std::vector<const char*>& classes) {
        return std::any_of(classes.begin(), classes.end(),
                           [w](const char* classe) { return w->inherits(classe); });
    };
    const bool partie = widget.objectName().startsWith(QStringLiteral("qt_")) ||
                        est(widget.parentWidget(), {"QAbstractButton", "QLineEdit"});
    return !partie && (est(&widget, {"QAbstractButton", "QLineEdit", "QAbstractItemView"}) ||
                       (est(&widget, {"QScrollBar"}) && !widget.objectName().isEmpty()));
}

// Controls without a name to say, texts that may break inside quotes, and among what is on show and
// enabled, what Tab never comes to and letters that mean two things with Alt.
std::string Defauts(const QWidget& fenetre) {
    std::string defauts;
    std::multiset<QKeySequence> lettres;
    for (QWidget* widget : fenetre.findChildren<QWidget*>()) {
        const QAccessibleInterface* lu = QAccessible::queryAccessibleInterface(widget);
        if (EstUnControle(*widget) && (!lu || lu->text(QAccessible::Name).trimmed().isEmpty()))
            defauts += "no name: " + S(widget->objectName()) + ' ';
        const std::string dit = lu ? S(lu->text(QAccessible::Name)) : "";
        if ((dit + S(widget->toolTip())).find("« ") != std::string::npos)
            defauts += "breaks inside quotes: " + S(widget->objectName()) + ' ';
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        if (EstUnControle(*widget) && !widget->inherits("QScrollBar") &&
            (widget->focusPolicy() & Qt::TabFocus) == 0)
            defauts += S(widget->objectName()) + ' ';
        lettres.insert(Lettre(*widget));
    }
    for (const QMenuBar* barre : fenetre.findChildren<QMenuBar*>())
        for (const QAction* menu : barre->actions())
            lettres.insert(QKeySequence::mnemonic(menu->text()));
    for (const QKeySequence& lettre : lettres)
        if (!lettre.isEmpty() && lettres.count(lettre) > 1)
            defauts += S(lettre.toString()) + ' ';
    return defauts;
}

TEST(Accessibilite, NomsEtClavierDansChaqueEtat) {
    // How to come to a state, and what is left out there.
    for (const auto& [chemin, voulus] :
         aides::Textes{{"idle : ->", ""},
                       {"entry : touche Alt+N; valide f5xyz", ""},
                       {"locator : touche Alt+N; menu MnuChangerLocator; valide jn07wv", ""},
                       {"deletion : touche Alt+S", ""},
                       {"search : touche Alt+R; valide f5qso", ""},
                       {"pairing : menu MnuJumeler", ""},
                       {"labels : menu MnuGestionFeuilleQSL", "FLdText_10 "}}) {
        Banc banc(Contacts(30) + Fin());
        banc.Suivre(chemin);
        EXPECT_EQ(Defauts(*banc.fenetre), voulus) << chemin;
    }
    SystemeDEssai systeme;
    for (const auto& dialogue : Dialogues(systeme))
        EXPECT_EQ(Defauts(*dialogue), "");
}

// In large type and on small screens too, and without a second scroll bar.
TEST(Accessibilite, LaBoiteQuiALeFoyerSeVoit) {
    const QFont avant = QApplication::font();
    for (const int points : {8, 16})
        for (const QSize taille : {QSize(1280, 680), QSize(1280, 480), QSize(683, 384)}) {
            QFont police = avant;
            police.setPointSize(points);
            QApplication::setFont(police);
            const Banc banc(Contacts(30) + Fin());
            banc.fenetre->resize(taille);
            for (const DescriptionBoite& d : kBoites) {
                auto* boite = banc.Controle<QWidget>("TxtField_" + std::to_string(Numero(d.boite)));
                boite->setFocus();
                QTest::qWait(1);
                EXPECT_EQ(boite->visibleRegion().boundingRect(), boite->rect())
                    << points << " points, " << taille.width() << ", " << Numero(d.boite);
            }
            const auto* cadre = banc.fenetre->centralWidget()->findChild<QScrollArea*>(
                {}, Qt::FindDirectChildrenOnly);
            EXPECT_EQ(cadre->horizontalScrollBar()->maximum(), 0) << points << taille.width();
            const auto* page = banc.Controle<QAbstractScrollArea>("PageText1");
            EXPECT_EQ(page->verticalScrollBar()->maximum(), 0) << points << taille.width();
        }
    QApplication::setFont(avant);
}

// The buttons of the pages too, as long as the list lies beside the card.
TEST(Accessibilite, LesBoutonsDePageSeVoient) {
    Banc banc(Contacts(30) + Fin());
    const auto* bouton = banc.Controle<QWidget>("CmdPageMoins");
    for (const QSize taille : {QSize(1366, 720), QSize(1100, 640), QSize(1100, 600)}) {
        banc.fenetre->resize(taille);
        QTest::qWait(1);
        EXPECT_EQ(bouton->visibleRegion().boundingRect(), bouton->rect()) << taille.width();
    }
}

// On desktops of light, dark and no grey at all, the texts that those make pale, and the edges.
TEST(Accessibilite, LesTextesPalesSeLisent) {
    for (const auto& [fond, boite, encre] :
         std::vector<std::array<QColor, 3>>{{"#eff0f1", "#ffffff", "#232629"},
                                            {"#2a2e32", "#1b1e20", "#fcfcfc"},
                                            {"#000000", "#000000", "#ffffff"}}) {
        StyleLisible style;
        QPalette palette(fond);
        for (const auto role : {QPalette::Window, QPalette::Button})
            palette.setColor(role, fond);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, encre);
        palette.setColor(QPalette::Base, boite);
        palette.setColor(QPalette::Highlight, "#3daee9");
        palette.setColor(QPalette::HighlightedText, "#fcfcfc");
        palette.setColor(QPalette::Link, "#1d99f3");
        style.polish(palette);
        palette.setCurrentColorGroup(QPalette::Disabled);
        const auto contraste = [&palette](auto texte, auto sur) {
            return Contraste(palette.color(texte), palette.color(sur));
        };
        EXPECT_GE(contraste(QPalette::WindowText, QPalette::Window), 4.5) << S(fond.name());
        const QColor face =
            palette.color(QPalette::Button).lighter(fond.lightness() < 128 ? 140 : 100);
        EXPECT_GE(Contraste(palette.color(QPalette::ButtonText), face), 4.5) << S(fond.name());
        EXPECT_GE(Contraste(RougeSur(fond), face), 4.5) << S(fond.name());
        EXPECT_GE(contraste(QPalette::Text, QPalette::Base), 4.5) << S(fond.name());
        palette.setCurrentColorGroup(QPalette::Active);
        EXPECT_EQ(palette.color(QPalette::Text), encre);
        EXPECT_GE(contraste(QPalette::PlaceholderText, QPalette::Base), 4.5) << S(fond.name());
        EXPECT_GE(contraste(QPalette::Link, QPalette::Base), 4.5) << S(fond.name());
        EXPECT_GE(contraste(QPalette::HighlightedText, QPalette::Highlight), 4.5);
        if (fond.lightness() > 128)
            continue;
        QCheckBox coche;
        coche.setStyle(&style);
        coche.setPalette(palette);
        const QImage image = coche.grab().toImage();
        double bord = 0;
        for (int x = 0; x < image.width(); ++x)
            bord = std::max(bord, Contraste(image.pixelColor(x, image.height() / 2), fond));
        EXPECT_GE(bord, 3) << S(fond.name());
    }
}

// What is asked and shown leaves the sheet and the search box where they are, and the window as
// high.
TEST(Accessibilite, RienNeBougeNiNeDefile) {
    for (const QSize taille : {QSize(1366, 720), QSize(1100, 720), QSize(683, 384)}) {
        Banc banc(Octets("HB9/F4ABC/P") + Fin());
        banc.fenetre->resize(taille);
        const auto* cadre =
            banc.fenetre->centralWidget()->findChild<QScrollArea*>({}, Qt::FindDirectChildrenOnly);
        const auto mesurer = [&] {
            std::vector<int> ici = {cadre->verticalScrollBar()->maximum()};
            for (const char* nom : {"PageText1", "RechText"}) {
                const auto* widget = banc.Controle<QWidget>(nom);
                const QPoint coin = widget->mapTo(cadre->widget(), QPoint());
                ici.insert(ici.end(), {coin.x(), coin.y(), widget->width(), widget->height()});
            }
            return ici;
        };
        // A layout that asks its neighbours for room settles over several turns of events.
        const auto places = [&] {
            std::vector<int> ici = mesurer();
            for (int calmes = 0, tours = 0; calmes < 5 && tours < 500; ++tours) {
                QTest::qWait(1);
                std::vector<int> lu = mesurer();
                calmes = lu == ici ? calmes + 1 : 0;
                ici = std::move(lu);
            }
            return ici;
        };
        const auto avant = places();
        for (const char* gestes : {"menu MnuGestionFeuilleQSL; touche Esc",
                                   "touche Alt+N; valide f6abc; touche Alt+T", "touche Alt+S"}) {
            banc.Faire(gestes);
            EXPECT_EQ(places(), avant) << gestes << taille.width();
        }
    }
}

// Pixels that can be read on the ground, more than a caret and a dead key under composition make.
TEST(Accessibilite, ExempleDansLaBoiteVideQuiALeFoyer) {
    Banc banc(Fin());
    banc.Suivre("entry : touche Alt+N; valide f5xyz -> foyer = TxtField_5");
    for (const auto& [nom, peint] : std::map<std::string, bool>{{"TxtField_5", true},
                                                                {"TxtField_6", true},
                                                                {"TxtField_14", false},
                                                                {"TxtField_15", true}}) {
        auto* boite = banc.Controle<QWidget>(nom);
        const auto lisible = [boite] {
            const QImage image = boite->grab(boite->rect().adjusted(4, 4, -4, -4)).toImage();
            int encre = 0;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    encre += Contraste(image.pixelColor(x, y), image.pixelColor(0, 0)) > 4 ? 1 : 0;
            return encre > image.height() * 3 / 2;
        };
        banc.Controle<QWidget>("TxtField_9")->setFocus();
        EXPECT_FALSE(lisible()) << nom;
        boite->setFocus();
        EXPECT_EQ(lisible(), peint) << nom;
        QInputMethodEvent accent(QStringLiteral("´"), {});
        QCoreApplication::sendEvent(boite, &accent);
        EXPECT_EQ(lisible(), nom == "TxtField_5") << nom; // which refuses it
    }
}

// What is on show -> the chapter that F1 opens.
TEST(Accessibilite, LeGuideSOuvreAuChapitre) {
    for (const auto& [chemin, titre] : aides::Textes{
             {"touche F1", "Parcourir le cahier"},
             {"menu MnuJumeler; touche F1", "Jumeler deux cahiers"},
             {"touche Alt+S, F1", "Supprimer"},
             {"touche Alt+C, F1", "Retrouver une station, une date, un doublon"},
             {"touche Alt+N; menu MnuChangerLocator; touche F1", "Changer de locator en portable"},
             {"menu MnuGestionFeuilleQSL; touche F1", "Tenir la feuille"},
             {"menu MnuGestionFeuilleQSL; clic BtTag_1; touche F1", "Préparer une étiquette"}}) {
        Banc banc(Contacts(3) + Fin());
        banc.Faire(chemin);
        QTest::qWait(1);
        auto* texte = banc.Controle<QTextBrowser>("GuideTexte");
        const auto montre = [texte] {
            return S(texte->cursorForPosition({40, 12}).block().text());
        };
        EXPECT_EQ(montre(), titre) << chemin;
        texte->setSource(QUrl(Q("qrc:/guide/guide.md#la-fenêtre"))); // as a link does
        EXPECT_EQ(montre(), "La fenêtre") << chemin;
    }
}

TEST(Accessibilite, CouleursSuiventLeBureau) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre("labels : menu MnuGestionFeuilleQSL");
    const QPalette clair = QApplication::palette();
    const auto couleur = [&banc](const char* nom, QPalette::ColorRole role) {
        return banc.Controle<QWidget>(nom)->palette().color(role);
    };
    EXPECT_EQ(couleur("PictBtEtiq01", QPalette::WindowText), clair.color(QPalette::Highlight));
    for (const bool sombre : {true, false}) {
        const QPalette palette = sombre ? QPalette(Qt::black) : clair;
        QApplication::setPalette(palette);
        QEvent change(QEvent::ApplicationPaletteChange); // Qt sends it once its loop runs
        QCoreApplication::sendEvent(banc.fenetre.get(), &change);
        const QColor rouge = sombre ? QColor(255, 144, 144) : QColor(192, 0, 0);
        EXPECT_EQ(couleur("BtKillFiche", QPalette::ButtonText), rouge);
        EXPECT_EQ(couleur("TxtField_15", QPalette::Text), rouge);
        EXPECT_EQ(couleur("PictBtEtiq02", QPalette::WindowText), palette.color(QPalette::Mid));
        for (const auto& [nom, encre, fond] :
             {std::tuple{"ListeLog", QPalette::Text, QPalette::Base},
              {"ListeLog", QPalette::HighlightedText, QPalette::Highlight},
              {"LabJournal", QPalette::WindowText, QPalette::Window}}) { // as they are in entry
            const QPalette grise = banc.Controle<QWidget>(nom)->palette();
            EXPECT_GE(Contraste(grise.color(QPalette::Disabled, encre),
                                grise.color(QPalette::Disabled, fond)),
                      4.5)
                << nom << sombre;
        }
        EXPECT_EQ(couleur("RechText", QPalette::PlaceholderText).rgb(),
                  palette.color(QPalette::Text).rgb());
    }
    QApplication::setPalette(clair);
}

} // namespace orvalis::operateur::accessibilite
