// The command line of dbOrvalis.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvalis {

/// What is asked of the program.
struct Options {
    bool aide = false;
    bool remplacer = false;
    std::optional<std::string> cahier;
    std::optional<std::string> base; ///< what to make of the logbook
    std::optional<std::string> adif;
    std::optional<std::string> adx;
    std::optional<std::string> bilan;
    std::optional<std::string> importer; ///< what to read
    std::optional<std::string> vers;
    std::optional<std::string> locator;
    std::optional<std::string> indicatif;
    std::optional<std::string> heures;
};

/// A command line that makes no sense; what() is the French sentence.
class OptionsRefusees : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name; "--option valeur" or "--option=valeur". Throws
/// OptionsRefusees for what is unknown, incomplete, twice there or does not go together.
[[nodiscard]] Options LireOptions(std::span<const std::string_view> arguments);

/// The help, several lines.
[[nodiscard]] std::string TexteAide();

} // namespace orvalis
