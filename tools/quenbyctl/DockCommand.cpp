#include "quenbyctl/DockCommand.hpp"

#include "quenbyctl/DiskMappingResolver.hpp"
#include "simulation/DockPositionJSON.hpp"

#include <filesystem>
#include <optional>
#include <string_view>

namespace quenby {
namespace {

constexpr std::string_view kUsage = "usage: quenbyctl dock --plist FILE [--root DIR] [--json]";

struct DockOptions {
  std::string plist;
  std::optional<FileURL> root;
  bool json = false;
};

int usageError(std::ostream& err, std::string_view problem) {
  err << "quenbyctl dock: " << problem << '\n' << kUsage << '\n';
  return 2;
}

/// The options, or the exit status of a usage error (already reported).
std::variant<DockOptions, int> parseOptions(const std::vector<std::string>& arguments,
                                            std::ostream& out, std::ostream& err) {
  DockOptions options;
  bool hasPlist = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      out << kUsage << '\n';
      return 0;
    }
    if (argument == "--json") {
      options.json = true;
      continue;
    }
    if (argument != "--plist" && argument != "--root") {
      return usageError(err, "unexpected argument '" + argument + "'");
    }
    if (i + 1 == arguments.size()) {
      return usageError(err, argument + " needs a value");
    }
    const std::string& value = arguments[++i];
    if (argument == "--plist") {
      options.plist = value;
      hasPlist = true;
      continue;
    }
    std::error_code error;
    const auto absolute = std::filesystem::absolute(value, error);
    if (error || !std::filesystem::is_directory(absolute, error)) {
      return usageError(err, "--root " + value + " is not a directory");
    }
    options.root = FileURL::fromPath(absolute.string());
  }
  if (!hasPlist) {
    return usageError(err, "--plist FILE is required");
  }
  return options;
}

/// A path as the user gave it: without the root the disk was taken to begin at.
std::string displayPath(const FileURL& url, const std::optional<FileURL>& root) {
  if (!root || !url.isInside(*root)) {
    return url.path();
  }
  return url.path().substr(root->path() == "/" ? 0 : root->path().size());
}

std::string joinedPaths(const std::vector<FileURL>& urls, const std::optional<FileURL>& root) {
  std::string text;
  for (const auto& url : urls) {
    text += (text.empty() ? "" : ", ") + displayPath(url, root);
  }
  return text;
}

/// `⌥1  Mail  /System/Applications/Mail.app`, with the outcome when it is not the plain one.
std::string textLine(int position, const NumberMappingEntry& entry,
                     const std::optional<FileURL>& root) {
  std::string line = "\u2325" + std::to_string(position) + "  ";
  if (const AppMapping* mapping = entry.mapping()) {
    line += mapping->displayName + "  " + displayPath(mapping->lastKnownURL, root);
    const auto& resolution = mapping->resolution;
    if (const auto resolved = resolution.resolvedURL()) {
      if (*resolved != mapping->lastKnownURL) {
        line += "  \u2192 " + displayPath(*resolved, root);
      }
    } else if (resolution.kind() == ApplicationResolution::Kind::ambiguous) {
      line += "  (ambiguous: " + joinedPaths(resolution.candidatePaths(), root) + ")";
    } else {
      line += "  (not found)";
    }
    return line;
  }
  const NumberMappingProblem& problem = *entry.problem();
  switch (problem.kind()) {
  case NumberMappingProblem::Kind::emptyDockPosition:
    return line + "(empty)";
  case NumberMappingProblem::Kind::invalidDockEntry:
    return line + "(invalid) " + problem.message();
  case NumberMappingProblem::Kind::preferencesUnavailable:
    break;
  }
  return line + "(unavailable) " + problem.message();
}

} // namespace

int runDockCommand(const std::vector<std::string>& arguments, std::ostream& out,
                   std::ostream& err) {
  auto parsed = parseOptions(arguments, out, err);
  if (const int* status = std::get_if<int>(&parsed)) {
    return *status;
  }
  const DockOptions& options = std::get<DockOptions>(parsed);

  DiskMappingResolver disk(options.root);
  if (const auto failure = disk.loadDock(options.plist)) {
    err << "quenbyctl dock: " << *failure << '\n';
    return 1;
  }
  const auto snapshot = disk.resolve({});
  const auto& entries = snapshot.numberEntries;
  if (options.json) {
    const auto display = [&options](const FileURL& url) { return displayPath(url, options.root); };
    const nlohmann::ordered_json document{{"positions", dockPositionsJSON(entries, display)}};
    out << document.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
    return 0;
  }
  for (int position = NumberMappingEntries::kFirstPosition;
       position <= NumberMappingEntries::kLastPosition; ++position) {
    out << textLine(position, entries.at(position), options.root) << '\n';
  }
  return 0;
}

} // namespace quenby
