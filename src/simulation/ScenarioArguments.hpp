#pragma once

#include "base/PropertyListValue.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quenby {

/// A malformed scenario line; the runner prefixes the line number.
struct ScenarioLineError {
  std::string message;
};

/// Throws unless `arguments` (the command word included) number from `minimum` to `maximum`.
void expectArgumentCount(const std::vector<std::string>& arguments, std::size_t minimum,
                         std::size_t maximum, const char* usage);
[[nodiscard]] std::int64_t parseInteger(const std::string& text);
[[nodiscard]] double parseReal(const std::string& text);
/// `on` or `off`; anything else is a line error quoting `usage`.
[[nodiscard]] bool parseOnOff(const std::string& text, const char* usage);
/// A `default` line's value: TYPE `string`, `int`, `real`, `bool` or `data` (hex digits).
[[nodiscard]] PropertyListValue parseDefaultValue(const std::string& type, const std::string& text);
/// The bytes of a real file, or a line error naming it.
[[nodiscard]] PropertyListValue::Data readFileBytes(const std::string& path);

} // namespace quenby
