#pragma once

#include <string>
#include <string_view>

namespace quenby {

/// A coordinate for an SVG attribute: at most two decimals, no trailing zeros, never "-0", so
/// that equal pictures are equal bytes.
[[nodiscard]] std::string svgNumber(double value);
/// `text` safe inside an SVG element or a double-quoted attribute.
[[nodiscard]] std::string svgEscaped(std::string_view text);

} // namespace quenby
