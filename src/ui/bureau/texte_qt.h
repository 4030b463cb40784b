// The border between the program's UTF-8 text and Qt's strings.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace orvalis {

/// Our text for Qt.
[[nodiscard]] inline QString Q(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// And back.
[[nodiscard]] inline std::string S(const QString& texte) {
    return texte.toStdString();
}

} // namespace orvalis
