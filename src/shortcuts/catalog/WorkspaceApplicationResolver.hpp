#pragma once

#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"
#include "shortcuts/catalog/ApplicationResolving.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"

#include <set>
#include <unordered_map>

namespace quenby {

/// Finds where mapped applications are installed. `resolve` answers from the catalog of
/// verified copies without touching the disk; `refreshCatalog` re-verifies the copies of every
/// bundle identifier that was asked about, at the locations the locator (or Spotlight) names and
/// at the last-known locations. A bundle whose fingerprint is unchanged is not read again, so a
/// refresh of an unchanged catalog costs only attribute reads.
///
/// Bundle identifiers compare exactly, case included, as Launch Services registers them.
/// Main thread only; `locator` and `metadataReader` must outlive the resolver.
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
                               BundleApplicationMetadataReader& metadataReader)
      : locator_(locator), metadataReader_(metadataReader) {}

  [[nodiscard]] ApplicationResolution resolve(const std::string& bundleIdentifier,
                                              const FileURL& lastKnownURL) override;
  void refreshCatalog(const CandidateMap* spotlightCandidates) override;
  [[nodiscard]] std::uint64_t catalogRevision() const override { return catalogRevision_; }

  /// The verified copies of `bundleIdentifier`, in candidate order.
  [[nodiscard]] const std::vector<CatalogApplication>&
  verifiedApplications(const std::string& bundleIdentifier) const;

private:
  struct CachedInspection {
    ApplicationMetadataSnapshot snapshot;
    /// The refresh that last needed this entry; older entries are dropped.
    std::uint64_t lastUsedRefresh = 0;
  };

  /// Re-verifies one identifier's copies; true when they changed.
  bool refreshBundle(const std::string& bundleIdentifier, const std::set<FileURL>& lastKnownURLs,
                     const CandidateMap* spotlightCandidates);
  /// The inspection of `url`, read again only when its fingerprint changed.
  const CachedInspection& inspection(const FileURL& url);

  const InstalledApplicationLocating& locator_;
  BundleApplicationMetadataReader& metadataReader_;
  std::map<std::string, std::set<FileURL>, std::less<>> trackedLastKnownURLsByBundleIdentifier_;
  std::unordered_map<std::string, std::vector<FileURL>> cachedCandidateURLsByBundleIdentifier_;
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
