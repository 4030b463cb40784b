// What a screen reader says and what the keyboard reaches, in every state of the window.
#include "ui/banc.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenuBar>

#include <set>

namespace orvalis::operateur::accessibilite {

bool EstUn(const QWidget* widget, std::initializer_list<const char*> classes) {
    return std::any_of(classes.begin(), classes.end(),
                       [widget](const char* classe) { return widget->inherits(classe); });
}

bool EstUnControle(const QWidget& widget) {
    const bool partie = widget.objectName().startsWith(QStringLiteral("qt_")) ||
                        EstUn(widget.parentWidget(), {"QAbstractButton", "QLineEdit"});
    return !partie && (EstUn(&widget, {"QAbstractButton", "QLineEdit", "QAbstractItemView"}) ||
                       (EstUn(&widget, {"QScrollBar"}) && !widget.objectName().isEmpty()));
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
        if (EstUnControle(*widget) && !EstUn(widget, {"QScrollBar"}) &&
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
        QPalette palette = sombre ? QPalette(Qt::black) : clair;
        palette.setColor(QPalette::Mid, sombre ? Qt::cyan : Qt::magenta);
        QApplication::setPalette(palette);
        QEvent change(QEvent::ApplicationPaletteChange); // Qt sends it once its loop runs
        QCoreApplication::sendEvent(banc.fenetre.get(), &change);
        const QColor rouge = sombre ? QColor(255, 128, 128) : QColor(192, 0, 0);
        EXPECT_EQ(couleur("BtKillFiche", QPalette::ButtonText), rouge);
        EXPECT_EQ(couleur("TxtField_15", QPalette::Text), rouge);
        EXPECT_EQ(couleur("PictBtEtiq02", QPalette::WindowText), palette.color(QPalette::Mid));
        const QRgb texte = palette.color(QPalette::Text).rgb();
        EXPECT_EQ(couleur("RechText", QPalette::PlaceholderText).rgb(), texte);
    }
    QApplication::setPalette(clair);
}

TEST(Accessibilite, F10OuvreLesMenus) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre(R"(
 first menu : touche Alt+N, F10 -> actif NmuFilect
 next menu : touche Right -> actif MnuLister)");
}

} // namespace orvalis::operateur::accessibilite
