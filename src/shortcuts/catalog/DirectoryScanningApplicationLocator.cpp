#include "shortcuts/catalog/DirectoryScanningApplicationLocator.hpp"

#include <set>
#include <utility>

namespace quenby {

DirectoryScanningApplicationLocator::DirectoryScanningApplicationLocator(
    const FileSystem& fileSystem, BundleApplicationMetadataReader& metadataReader, FileURL root)
    : fileSystem_(fileSystem), metadataReader_(metadataReader), root_(std::move(root)) {
  rescan();
}

std::vector<FileURL>
DirectoryScanningApplicationLocator::applicationURLs(const std::string& bundleIdentifier) const {
  const auto found = urlsByBundleIdentifier_.find(bundleIdentifier);
  return found == urlsByBundleIdentifier_.end() ? std::vector<FileURL>{} : found->second;
}

void DirectoryScanningApplicationLocator::rescan() {
  urlsByBundleIdentifier_.clear();
  // Directories are known by volume and file number, so a link back up the tree is seen once.
  std::set<std::pair<std::uint64_t, std::uint64_t>> visited;
  const auto firstVisit = [&visited](const FileAttributes& attributes) {
    return visited
        .emplace(attributes.fileSystemNumber.value_or(0), attributes.fileNumber.value_or(0))
        .second;
  };
  const FileAttributes rootAttributes = fileSystem_.attributes(root_.path());
  if (!rootAttributes.isDirectory) {
    return;
  }
  firstVisit(rootAttributes);
  // Depth first with an explicit stack, children pushed in reverse so they pop in name order.
  std::vector<FileURL> pending{root_};
  while (!pending.empty()) {
    const FileURL directory = std::move(pending.back());
    pending.pop_back();
    const auto names = fileSystem_.listDirectory(directory.path());
    std::vector<FileURL> subdirectories;
    for (const auto& name : names) {
      const FileURL entry = directory.appending(name);
      const FileAttributes attributes = fileSystem_.attributes(entry.path());
      if (!attributes.isDirectory) {
        continue;
      }
      if (entry.hasPathExtension("app")) {
        if (auto metadata = metadataReader_.readMetadata(entry)) {
          urlsByBundleIdentifier_[metadata->bundleIdentifier].push_back(entry);
        }
      } else if (firstVisit(attributes)) {
        subdirectories.push_back(entry);
      }
    }
    pending.insert(pending.end(), std::make_move_iterator(subdirectories.rbegin()),
                   std::make_move_iterator(subdirectories.rend()));
  }
}

} // namespace quenby
