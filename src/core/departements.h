// The French departments shown beside the department code of a contact.
#pragma once

#include <string_view>

namespace orvalis {

/// Name of a department (UTF-8) from the text of a DEPT field; empty when the code is empty or
/// unknown. Codes are compared by the number their leading digits form, so 5 and 005 are one.
[[nodiscard]] std::string_view NomDepartement(std::string_view code);

} // namespace orvalis
