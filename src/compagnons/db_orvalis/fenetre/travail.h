// Work that lasts longer than a blink, beside the window.
#pragma once

#include <QObject>

#include <functional>
#include <thread>

namespace orvalis {

/// One work at a time on a thread of its own. A time zone (Fuseau) that the work needs is made, and
/// goes, on the window's thread: it is a matter of the whole process, whose environment nobody else
/// may read while it changes; and nothing in the window asks for the time while it works.
class Travail : public QObject {
    Q_OBJECT
  public:
    explicit Travail(QObject* parent = nullptr) : QObject(parent) {}
    ~Travail() override;

    /// `faire` runs on the other thread, then `finir` on this one: with what `faire` threw, if
    /// anything.
    void Lancer(std::function<void()> faire, std::function<void(std::exception_ptr)> finir);

  private:
    std::thread fil_;
};

} // namespace orvalis
