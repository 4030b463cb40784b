// A time zone as the system knows it, behind one header with a source for each system:
// zone_systeme_posix.cpp and zone_systeme_windows.cpp.
#pragma once

#include <chrono>
#include <memory>
#include <string_view>

namespace orvalis {

/// Where the C library knows zones by the process's environment, it names this one while an object
/// with a name lives: then there is one at a time, and no other thread that asks for the time.
class ZoneSysteme {
  public:
    /// The zone of that name ("Europe/Paris"; Windows knows some of these, and names of its own,
    /// "Romance Standard Time"), the system's own for an empty name. Throws RefusEchange when there
    /// is none such.
    explicit ZoneSysteme(std::string_view nom);
    ZoneSysteme(const ZoneSysteme&) = delete;
    ZoneSysteme& operator=(const ZoneSysteme&) = delete;
    ~ZoneSysteme();

    /// How far the zone's clock is ahead of UTC at an instant; nothing where the system will not
    /// say.
    [[nodiscard]] std::chrono::seconds Decalage(std::chrono::sys_seconds utc) const;

  private:
    struct Donnees;
    std::unique_ptr<Donnees> donnees_; ///< none for the system's own zone
};

} // namespace orvalis
