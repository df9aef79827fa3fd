#include "simulation/ScenarioLineTokenizer.hpp"

namespace quenby {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

} // namespace

Expected<std::vector<std::string>, std::string> tokenizeScenarioLine(std::string_view line) {
  std::vector<std::string> arguments;
  std::size_t i = 0;
  while (true) {
    while (i < line.size() && isBlank(line[i])) {
      ++i;
    }
    if (i == line.size()) {
      return arguments;
    }
    std::string argument;
    if (line[i] != '"') {
      while (i < line.size() && !isBlank(line[i])) {
        argument.push_back(line[i++]);
      }
      arguments.push_back(std::move(argument));
      continue;
    }
    ++i; // opening quote
    bool closed = false;
    while (i < line.size()) {
      const char c = line[i++];
      if (c == '"') {
        closed = true;
        break;
      }
      if (c == '\\' && i < line.size() && (line[i] == '"' || line[i] == '\\')) {
        argument.push_back(line[i++]);
        continue;
      }
      argument.push_back(c);
    }
    if (!closed) {
      return Unexpected{std::string("unterminated quoted argument")};
    }
    if (i < line.size() && !isBlank(line[i])) {
      return Unexpected{std::string("a quoted argument must be followed by a blank")};
    }
    arguments.push_back(std::move(argument));
  }
}

} // namespace quenby
