#include "simulation/ScenarioArguments.hpp"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <locale>
#include <sstream>

namespace quenby {

void expectArgumentCount(const std::vector<std::string>& arguments, std::size_t minimum,
                         std::size_t maximum, const char* usage) {
  if (arguments.size() < minimum || arguments.size() > maximum) {
    throw ScenarioLineError{std::string("usage: ") + usage};
  }
}

std::int64_t parseInteger(const std::string& text) {
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw ScenarioLineError{"\"" + text + "\" is not a whole number"};
  }
  return value;
}

double parseReal(const std::string& text) {
  // Apple's C++ library has no floating-point from_chars; a stream in the classic locale reads
  // the same digits on every host.
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> std::noskipws >> value;
  if (stream.fail() || stream.peek() != std::char_traits<char>::eof() || !std::isfinite(value)) {
    throw ScenarioLineError{"\"" + text + "\" is not a number"};
  }
  return value;
}

bool parseOnOff(const std::string& text, const char* usage) {
  if (text != "on" && text != "off") {
    throw ScenarioLineError{"expected on or off: " + std::string(usage)};
  }
  return text == "on";
}

PropertyListValue parseDefaultValue(const std::string& type, const std::string& text) {
  if (type == "string") {
    return text;
  }
  if (type == "int") {
    return parseInteger(text);
  }
  if (type == "real") {
    return parseReal(text);
  }
  if (type == "bool") {
    if (text != "true" && text != "false") {
      throw ScenarioLineError{"a bool is true or false, not \"" + text + "\""};
    }
    return text == "true";
  }
  if (type == "data") {
    if (text.size() % 2 != 0) {
      throw ScenarioLineError{"data needs an even number of hex digits"};
    }
    PropertyListValue::Data bytes;
    for (std::size_t i = 0; i < text.size(); i += 2) {
      unsigned value = 0;
      const auto [end, error] = std::from_chars(text.data() + i, text.data() + i + 2, value, 16);
      if (error != std::errc() || end != text.data() + i + 2) {
        throw ScenarioLineError{"\"" + text + "\" is not hex data"};
      }
      bytes.push_back(static_cast<std::uint8_t>(value));
    }
    return bytes;
  }
  throw ScenarioLineError{"unknown type \"" + type +
                          "\" (string, int, real, bool, data or absent)"};
}

PropertyListValue::Data readFileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw ScenarioLineError{"cannot read " + path};
  }
  return PropertyListValue::Data(std::istreambuf_iterator<char>(file),
                                 std::istreambuf_iterator<char>());
}

} // namespace quenby
