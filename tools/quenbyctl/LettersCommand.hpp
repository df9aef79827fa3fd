#pragma once

#include "base/PropertyListDecoding.hpp"

#include <ostream>
#include <string>
#include <vector>

namespace quenby {

/// `quenbyctl letters [--json] [--defaults FILE]`: the letter mappings kept in a copy of the
/// preferences domain, one per letter A–Z, read as the app reads them and never written back.
/// `arguments` are those after "letters". Returns the exit status: 0 once written, 1 when the
/// preferences or the document cannot be read, 2 for a usage error.
int runLettersCommand(const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& err, const PropertyListDecoding& decoder);

} // namespace quenby
