// The catalog refresh runs every half second for the whole session; with nothing changed it must
// cost the attribute reads of the tracked bundles' fingerprints and little more.
// BM_CatalogRefreshStatBaseline is those reads alone, on the same files, the baseline the
// refresh is measured against.

#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "simulation/LibplistPropertyListEncoder.hpp"
#include "simulation/TemporaryDirectory.hpp"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <sys/stat.h>

namespace quenby {
namespace {

/// The locator answers from memory, so that the benchmark measures the catalog, not a registry.
class InMemoryApplicationLocator final : public InstalledApplicationLocating {
public:
  [[nodiscard]] std::vector<FileURL>
  applicationURLs(const std::string& bundleIdentifier) const override {
    const auto found = urls.find(bundleIdentifier);
    return found == urls.end() ? std::vector<FileURL>{} : found->second;
  }
  std::map<std::string, std::vector<FileURL>, std::less<>> urls;
};

void writeFile(const std::filesystem::path& path, std::string_view contents) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary).write(contents.data(), std::ssize(contents));
}

/// A folder of applications as installed ones look: an Info.plist naming an icon file, the icon
/// and an asset catalog in the resources.
struct ApplicationTree {
  explicit ApplicationTree(int count) {
    for (int i = 0; i < count; ++i) {
      const std::string identifier = "com.example.application" + std::to_string(i);
      const FileURL bundle = FileURL::fromPath(directory.path() + "/Applications/Application " +
                                               std::to_string(i) + ".app");
      const auto info = LibplistPropertyListEncoder::encodeBinary(PropertyListValue::Dictionary{
          {"CFBundleIdentifier", identifier},
          {"CFBundleName", "Application " + std::to_string(i)},
          {"CFBundleIconFile", "AppIcon"},
          {"CFBundleShortVersionString", "1.0"},
      });
      const std::string contents = bundle.path() + "/Contents";
      writeFile(contents + "/Info.plist",
                std::string_view(reinterpret_cast<const char*>(info.data()), info.size()));
      writeFile(contents + "/Resources/AppIcon.icns", std::string(4096, 'i'));
      writeFile(contents + "/Resources/Assets.car", std::string(8192, 'a'));
      applications.emplace_back(identifier, bundle);
      for (const char* item :
           {"", "/Contents/Resources", "/Contents/Info.plist", "/Contents/Resources/Assets.car",
            "/Contents/Resources/AppIcon.icns"}) {
        fingerprintPaths.push_back(bundle.path() + item);
      }
    }
  }

  TemporaryDirectory directory{"quenby-bench-catalog-"};
  std::vector<std::pair<std::string, FileURL>> applications;
  std::vector<std::string> fingerprintPaths;
};

void BM_CatalogRefreshUnchanged(benchmark::State& state) {
  const ApplicationTree tree(static_cast<int>(state.range(0)));
  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader(fileSystem, decoder);
  InMemoryApplicationLocator locator;
  for (const auto& [identifier, url] : tree.applications) {
    locator.urls[identifier].push_back(url);
  }
  WorkspaceApplicationResolver resolver(locator, reader, fileSystem);
  for (const auto& [identifier, url] : tree.applications) {
    (void)resolver.resolve(identifier, url);
  }
  resolver.refreshCatalog(nullptr);
  const std::uint64_t revision = resolver.catalogRevision();

  for (auto _ : state) {
    resolver.refreshCatalog(nullptr);
  }

  if (resolver.catalogRevision() != revision ||
      !resolver.resolve(tree.applications.front().first, tree.applications.front().second)
           .isResolved()) {
    state.SkipWithError("the catalog changed while nothing on disk did");
  }
}
BENCHMARK(BM_CatalogRefreshUnchanged)->Arg(35);

void BM_CatalogRefreshStatBaseline(benchmark::State& state) {
  const ApplicationTree tree(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (const auto& path : tree.fingerprintPaths) {
      struct stat info {};
      benchmark::DoNotOptimize(::stat(path.c_str(), &info));
      benchmark::DoNotOptimize(info);
    }
  }
}
BENCHMARK(BM_CatalogRefreshStatBaseline)->Arg(35);

} // namespace
} // namespace quenby
