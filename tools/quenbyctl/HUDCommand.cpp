#include "quenbyctl/HUDCommand.hpp"

#include "base/PosixFileSystem.hpp"
#include "hud/view/KeyboardHUDContentBuilder.hpp"
#include "hud/view/KeyboardHUDTexts.hpp"
#include "quenbyctl/DefaultsFile.hpp"
#include "quenbyctl/DiskMappingResolver.hpp"
#include "quenbyctl/KeyboardHUDSVGWriter.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <variant>

namespace quenby {
namespace {

constexpr std::string_view kUsage =
    "usage: quenbyctl hud --svg FILE [--theme light|dark|system] [--size small|standard|large]\n"
    "                     [--plist DOCK] [--root DIR] [--letters JSON]";
/// Far larger than any letter-mapping document: 26 records.
constexpr std::uint64_t kMaximumLettersBytes = 4ULL * 1024 * 1024;

struct HUDOptions {
  std::string svg;
  HUDThemePreference theme = HUDThemePreference::system;
  HUDSizePreference size = HUDSizePreference::standard;
  std::optional<std::string> plist;
  std::optional<FileURL> root;
  std::optional<std::string> letters;
};

int usageError(std::ostream& err, std::string_view problem) {
  err << "quenbyctl hud: " << problem << '\n' << kUsage << '\n';
  return 2;
}

std::optional<HUDThemePreference> parseTheme(std::string_view text) {
  if (text == "light") {
    return HUDThemePreference::light;
  }
  if (text == "dark") {
    return HUDThemePreference::dark;
  }
  if (text == "system") {
    return HUDThemePreference::system;
  }
  return std::nullopt;
}

std::optional<HUDSizePreference> parseSize(std::string_view text) {
  if (text == "small") {
    return HUDSizePreference::small;
  }
  if (text == "standard") {
    return HUDSizePreference::standard;
  }
  if (text == "large") {
    return HUDSizePreference::large;
  }
  return std::nullopt;
}

/// The options, or the exit status of a usage error (already reported).
std::variant<HUDOptions, int> parseOptions(const std::vector<std::string>& arguments,
                                           std::ostream& out, std::ostream& err) {
  HUDOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      out << kUsage << '\n';
      return 0;
    }
    if (argument != "--svg" && argument != "--theme" && argument != "--size" &&
        argument != "--plist" && argument != "--root" && argument != "--letters") {
      return usageError(err, "unexpected argument '" + argument + "'");
    }
    if (i + 1 == arguments.size()) {
      return usageError(err, argument + " needs a value");
    }
    const std::string& value = arguments[++i];
    if (argument == "--svg") {
      options.svg = value;
    } else if (argument == "--theme") {
      const auto theme = parseTheme(value);
      if (!theme) {
        return usageError(err, "--theme must be light, dark or system, not '" + value + "'");
      }
      options.theme = *theme;
    } else if (argument == "--size") {
      const auto size = parseSize(value);
      if (!size) {
        return usageError(err, "--size must be small, standard or large, not '" + value + "'");
      }
      options.size = *size;
    } else if (argument == "--plist") {
      options.plist = value;
    } else if (argument == "--letters") {
      options.letters = value;
    } else {
      std::error_code error;
      const auto absolute = std::filesystem::absolute(value, error);
      if (error || !std::filesystem::is_directory(absolute, error)) {
        return usageError(err, "--root " + value + " is not a directory");
      }
      options.root = FileURL::fromPath(absolute.string());
    }
  }
  if (options.svg.empty()) {
    return usageError(err, "--svg FILE is required");
  }
  return options;
}

/// The stored records, or the reason they cannot be read.
std::variant<std::vector<LetterMappingRecord>, std::string> readLetters(const std::string& path) {
  PosixFileSystem fileSystem;
  const auto bytes = fileSystem.readFile(path, kMaximumLettersBytes);
  if (!bytes) {
    return "cannot read " + path;
  }
  auto document = LetterMappingDocument::read(*bytes);
  if (!document) {
    return path + " " + std::string(DefaultsFile::describe(document.error()));
  }
  return std::move(document->records);
}

} // namespace

int runHUDCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                  const HUDCommandIconSource& icons) {
  auto parsed = parseOptions(arguments, out, err);
  if (const int* status = std::get_if<int>(&parsed)) {
    return *status;
  }
  const HUDOptions& options = std::get<HUDOptions>(parsed);

  std::vector<LetterMappingRecord> letters;
  if (options.letters) {
    auto read = readLetters(*options.letters);
    if (const auto* problem = std::get_if<std::string>(&read)) {
      err << "quenbyctl hud: " << *problem << '\n';
      return 1;
    }
    letters = std::move(std::get<std::vector<LetterMappingRecord>>(read));
  }
  DiskMappingResolver disk(options.root);
  if (options.plist) {
    if (const auto failure = disk.loadDock(*options.plist)) {
      err << "quenbyctl hud: " << *failure << '\n';
      return 1;
    }
  }

  KeyboardHUDMappingCache cache;
  cache.snapshot = disk.resolve(letters);
  if (icons) {
    const auto addIcon = [&](const AppMapping& mapping) {
      if (const auto url = mapping.launchURL()) {
        if (auto icon = icons(*url)) {
          cache.icons.insert_or_assign(mapping.bundleIdentifier, std::move(icon));
        }
      }
    };
    for (int position = NumberMappingEntries::kFirstPosition;
         position <= NumberMappingEntries::kLastPosition; ++position) {
      if (const AppMapping* mapping = cache.snapshot.numberEntries.at(position).mapping()) {
        addIcon(*mapping);
      }
    }
    for (const auto& [letter, mapping] : cache.snapshot.letterMappings) {
      addIcon(mapping);
    }
  }

  EnglishLocalizer localizer;
  KeyboardHUDViewModel model(options.size, options.theme,
                             localizer.localized(kHUDOpenSettingsAccessibilityLabel));
  model.setCurrent(std::move(cache));
  const auto svg = KeyboardHUDSVGWriter::write(model, KeyboardHUDColorScheme::light,
                                               KeyboardHUDContentBuilder(localizer));

  std::ofstream file(options.svg, std::ios::binary | std::ios::trunc);
  file << svg;
  file.close();
  if (!file) {
    err << "quenbyctl hud: cannot write " << options.svg << '\n';
    return 1;
  }
  return 0;
}

} // namespace quenby
