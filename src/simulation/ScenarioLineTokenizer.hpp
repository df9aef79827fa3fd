#pragma once

#include "base/Expected.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// Splits a scenario line at blanks. An argument in double quotes may hold blanks or be empty;
/// inside quotes, \" and \\ stand for a quote and a backslash.
[[nodiscard]] Expected<std::vector<std::string>, std::string>
tokenizeScenarioLine(std::string_view line);

} // namespace quenby
