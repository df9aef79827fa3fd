#include "quenbyctl/SVGText.hpp"

#include <array>
#include <cmath>
#include <cstdio>

namespace quenby {

std::string svgNumber(double value) {
  std::array<char, 32> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.2f", std::round(value * 100) / 100);
  std::string text(buffer.data());
  while (text.find('.') != std::string::npos && (text.back() == '0' || text.back() == '.')) {
    const bool dot = text.back() == '.';
    text.pop_back();
    if (dot) {
      break;
    }
  }
  return text == "-0" ? "0" : text;
}

std::string svgEscaped(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    switch (c) {
    case '&':
      result += "&amp;";
      break;
    case '<':
      result += "&lt;";
      break;
    case '>':
      result += "&gt;";
      break;
    case '"':
      result += "&quot;";
      break;
    default:
      result += c;
    }
  }
  return result;
}

} // namespace quenby
