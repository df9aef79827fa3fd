#include "quenbyctl/LettersCommand.hpp"

#include "quenbyctl/DefaultsFile.hpp"

#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <variant>

namespace quenby {
namespace {

constexpr std::string_view kUsage = "usage: quenbyctl letters [--json] [--defaults FILE]";
constexpr int kLetters = 26;

int usageError(std::ostream& err, std::string_view problem) {
  err << "quenbyctl letters: " << problem << '\n' << kUsage << '\n';
  return 2;
}

using LetterTable = std::array<const LetterMappingRecord*, kLetters>;

LetterTable byLetter(const std::vector<LetterMappingRecord>& records) {
  LetterTable table{};
  for (const auto& record : records) {
    table[static_cast<std::size_t>(record.letter - 'A')] = &record;
  }
  return table;
}

void writeJSON(const LetterTable& table, std::ostream& out) {
  nlohmann::ordered_json letters = nlohmann::ordered_json::object();
  for (int index = 0; index < kLetters; ++index) {
    const std::string letter(1, static_cast<char>('A' + index));
    const LetterMappingRecord* record = table[static_cast<std::size_t>(index)];
    if (record == nullptr) {
      letters[letter] = nullptr;
      continue;
    }
    const auto fields = record->fields();
    nlohmann::ordered_json object{{"bundleIdentifier", fields.bundleIdentifier},
                                  {"displayName", fields.displayName},
                                  {"lastKnownURL", fields.lastKnownURL}};
    if (fields.catalogResolvedURL) {
      object["catalogResolvedURL"] = *fields.catalogResolvedURL;
    }
    letters[letter] = std::move(object);
  }
  nlohmann::ordered_json document{{"letters", std::move(letters)}};
  out << document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

void writeText(const LetterTable& table, std::ostream& out) {
  for (int index = 0; index < kLetters; ++index) {
    out << static_cast<char>('A' + index) << "  ";
    const LetterMappingRecord* record = table[static_cast<std::size_t>(index)];
    if (record == nullptr) {
      out << "-\n";
      continue;
    }
    out << record->displayName << "  " << record->bundleIdentifier << "  "
        << record->lastKnownURL.path();
    if (record->catalogResolvedURL && *record->catalogResolvedURL != record->lastKnownURL) {
      out << "  (found at " << record->catalogResolvedURL->path() << ")";
    }
    out << '\n';
  }
}

} // namespace

int runLettersCommand(const std::vector<std::string>& arguments, std::ostream& out,
                      std::ostream& err, const PropertyListDecoding& decoder) {
  bool json = false;
  std::optional<std::string> defaults;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      out << kUsage << '\n';
      return 0;
    }
    if (argument == "--json") {
      json = true;
    } else if (argument == "--defaults") {
      if (i + 1 == arguments.size()) {
        return usageError(err, "--defaults needs a value");
      }
      defaults = arguments[++i];
    } else {
      return usageError(err, "unexpected argument '" + argument + "'");
    }
  }

  auto file = DefaultsFile::read(defaults, decoder);
  if (const auto* problem = std::get_if<std::string>(&file)) {
    err << "quenbyctl letters: " << *problem << '\n';
    return 1;
  }
  const auto records = std::get<DefaultsFile>(file).letters();
  if (const auto* problem = std::get_if<std::string>(&records)) {
    err << "quenbyctl letters: " << *problem << '\n';
    return 1;
  }
  const auto table = byLetter(std::get<std::vector<LetterMappingRecord>>(records));
  if (json) {
    writeJSON(table, out);
  } else {
    writeText(table, out);
  }
  return 0;
}

} // namespace quenby
