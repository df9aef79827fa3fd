#include "ui/editor/InstalledApplicationCatalog.hpp"

#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <algorithm>
#include <cctype>
#include <set>

namespace quenby {
namespace {

std::string lowercased(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

} // namespace

std::vector<FileURL> InstalledApplicationCatalog::standardFolders(const FileURL& root,
                                                                  const FileURL& home) {
  const auto below = [&root](const std::string& path) { return root.appending(path.substr(1)); };
  return {below("/Applications"), below("/Applications/Utilities"), below("/System/Applications"),
          below("/System/Applications/Utilities"), below(home.appending("Applications").path())};
}

std::vector<InstalledApplication> InstalledApplicationCatalog::scan() const {
  std::vector<InstalledApplication> found;
  std::set<std::string> seenIdentifiers;
  std::set<FileURL> seenBundles;
  const auto consider = [&](const FileURL& bundle) {
    if (!seenBundles.insert(bundle).second) {
      return;
    }
    auto metadata = metadataReader_.readMetadata(bundle);
    if (!metadata) {
      return;
    }
    const auto identifier = LetterMappingRecord::trimmed(metadata->bundleIdentifier);
    if (identifier.empty() || !seenIdentifiers.insert(lowercased(identifier)).second) {
      return;
    }
    auto name = std::string(LetterMappingRecord::trimmed(metadata->displayName));
    found.push_back(
        {.displayName = name.empty() ? bundle.lastPathComponentWithoutExtension() : std::move(name),
         .bundleIdentifier = std::string(identifier),
         .url = bundle});
  };
  for (const auto& folder : folders_) {
    std::vector<FileURL> nested;
    for (const auto& name : fileSystem_.listDirectory(folder.path())) {
      const FileURL entry = folder.appending(name);
      if (!fileSystem_.attributes(entry.path()).isDirectory) {
        continue;
      }
      if (entry.hasPathExtension("app")) {
        consider(entry);
      } else {
        nested.push_back(entry);
      }
    }
    // After the folder's own bundles, so "/Applications/Utilities" does not outrank them.
    for (const auto& subfolder : nested) {
      for (const auto& name : fileSystem_.listDirectory(subfolder.path())) {
        const FileURL entry = subfolder.appending(name);
        if (entry.hasPathExtension("app") && fileSystem_.attributes(entry.path()).isDirectory) {
          consider(entry);
        }
      }
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
    return lowercased(a.displayName) < lowercased(b.displayName);
  });
  return found;
}

} // namespace quenby
