// What a screen reader says and what the keyboard reaches, in every state of the window.
#include "ui/banc.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenuBar>

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

// Controls without a name to say, and among what is on show and enabled, what Tab never comes to
// and letters that mean two things with Alt.
std::string Defauts(const QWidget& fenetre) {
    std::string defauts;
    std::multiset<QKeySequence> lettres;
    for (QWidget* widget : fenetre.findChildren<QWidget*>()) {
        const QAccessibleInterface* lu = QAccessible::queryAccessibleInterface(widget);
        if (EstUnControle(*widget) && (!lu || lu->text(QAccessible::Name).trimmed().isEmpty()))
            defauts += "no name: " + S(widget->objectName()) + ' ';
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

TEST(Accessibilite, CouleursSuiventLeBureau) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre("labels : menu MnuGestionFeuilleQSL");
    const QPalette clair = QApplication::palette();
    const auto couleur = [&banc](const char* nom, QPalette::ColorRole role) {
        return banc.Controle<QWidget>(nom)->palette().color(role);
    };
    for (const bool sombre : {true, false}) {
        const QPalette palette = sombre ? QPalette(Qt::black) : clair;
        QApplication::setPalette(palette);
        QEvent change(QEvent::ApplicationPaletteChange); // Qt sends it once its loop runs
        QCoreApplication::sendEvent(banc.fenetre.get(), &change);
        const QColor rouge = sombre ? QColor(255, 128, 128) : QColor(192, 0, 0);
        EXPECT_EQ(couleur("BtKillFiche", QPalette::ButtonText), rouge);
        EXPECT_EQ(couleur("TxtField_15", QPalette::Text), rouge);
        EXPECT_EQ(couleur("PictBtEtiq02", QPalette::WindowText), palette.color(QPalette::Mid));
        EXPECT_EQ(couleur("RechText", QPalette::PlaceholderText).rgb(),
                  palette.color(QPalette::Text).rgb());
    }
    QApplication::setPalette(clair);
}

} // namespace orvalis::operateur::accessibilite
