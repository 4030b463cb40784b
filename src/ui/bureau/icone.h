// The program's icon.
#pragma once

#include <QIcon>

namespace orvalis {

// Windows takes the form that its own programs have, and Qt there need not know the other.
[[nodiscard]] inline QIcon IconeProgramme() {
#ifdef Q_OS_WIN
    return QIcon(QStringLiteral(":/orvalis.ico"));
#else
    return QIcon(QStringLiteral(":/orvalis.svg"));
#endif
}

} // namespace orvalis
