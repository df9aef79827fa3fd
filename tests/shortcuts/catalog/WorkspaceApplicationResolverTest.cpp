#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"

#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/DirectoryScanningApplicationLocator.hpp"
#include "support/ApplicationBundleFixture.hpp"
#include "support/CountingFileSystem.hpp"

#include <filesystem>
#include <gtest/gtest.h>

namespace quenby {
namespace {

class CountingPropertyListDecoder final : public PropertyListDecoding {
public:
  [[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t> bytes) const override {
    ++decodes;
    return decoder_.decode(bytes);
  }
  mutable int decodes = 0;

private:
  LibplistPropertyListDecoder decoder_;
};

class WorkspaceApplicationResolverTest : public ::testing::Test {
protected:
  FileURL create(std::string_view path, std::string_view bundleIdentifier) {
    const FileURL url = bundles.createBundle(path, bundleIdentifier, "Editor");
    locator.rescan();
    return url;
  }

  /// Decodes caused by `action`.
  template <typename F> int decodesDuring(F action) {
    const int before = decoder.decodes;
    action();
    return decoder.decodes - before;
  }

  static constexpr const char* kEditor = "com.example.editor";

  ApplicationBundleFixture bundles;
  CountingFileSystem fileSystem;
  CountingPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader{fileSystem, decoder};
  DirectoryScanningApplicationLocator locator{fileSystem, reader, bundles.root()};
  WorkspaceApplicationResolver resolver{locator, reader, fileSystem};
};

TEST_F(WorkspaceApplicationResolverTest, LastKnownCopyWinsAndOtherwiseSeveralCopiesAreAmbiguous) {
  const FileURL installed = create("Applications/Editor.app", kEditor);
  const FileURL backup = create("Backup/Editor.app", kEditor);
  const FileURL impostor = create("Applications/Impostor.app", "com.example.other");

  // Answers come from the catalog only, which knows nothing before its first refresh.
  EXPECT_EQ(resolver.resolve(kEditor, installed), ApplicationResolution::notFound());
  resolver.refreshCatalog(nullptr);

  EXPECT_EQ(resolver.resolve(kEditor, installed), ApplicationResolution::resolved(installed));
  EXPECT_EQ(resolver.resolve(kEditor, backup), ApplicationResolution::resolved(backup));
  // A copy whose Info.plist names another application is not counted, even at the last-known
  // location.
  EXPECT_EQ(resolver.resolve(kEditor, impostor),
            ApplicationResolution::ambiguous({installed, backup}));
  EXPECT_EQ(resolver.resolve(kEditor, bundles.url("Old/Editor.app")),
            ApplicationResolution::ambiguous({installed, backup}));
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.resolve(kEditor, impostor),
            ApplicationResolution::ambiguous({installed, backup}));

  // Identifiers compare exactly.
  EXPECT_EQ(resolver.resolve("com.example.Editor", installed), ApplicationResolution::notFound());
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.resolve("com.example.Editor", installed), ApplicationResolution::notFound());

  // Spotlight's candidates stand in for the locator's for the identifiers it reports.
  const FileURL viewer = bundles.createBundle("Downloads/Viewer.app", "com.example.viewer", "V");
  const FileURL lastKnownViewer = bundles.url("Old/Viewer.app");
  (void)resolver.resolve("com.example.viewer", lastKnownViewer);
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.resolve("com.example.viewer", lastKnownViewer),
            ApplicationResolution::notFound());
  const ApplicationCandidateMap spotlight{{"com.example.viewer", {viewer}}};
  resolver.refreshCatalog(&spotlight);
  EXPECT_EQ(resolver.resolve("com.example.viewer", lastKnownViewer),
            ApplicationResolution::resolved(viewer));
  EXPECT_EQ(resolver.resolve(kEditor, installed), ApplicationResolution::resolved(installed));
}

TEST_F(WorkspaceApplicationResolverTest, MovedCopyResolvesAtItsNewPlaceAndRaisesTheRevisionOnce) {
  const FileURL original = create("Applications/Editor.app", kEditor);
  (void)resolver.resolve(kEditor, original);
  resolver.refreshCatalog(nullptr);
  const std::uint64_t revision = resolver.catalogRevision();

  bundles.move("Applications/Editor.app", "Tools/Editor.app");
  locator.rescan();
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.resolve(kEditor, original),
            ApplicationResolution::resolved(bundles.url("Tools/Editor.app")));
  EXPECT_EQ(resolver.catalogRevision(), revision + 1);
  for (int i = 0; i < 3; ++i) {
    resolver.refreshCatalog(nullptr);
  }
  EXPECT_EQ(resolver.catalogRevision(), revision + 1);

  bundles.remove("Tools/Editor.app");
  locator.rescan();
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.resolve(kEditor, original), ApplicationResolution::notFound());
  EXPECT_EQ(resolver.catalogRevision(), revision + 2);
}

TEST_F(WorkspaceApplicationResolverTest, UnchangedBundlesAreNeverDecodedAgain) {
  const std::vector<std::string> identifiers{"com.example.a", "com.example.b", "com.example.c"};
  for (const auto& identifier : identifiers) {
    (void)resolver.resolve(identifier, create("Applications/" + identifier + ".app", identifier));
  }
  // One read per bundle, although the read adds the icon to what the fingerprint covers.
  EXPECT_EQ(decodesDuring([&] { resolver.refreshCatalog(nullptr); }), 3);
  const std::uint64_t revision = resolver.catalogRevision();
  // A last-known location with nothing there is looked at, never resolved or read.
  (void)resolver.resolve("com.example.a", bundles.url("Gone/a.app"));
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(decodesDuring([&] {
              // Each bundle's four own items and its icon, and the missing bundle's own items
              // plus one look whether it has appeared; nothing else.
              EXPECT_EQ(fileSystem.during([&] {
                for (int i = 0; i < 20; ++i) {
                  resolver.refreshCatalog(nullptr);
                }
              }),
                        (CountingFileSystem::Calls{.attributes = 20 * (3 * 5 + 4 + 1)}));
            }),
            0);
  EXPECT_EQ(resolver.catalogRevision(), revision);
}

TEST_F(WorkspaceApplicationResolverTest, SpotlightOrderAndLinkedPathsLeaveTheCatalogAlone) {
  // Laid out as the system lays out some of its own applications: the bundle deep inside a
  // system volume, a link to it in the applications folder, and the Dock naming the link.
  const FileURL sealed = create("Cryptexes/App/Applications/Editor.app", kEditor);
  const FileURL backup = create("Backup/Editor.app", kEditor);
  const FileURL linked = bundles.url("Applications/Editor.app");
  std::filesystem::create_directories(bundles.root().path() + "/Applications");
  std::filesystem::create_directory_symlink(sealed.path(), linked.path());
  locator.rescan();
  ASSERT_EQ(locator.applicationURLs(kEditor), (std::vector<FileURL>{linked, backup, sealed}));

  const FileURL elsewhere = bundles.url("Old/Editor.app");
  (void)resolver.resolve(kEditor, linked);
  (void)resolver.resolve(kEditor, elsewhere);
  resolver.refreshCatalog(nullptr);
  const std::uint64_t revision = resolver.catalogRevision();
  const auto expectSteady = [&](const std::string& step) {
    EXPECT_EQ(resolver.catalogRevision(), revision) << step;
    EXPECT_EQ(resolver.resolve(kEditor, linked), ApplicationResolution::resolved(linked)) << step;
    EXPECT_EQ(resolver.resolve(kEditor, elsewhere),
              ApplicationResolution::ambiguous({backup, sealed}))
        << step;
  };
  expectSteady("located");

  const std::vector<std::vector<FileURL>> deliveries{
      {sealed, backup}, {backup, sealed}, {linked, backup}, {backup, linked, sealed, backup}};
  EXPECT_EQ(decodesDuring([&] {
              for (const auto& delivery : deliveries) {
                const ApplicationCandidateMap spotlight{{kEditor, delivery}};
                resolver.refreshCatalog(&spotlight);
                expectSteady("Spotlight, " + std::to_string(delivery.size()) + " results");
                resolver.refreshCatalog(nullptr);
                expectSteady("located again");
              }
            }),
            0);
  // Links are resolved when a source's list changes, not at every poll.
  EXPECT_EQ(fileSystem.during([&] { resolver.refreshCatalog(nullptr); }).canonicalPath, 0);

  // With one copy left both sources agree on it, and the Dock's link still resolves to itself.
  bundles.remove("Backup/Editor.app");
  locator.rescan();
  resolver.refreshCatalog(nullptr);
  EXPECT_EQ(resolver.catalogRevision(), revision + 1);
  const ApplicationCandidateMap spotlight{{kEditor, {sealed}}};
  resolver.refreshCatalog(&spotlight);
  EXPECT_EQ(resolver.catalogRevision(), revision + 1);
  EXPECT_EQ(resolver.resolve(kEditor, linked), ApplicationResolution::resolved(linked));
  EXPECT_EQ(resolver.resolve(kEditor, elsewhere), ApplicationResolution::resolved(sealed));
}

TEST_F(WorkspaceApplicationResolverTest, AChangedFileIsReadOnceAndChangesTheCatalog) {
  const FileURL url = create("Applications/Editor.app", kEditor);
  (void)resolver.resolve(kEditor, url);
  resolver.refreshCatalog(nullptr);

  const std::string icon =
      "Applications/Editor.app/Contents/Resources/" + std::string(bundles.kIconFileName);
  const std::vector<std::pair<std::string, std::function<void()>>> changes{
      {"touched Info.plist", [&] { bundles.touch("Applications/Editor.app/Contents/Info.plist"); }},
      {"renamed application",
       [&] {
         bundles.writeInfoPropertyList("Applications/Editor.app",
                                       PropertyListValue::Dictionary{
                                           {"CFBundleIdentifier", kEditor},
                                           {"CFBundleDisplayName", "Editor Pro"},
                                           {"CFBundleIconFile", "AppIcon"},
                                       });
       }},
      {"replaced icon", [&] { bundles.writeFile(icon, "a larger icon"); }},
      {"added asset catalog",
       [&] { bundles.writeFile("Applications/Editor.app/Contents/Resources/Assets.car", "car"); }},
  };
  for (const auto& [name, change] : changes) {
    const std::string before =
        resolver.verifiedApplications(kEditor).at(0).metadata.catalogFingerprint;
    const std::uint64_t revision = resolver.catalogRevision();
    change();
    EXPECT_EQ(decodesDuring([&] { resolver.refreshCatalog(nullptr); }), 1) << name;
    EXPECT_EQ(decodesDuring([&] { resolver.refreshCatalog(nullptr); }), 0) << name;
    EXPECT_EQ(resolver.catalogRevision(), revision + 1) << name;
    EXPECT_NE(resolver.verifiedApplications(kEditor).at(0).metadata.catalogFingerprint, before)
        << name;
  }
  EXPECT_EQ(resolver.verifiedApplications(kEditor).at(0).metadata.displayName, "Editor Pro");
}

} // namespace
} // namespace quenby
