// The hourglass.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace orvalis {

/// Shown while one lives.
class Sablier {
  public:
    Sablier() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sablier() { QGuiApplication::restoreOverrideCursor(); }
    Sablier(const Sablier&) = delete;
    Sablier& operator=(const Sablier&) = delete;
    Sablier(Sablier&&) = delete;
    Sablier& operator=(Sablier&&) = delete;
};

} // namespace orvalis
