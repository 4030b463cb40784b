// What an exchange refuses without any file having failed.
#pragma once

#include <stdexcept>

namespace orvalis {

/// what() is the complete French sentence, UTF-8.
class RefusEchange : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace orvalis
