#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace quenby {

/// `quenbyctl dock --plist FILE [--root DIR] [--json]`: the nine Dock positions as the program
/// derives them from a copy of the Dock's preferences. `arguments` are those after "dock".
/// Returns the exit status: 0 when the file was read, 1 when it could not be read or is not a
/// property list, 2 for a usage error.
int runDockCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace quenby
