// What a screen reader says and what the keyboard reaches, in every state of the window.
#include "geo/dlg2.h"
#include "ui/a_propos.h"
#include "ui/banc.h"
#include "ui/dlg1.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>

#include <set>

namespace orvalis::operateur {
namespace {

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

QKeySequence Lettre(const QWidget& widget) {
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&widget))
        return bouton->shortcut();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->buddy() != nullptr ? QKeySequence::mnemonic(label->text())
                                                         : QKeySequence();
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
    for (const auto& [gestes, voulus] : aides::Textes{{"", ""},
                                                      {"^N =f5xyz", ""},
                                                      {"^N MnuChangerLocator =jn07wv", ""},
                                                      {"^S", ""},
                                                      {"^R =f5qso", ""},
                                                      {"MnuJumeler", ""},
                                                      {"MnuGestionFeuilleQSL", "FLdText_10 "}}) {
        Banc banc(Contacts(30) + Fin());
        banc.Faire(gestes);
        EXPECT_EQ(Defauts(*banc.fenetre), voulus) << gestes;
    }
    SystemeDEssai systeme;
    const Dlg1 creation({}, systeme, nullptr);
    const Dlg2 coordonnees;
    const APropos aPropos(systeme, nullptr);
    for (const QWidget* dialogue :
         std::initializer_list<const QWidget*>{&creation, &coordonnees, &aPropos})
        EXPECT_EQ(Defauts(*dialogue), "");
}

TEST(Accessibilite, CouleursSuiventLeBureau) {
    Banc banc(Contacts(1) + Fin());
    banc.Faire("MnuGestionFeuilleQSL");
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
        EXPECT_EQ(couleur("RechText", QPalette::PlaceholderText).rgb(),
                  palette.color(QPalette::Text).rgb());
    }
    QApplication::setPalette(clair);
}

TEST(Accessibilite, F10OuvreLesMenus) {
    Banc banc(Contacts(1) + Fin());
    banc.Suivre({{"^N !F10", "?NmuFilect", "A"}, {"!Right", "?MnuLister", "A"}});
}

} // namespace
} // namespace orvalis::operateur
