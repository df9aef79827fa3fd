#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"

#include <algorithm>

namespace quenby {

ApplicationResolution WorkspaceApplicationResolver::resolve(const std::string& bundleIdentifier,
                                                            const FileURL& lastKnownURL) {
  auto tracked = trackedLastKnownURLsByBundleIdentifier_.find(bundleIdentifier);
  if (tracked == trackedLastKnownURLsByBundleIdentifier_.end()) {
    tracked =
        trackedLastKnownURLsByBundleIdentifier_.emplace(bundleIdentifier, LastKnownURLs{}).first;
  }
  const auto& leadsTo = tracked->second.try_emplace(lastKnownURL).first->second;
  const FileURL& lastKnownLocation = leadsTo ? *leadsTo : lastKnownURL;

  const auto& copies = verifiedApplications(bundleIdentifier);
  if (copies.empty()) {
    return ApplicationResolution::notFound();
  }
  // The last-known location wins over every other copy. It keeps the caller's name, so that a
  // Dock item at a link goes on naming the link.
  for (const auto& copy : copies) {
    if (copy.url == lastKnownLocation) {
      return ApplicationResolution::resolved(lastKnownURL);
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
  for (auto& [bundleIdentifier, lastKnownURLs] : trackedLastKnownURLsByBundleIdentifier_) {
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
                                                 LastKnownURLs& lastKnownURLs,
                                                 const CandidateMap* spotlightCandidates) {
  auto& candidates = cachedCandidateURLsByBundleIdentifier_[bundleIdentifier];
  const std::vector<FileURL>* spotlight = nullptr;
  if (spotlightCandidates != nullptr) {
    const auto found = spotlightCandidates->find(bundleIdentifier);
    spotlight = found == spotlightCandidates->end() ? nullptr : &found->second;
  }
  if (spotlight != nullptr) {
    takeCandidates(candidates, *spotlight);
  } else {
    takeCandidates(candidates, locator_.applicationURLs(bundleIdentifier));
  }

  urlsToVerify_.clear();
  for (const auto& url : candidates.canonical) {
    urlsToVerify_.push_back(&url);
  }
  for (auto& [url, leadsTo] : lastKnownURLs) {
    // Resolved once. A location that led nowhere is tried again once something is there, which
    // a poll can tell from its attributes alone.
    if (!leadsTo && fileSystem_.attributes(url.path()).exists) {
      leadsTo = canonicalURL(url);
    }
    urlsToVerify_.push_back(leadsTo ? &*leadsTo : &url);
  }
  // Sorted, so that the same copies found in another order are the same catalog.
  std::sort(urlsToVerify_.begin(), urlsToVerify_.end(),
            [](const FileURL* a, const FileURL* b) { return *a < *b; });
  urlsToVerify_.erase(std::unique(urlsToVerify_.begin(), urlsToVerify_.end(),
                                  [](const FileURL* a, const FileURL* b) { return *a == *b; }),
                      urlsToVerify_.end());

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

void WorkspaceApplicationResolver::takeCandidates(CandidateURLs& candidates,
                                                  const std::vector<FileURL>& reported) const {
  if (candidates.reported == reported) {
    return;
  }
  candidates.reported = reported;
  candidates.canonical.clear();
  for (const auto& url : reported) {
    // A location that leads nowhere stays as reported: verification turns it down.
    candidates.canonical.push_back(canonicalURL(url).value_or(url));
  }
  std::sort(candidates.canonical.begin(), candidates.canonical.end());
  candidates.canonical.erase(std::unique(candidates.canonical.begin(), candidates.canonical.end()),
                             candidates.canonical.end());
}

std::optional<FileURL> WorkspaceApplicationResolver::canonicalURL(const FileURL& url) const {
  auto path = fileSystem_.canonicalPath(url.path());
  if (!path) {
    return std::nullopt;
  }
  return FileURL::fromPath(*path);
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
