#include "base/StringFormatter.hpp"

#include <cstddef>

namespace quenby {
namespace {

void append(std::string& out, const FormatArgument& argument) {
  if (const auto* text = std::get_if<std::string_view>(&argument)) {
    out.append(*text);
  } else {
    out.append(std::to_string(std::get<long long>(argument)));
  }
}

/// Length of the conversion (`@` or `lld`) at `at`, 0 if there is none.
std::size_t conversionLength(std::string_view format, std::size_t at) {
  if (format.substr(at, 1) == "@") {
    return 1;
  }
  if (format.substr(at, 3) == "lld") {
    return 3;
  }
  return 0;
}

} // namespace

std::string formatLocalized(std::string_view format,
                            std::initializer_list<FormatArgument> arguments) {
  std::string out;
  out.reserve(format.size() + 32);
  std::size_t nextSequential = 0;
  std::size_t i = 0;
  while (i < format.size()) {
    const char c = format[i];
    if (c != '%') {
      out.push_back(c);
      ++i;
      continue;
    }
    if (format.substr(i + 1, 1) == "%") {
      out.push_back('%');
      i += 2;
      continue;
    }
    // Optional position: digits followed by '$'.
    std::size_t cursor = i + 1;
    std::size_t position = 0;
    while (cursor < format.size() && format[cursor] >= '0' && format[cursor] <= '9') {
      position = position * 10 + static_cast<std::size_t>(format[cursor] - '0');
      ++cursor;
    }
    const bool positional = cursor > i + 1 && format.substr(cursor, 1) == "$";
    if (positional) {
      ++cursor;
    } else {
      cursor = i + 1;
    }
    const std::size_t length = conversionLength(format, cursor);
    const std::size_t index = positional ? position - 1 : nextSequential;
    if (length == 0 || (positional && position == 0) || index >= arguments.size()) {
      out.push_back('%');
      ++i;
      continue;
    }
    append(out, *(arguments.begin() + static_cast<std::ptrdiff_t>(index)));
    if (!positional) {
      ++nextSequential;
    }
    i = cursor + length;
  }
  return out;
}

} // namespace quenby
