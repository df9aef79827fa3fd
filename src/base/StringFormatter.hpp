#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace quenby {

/// One argument of a localised format: text for `%@`, an integer for `%lld`.
using FormatArgument = std::variant<std::string_view, long long>;

/// Fills a localised format the way the system's string formatting does for the two specifiers
/// this program uses: `%@` (text) and `%lld` (integer), in order or positional (`%1$@`, `%2$lld`,
/// which translations may reorder), and `%%`. An argument of the other kind is written as it is;
/// a specifier without an argument and any unknown specifier are copied unchanged, so a broken
/// translation shows its mistake instead of crashing.
[[nodiscard]] std::string formatLocalized(std::string_view format,
                                          std::initializer_list<FormatArgument> arguments);

} // namespace quenby
