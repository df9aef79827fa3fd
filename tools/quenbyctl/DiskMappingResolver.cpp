#include "quenbyctl/DiskMappingResolver.hpp"

#include "base/DistributedNotificationObserving.hpp"
#include "base/ManualScheduler.hpp"
#include "shortcuts/catalog/DirectoryScanningApplicationLocator.hpp"
#include "shortcuts/dock/DockNumberMappingProvider.hpp"

namespace quenby {
namespace {

std::unique_ptr<InstalledApplicationLocating>
makeLocator(const FileSystem& fileSystem, BundleApplicationMetadataReader& metadataReader,
            const std::optional<FileURL>& root) {
  if (root) {
    return std::make_unique<DirectoryScanningApplicationLocator>(fileSystem, metadataReader, *root);
  }
  return std::make_unique<InertInstalledApplicationLocator>();
}

} // namespace

DiskMappingResolver::DiskMappingResolver(std::optional<FileURL> root)
    : root_(std::move(root)), metadataReader_(fileSystem_, decoder_),
      locator_(makeLocator(fileSystem_, metadataReader_, root_)),
      resolver_(*locator_, metadataReader_, fileSystem_) {}

std::optional<std::string> DiskMappingResolver::loadDock(const std::string& path) {
  dock_ = std::make_unique<PropertyListFileDockPreferences>(fileSystem_, decoder_, path, root_);
  if (dock_->synchronize()) {
    return std::nullopt;
  }
  auto failure = dock_->lastFailure().value_or(path);
  dock_.reset();
  return failure;
}

KeyboardMappingSnapshot
DiskMappingResolver::resolve(const std::vector<LetterMappingRecord>& letters) {
  KeyboardMappingSnapshot snapshot;
  std::optional<SystemDockPreferenceReader> reader;
  ManualScheduler scheduler;
  InertDistributedNotificationCenter notificationCenter;
  EnglishLocalizer localizer;
  std::optional<DockNumberMappingProvider> provider;
  if (dock_) {
    reader.emplace(dock_->makeReader());
    provider.emplace(*reader, resolver_, scheduler, notificationCenter, nullptr, localizer);
  }
  // The resolver answers from its catalog, which only learns of an application once asked
  // about it: ask, verify what was asked about, then ask again.
  if (provider) {
    provider->reload(true);
  }
  (void)resolveLetters(letters);
  resolver_.refreshCatalog(nullptr);
  if (provider) {
    provider->reload(true);
    snapshot.numberEntries = provider->current().entries;
  }
  snapshot.letterMappings = resolveLetters(letters);
  return snapshot;
}

std::map<char, AppMapping>
DiskMappingResolver::resolveLetters(const std::vector<LetterMappingRecord>& letters) {
  std::map<char, AppMapping> mappings;
  for (const auto& record : letters) {
    const FileURL location =
        root_ ? root_->appending(record.lastKnownURL.path()) : record.lastKnownURL;
    mappings.insert_or_assign(
        record.letter, AppMapping{
                           .displayName = record.displayName,
                           .bundleIdentifier = record.bundleIdentifier,
                           .lastKnownURL = location,
                           .resolution = resolver_.resolve(record.bundleIdentifier, location),
                           .source = MappingSource::letter(record.letter),
                       });
  }
  return mappings;
}

} // namespace quenby
