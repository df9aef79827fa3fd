#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quenby {

/// `quenbyctl simulate [--narrate] SCRIPT` (SCRIPT is a file, or - for standard input).
/// Returns the process's exit status.
int runSimulateCommand(const std::vector<std::string>& arguments, std::istream& in,
                       std::ostream& out, std::ostream& err);

} // namespace quenby
