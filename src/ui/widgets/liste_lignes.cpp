#include "ui/widgets/liste_lignes.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QtMath>

namespace orvalis {

ListeLignes::ListeLignes(QWidget* parent) : QListWidget(parent) {
    // During entry it cannot be used, but it is read all the same.
    PeindreSelonBureau(*this, [this] {
        QPalette palette;
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::HighlightedText})
            palette.setColor(QPalette::Disabled, role,
                             palette.color(QPalette::Active, QPalette::Text));
        palette.setColor(QPalette::Disabled, QPalette::Highlight,
                         Melange(palette.color(QPalette::Active, QPalette::Window),
                                 palette.color(QPalette::Active, QPalette::Text), 0.15));
        setPalette(palette);
    });
    connect(this, &QListWidget::currentRowChanged, this, [this](int ligne) {
        if (ligne >= 0)
            Q_EMIT ligneChoisie(ligne);
    });
    // A click on the line that is current already is a click too.
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* element) { Q_EMIT ligneChoisie(row(element)); });
}

void ListeLignes::Remplir(std::span<const std::string> lignes, bool enPlace) {
    const QSignalBlocker silence(this);
    const int defilement = enPlace ? verticalScrollBar()->value() : 0;
    QStringList textes;
    for (const std::string& ligne : lignes)
        textes << Q(ligne);
    clear();
    addItems(textes);
    if (!enPlace)
        return;
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(defilement);
}

void ListeLignes::Selectionner(int ligne) {
    const QSignalBlocker silence(this);
    setCurrentRow(ligne);
}

int ListeLignes::Composer(const QFont& modele, int caracteres) {
    setFont(PoliceFixe("Courier New", modele));
    // A character's width may be a fraction: rounded down, forty of them would lack a few pixels.
    const qreal caractere = QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0'));
    return qCeil(caractere) * caracteres + 2 * frameWidth();
}

void ListeLignes::focusInEvent(QFocusEvent* evenement) {
    const QSignalBlocker silence(this);
    const bool sansLigne = currentRow() < 0;
    QListWidget::focusInEvent(evenement);
    if (sansLigne)
        setCurrentRow(-1);
}

void ListeLignes::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // From no line they go to what is in sight, not to the head of a list that was scrolled.
        if (const QModelIndex enVue = indexAt({0, 0}); currentRow() < 0 && enVue.isValid())
            return setCurrentRow(enVue.row());
        [[fallthrough]];
    case Qt::Key_Home:
    case Qt::Key_End:
        return QListWidget::keyPressEvent(evenement);
    default:
        if (evenement->matches(QKeySequence::Copy))
            return QListWidget::keyPressEvent(evenement);
        evenement->ignore();
    }
}

} // namespace orvalis
