#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quenby {

/// `quenbyctl simulate [--narrate] [--save-defaults FILE] SCRIPT` (SCRIPT is a file, or - for
/// standard input). With `--save-defaults`, a script that ran to its end leaves the simulated
/// user defaults in FILE as a binary property list. Returns the process's exit status.
int runSimulateCommand(const std::vector<std::string>& arguments, std::istream& in,
                       std::ostream& out, std::ostream& err);

} // namespace quenby
