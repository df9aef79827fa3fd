#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"

#include <algorithm>

namespace quenby {

ApplicationResolution WorkspaceApplicationResolver::resolve(const std::string& bundleIdentifier,
                                                            const FileURL& lastKnownURL) {
  auto tracked = trackedLastKnownURLsByBundleIdentifier_.find(bundleIdentifier);
  if (tracked == trackedLastKnownURLsByBundleIdentifier_.end()) {
    tracked = trackedLastKnownURLsByBundleIdentifier_.emplace(bundleIdentifier, std::set<FileURL>{})
                  .first;
  }
  tracked->second.insert(lastKnownURL);

  const auto& copies = verifiedApplications(bundleIdentifier);
  if (copies.empty()) {
    return ApplicationResolution::notFound();
  }
  // The last-known location wins over every other copy.
  for (const auto& copy : copies) {
    if (copy.url == lastKnownURL) {
      return ApplicationResolution::resolved(copy.url);
    }
  }
  if (copies.size() == 1) {
    return ApplicationResolution::resolved(copies.front().url);
  }
  std::vector<FileURL> candidates;
  candidates.reserve(copies.size());
  for (const auto& copy : copies) {
    candidates.push_back(copy.url);
  }
  return ApplicationResolution::ambiguous(std::move(candidates));
}

void WorkspaceApplicationResolver::refreshCatalog(const CandidateMap* spotlightCandidates) {
  ++refreshCount_;
  bool changed = false;
  for (const auto& [bundleIdentifier, lastKnownURLs] : trackedLastKnownURLsByBundleIdentifier_) {
    changed = refreshBundle(bundleIdentifier, lastKnownURLs, spotlightCandidates) || changed;
  }
  std::erase_if(cachedInspectionsByURL_, [this](const auto& entry) {
    return entry.second.lastUsedRefresh != refreshCount_;
  });
  if (changed) {
    ++catalogRevision_;
  }
}

const std::vector<WorkspaceApplicationResolver::CatalogApplication>&
WorkspaceApplicationResolver::verifiedApplications(const std::string& bundleIdentifier) const {
  static const std::vector<CatalogApplication> none;
  const auto found = cachedApplicationsByBundleIdentifier_.find(bundleIdentifier);
  return found == cachedApplicationsByBundleIdentifier_.end() ? none : found->second;
}

bool WorkspaceApplicationResolver::refreshBundle(const std::string& bundleIdentifier,
                                                 const std::set<FileURL>& lastKnownURLs,
                                                 const CandidateMap* spotlightCandidates) {
  auto& candidates = cachedCandidateURLsByBundleIdentifier_[bundleIdentifier];
  const std::vector<FileURL>* spotlight = nullptr;
  if (spotlightCandidates != nullptr) {
    const auto found = spotlightCandidates->find(bundleIdentifier);
    spotlight = found == spotlightCandidates->end() ? nullptr : &found->second;
  }
  if (spotlight != nullptr) {
    if (candidates != *spotlight) {
      candidates = *spotlight;
    }
  } else if (auto located = locator_.applicationURLs(bundleIdentifier); located != candidates) {
    candidates = std::move(located);
  }

  urlsToVerify_.clear();
  const auto addOnce = [this](const FileURL& url) {
    if (std::none_of(urlsToVerify_.begin(), urlsToVerify_.end(),
                     [&url](const FileURL* added) { return *added == url; })) {
      urlsToVerify_.push_back(&url);
    }
  };
  for (const auto& url : candidates) {
    addOnce(url);
  }
  for (const auto& url : lastKnownURLs) {
    addOnce(url);
  }

  verified_.clear();
  for (const FileURL* url : urlsToVerify_) {
    const auto& metadata = inspection(*url).snapshot.metadata;
    if (metadata && metadata->bundleIdentifier == bundleIdentifier) {
      verified_.emplace_back(url, &*metadata);
    }
  }

  auto& cached = cachedApplicationsByBundleIdentifier_[bundleIdentifier];
  const bool unchanged =
      std::equal(cached.begin(), cached.end(), verified_.begin(), verified_.end(),
                 [](const CatalogApplication& application, const auto& copy) {
                   return application.url == *copy.first && application.metadata == *copy.second;
                 });
  if (unchanged) {
    return false;
  }
  std::vector<CatalogApplication> applications;
  applications.reserve(verified_.size());
  for (const auto& [url, metadata] : verified_) {
    applications.push_back({*url, *metadata});
  }
  cached = std::move(applications);
  return true;
}

const WorkspaceApplicationResolver::CachedInspection&
WorkspaceApplicationResolver::inspection(const FileURL& url) {
  const auto found = cachedInspectionsByURL_.find(url);
  if (found != cachedInspectionsByURL_.end()) {
    CachedInspection& cached = found->second;
    // Another identifier's pass may have checked this location already in this refresh.
    if (cached.lastUsedRefresh == refreshCount_ ||
        metadataReader_.isCurrent(url, cached.snapshot.fingerprint)) {
      cached.lastUsedRefresh = refreshCount_;
      return cached;
    }
    cached = {metadataReader_.readSnapshot(url), refreshCount_};
    return cached;
  }
  return cachedInspectionsByURL_
      .emplace(url, CachedInspection{metadataReader_.readSnapshot(url), refreshCount_})
      .first->second;
}

} // namespace quenby
