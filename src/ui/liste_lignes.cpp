#include "ui/liste_lignes.h"

#include <QSignalBlocker>

namespace orvalis {

void ListeLignes::focusInEvent(QFocusEvent* evenement) {
    const QSignalBlocker silence(this);
    const bool sansLigne = currentRow() < 0;
    QListWidget::focusInEvent(evenement);
    if (sansLigne)
        setCurrentRow(-1);
}

} // namespace orvalis
