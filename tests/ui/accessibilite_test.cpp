// What a screen reader says and what the keyboard reaches, in every state of the window.
#include "geo/dlg2.h"
#include "ui/a_propos.h"
#include "ui/banc.h"
#include "ui/dlg1.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTest>

namespace orvalis::essais {
namespace {

bool EstUnControle(const QWidget& widget) {
    if (widget.objectName().startsWith(QStringLiteral("qt_")))
        return false; // a part of another control
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           (qobject_cast<const QScrollBar*>(&widget) != nullptr && !widget.objectName().isEmpty());
}

// The controls that a screen reader would announce without a name.
QStringList SansNom(const QWidget& fenetre) {
    QStringList muets;
    for (QWidget* widget : fenetre.findChildren<QWidget*>()) {
        if (!EstUnControle(*widget) ||
            qobject_cast<QAbstractButton*>(widget->parentWidget()) != nullptr ||
            qobject_cast<QLineEdit*>(widget->parentWidget()) != nullptr)
            continue;
        const QAccessibleInterface* lu = QAccessible::queryAccessibleInterface(widget);
        if (lu == nullptr || lu->text(QAccessible::Name).trimmed().isEmpty())
            muets << widget->objectName();
    }
    return muets;
}

TEST(Accessibilite, ToutControleAUnNom) {
    Banc banc(Contacts(30) + Fin());
    const Dlg1 creation(banc.systeme.lecteur, banc.systeme, nullptr);
    const Dlg2 coordonnees;
    const APropos aPropos(banc.systeme, nullptr);
    for (const QWidget* fenetre : std::initializer_list<const QWidget*>{
             banc.fenetre.get(), &creation, &coordonnees, &aPropos})
        EXPECT_EQ(SansNom(*fenetre).join(QLatin1Char(' ')), QString())
            << fenetre->objectName().toStdString();
}

// Letters that, pressed with Alt, would mean two things among what is on show and enabled.
QStringList LettresDoubles(const QWidget& fenetre) {
    QStringList vues, doubles;
    const auto noter = [&](const QKeySequence& touche) {
        if (touche.isEmpty())
            return;
        (vues.contains(touche.toString()) ? doubles : vues) << touche.toString();
    };
    for (const QWidget* widget : fenetre.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        if (const auto* bouton = qobject_cast<const QAbstractButton*>(widget))
            noter(bouton->shortcut());
        else if (const auto* label = qobject_cast<const QLabel*>(widget);
                 label != nullptr && label->buddy() != nullptr)
            noter(QKeySequence::mnemonic(label->text()));
    }
    for (const QAction* menu : fenetre.findChild<QMenuBar*>()->actions())
        noter(QKeySequence::mnemonic(menu->text()));
    return doubles;
}

// What is on show and enabled, and Tab never comes to.
QStringList HorsDuTour(const QWidget& fenetre) {
    QStringList oublies;
    for (const QWidget* widget : fenetre.findChildren<QWidget*>())
        if (EstUnControle(*widget) && widget->isVisible() && widget->isEnabled() &&
            qobject_cast<const QScrollBar*>(widget) == nullptr &&
            (widget->focusPolicy() & Qt::TabFocus) == 0)
            oublies << widget->objectName();
    return oublies;
}

TEST(Accessibilite, ClavierDansChaqueEtat) {
    struct Cas {
        const char *etat, *gestes;
        const char* horsDuTour; ///< on purpose
    };
    const std::vector<Cas> cas = {
        {"repos", "", ""},
        {"saisie", "^N =f5xyz", ""},
        {"changement de locator", "^N MnuChangerLocator =jn07wv", ""},
        {"suppression", "^S", ""},
        {"contacts", "^R =f5qso", ""},
        {"jumelage", "MnuJumeler", ""},
        {"feuille", "MnuGestionFeuilleQSL", "FLdText_10 FLdText_11"},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.etat);
        Banc banc(Contacts(30) + Fin());
        banc.Faire(c.gestes);
        EXPECT_EQ(LettresDoubles(*banc.fenetre).join(QLatin1Char(' ')), QString());
        EXPECT_EQ(HorsDuTour(*banc.fenetre).join(QLatin1Char(' ')),
                  QString::fromLatin1(c.horsDuTour));
    }
}

TEST(Accessibilite, F10OuvreLesMenus) {
    Banc banc(Contacts(1) + Fin());
    banc.Touche(Qt::Key_F10);
    auto* fichier = banc.Controle<QMenu>("NmuFilect");
    ASSERT_TRUE(fichier->isVisible());
    QTest::keyClick(fichier, Qt::Key_Right);
    EXPECT_FALSE(fichier->isVisible());
    EXPECT_TRUE(banc.Controle<QMenu>("MnuLister")->isVisible());
}

} // namespace
} // namespace orvalis::essais
