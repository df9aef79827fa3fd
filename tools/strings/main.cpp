#include "strings/LocalizableStringsCatalog.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: quenby-strings --check|--write [SOURCE_ROOT]\n"
    "\n"
    "  --check  succeed when resources/en.lproj/Localizable.strings holds exactly the\n"
    "           LocalizedText texts declared under src/; otherwise list the differences\n"
    "  --write  regenerate the file from those declarations\n"
    "\n"
    "SOURCE_ROOT defaults to the current directory.\n";

std::optional<std::string> contentsOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    return std::nullopt;
  }
  std::ostringstream contents;
  contents << in.rdbuf();
  return contents.str();
}

// Explains to a developer why the file is not the one the sources generate.
void reportMismatch(const fs::path& path, const std::optional<std::string>& contents,
                    const quenby::LocalizableStrings& declared) {
  std::cerr << path.string() << " is out of step with the sources (run `make strings`):\n";
  if (!contents) {
    std::cerr << "  the file is missing\n";
    return;
  }
  const auto file = quenby::parseStringsFile(*contents);
  if (!file) {
    std::cerr << "  the file is not a list of /* comment */ \"key\" = \"text\"; entries\n";
    return;
  }
  const auto lines = quenby::differences(declared, *file);
  if (lines.empty()) {
    std::cerr << "  the texts agree but the file is not laid out as generated\n";
  }
  for (const auto& line : lines) {
    std::cerr << "  " << line << "\n";
  }
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.empty() || arguments.size() > 2 ||
      (arguments[0] != "--check" && arguments[0] != "--write")) {
    std::cerr << kUsage;
    return 2;
  }
  const fs::path root = arguments.size() == 2 ? arguments[1] : ".";
  const auto scan = quenby::scanSourceTree(root);
  for (const auto& problem : scan.problems) {
    std::cerr << problem << "\n";
  }
  if (!scan.problems.empty()) {
    return 1;
  }
  if (scan.strings.empty()) {
    std::cerr << "quenby-strings: no LocalizedText declaration found under "
              << (root / "src").string() << "\n";
    return 1;
  }

  const auto path = quenby::stringsFilePath(root);
  const auto expected = quenby::renderStringsFile(scan.strings);
  if (arguments[0] == "--write") {
    std::error_code ignored; // opening the file reports the failure that matters
    fs::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!(out << expected).flush()) {
      std::cerr << "quenby-strings: cannot write " << path.string() << "\n";
      return 1;
    }
    std::cout << "Wrote " << scan.strings.size() << " texts to " << path.string() << "\n";
    return 0;
  }

  const auto contents = contentsOf(path);
  if (contents == expected) {
    return 0;
  }
  reportMismatch(path, contents, scan.strings);
  return 1;
}
