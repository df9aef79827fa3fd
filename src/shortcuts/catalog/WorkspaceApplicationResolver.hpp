#pragma once

#include "base/FileSystem.hpp"
#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"
#include "shortcuts/catalog/ApplicationResolving.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"

#include <optional>
#include <unordered_map>

namespace quenby {

/// Finds where mapped applications are installed. `resolve` answers from the catalog of
/// verified copies without touching the disk; `refreshCatalog` re-verifies the copies of every
/// bundle identifier that was asked about, at the locations the locator (or Spotlight) names and
/// at the last-known locations. A bundle whose fingerprint is unchanged is not read again, so a
/// refresh of an unchanged catalog costs only attribute reads.
///
/// Locations are compared as the file system names them, symbolic links resolved, and as sets:
/// Spotlight reports results in no fixed order and names some applications at the place a link
/// leads to, where Launch Services or the Dock name the link. A source's list is resolved again
/// only when it differs from what that identifier's source said last time.
///
/// Bundle identifiers compare exactly, case included, as Launch Services registers them.
/// Main thread only; `locator`, `metadataReader` and `fileSystem` must outlive the resolver.
class WorkspaceApplicationResolver final : public ApplicationResolving,
                                           public ApplicationCatalogRefreshing {
public:
  /// One verified installed copy.
  struct CatalogApplication {
    FileURL url;
    ApplicationMetadata metadata;
    friend bool operator==(const CatalogApplication&, const CatalogApplication&) = default;
  };

  WorkspaceApplicationResolver(const InstalledApplicationLocating& locator,
                               BundleApplicationMetadataReader& metadataReader,
                               const FileSystem& fileSystem)
      : locator_(locator), metadataReader_(metadataReader), fileSystem_(fileSystem) {}

  /// A last-known location that leads to a verified copy, directly or through links, wins and
  /// is answered under the caller's name for it; other answers name copies as resolved.
  [[nodiscard]] ApplicationResolution resolve(const std::string& bundleIdentifier,
                                              const FileURL& lastKnownURL) override;
  void refreshCatalog(const CandidateMap* spotlightCandidates) override;
  [[nodiscard]] std::uint64_t catalogRevision() const override { return catalogRevision_; }

  /// The verified copies of `bundleIdentifier`, ordered by location.
  [[nodiscard]] const std::vector<CatalogApplication>&
  verifiedApplications(const std::string& bundleIdentifier) const;

private:
  struct CachedInspection {
    ApplicationMetadataSnapshot snapshot;
    /// The refresh that last needed this entry; older entries are dropped.
    std::uint64_t lastUsedRefresh = 0;
  };

  /// A source's candidates for one identifier: as reported, and resolved, sorted, de-duplicated.
  struct CandidateURLs {
    std::vector<FileURL> reported;
    std::vector<FileURL> canonical;
  };
  /// Each last-known location, with where it leads once that could be resolved.
  using LastKnownURLs = std::map<FileURL, std::optional<FileURL>>;

  /// Re-verifies one identifier's copies; true when they changed.
  bool refreshBundle(const std::string& bundleIdentifier, LastKnownURLs& lastKnownURLs,
                     const CandidateMap* spotlightCandidates);
  /// Takes `reported` as the identifier's candidates, resolving them only when they differ from
  /// the list taken last time.
  void takeCandidates(CandidateURLs& candidates, const std::vector<FileURL>& reported) const;
  /// Where `url` leads, or absent when it leads nowhere.
  [[nodiscard]] std::optional<FileURL> canonicalURL(const FileURL& url) const;
  /// The inspection of `url`, read again only when its fingerprint changed.
  const CachedInspection& inspection(const FileURL& url);

  const InstalledApplicationLocating& locator_;
  BundleApplicationMetadataReader& metadataReader_;
  const FileSystem& fileSystem_;
  std::map<std::string, LastKnownURLs, std::less<>> trackedLastKnownURLsByBundleIdentifier_;
  std::unordered_map<std::string, CandidateURLs> cachedCandidateURLsByBundleIdentifier_;
  std::unordered_map<std::string, std::vector<CatalogApplication>>
      cachedApplicationsByBundleIdentifier_;
  std::unordered_map<FileURL, CachedInspection> cachedInspectionsByURL_;
  std::uint64_t catalogRevision_ = 0;
  std::uint64_t refreshCount_ = 0;
  // Scratch space kept between refreshes so that an unchanged refresh allocates nothing.
  std::vector<const FileURL*> urlsToVerify_;
  std::vector<std::pair<const FileURL*, const ApplicationMetadata*>> verified_;
};

} // namespace quenby
