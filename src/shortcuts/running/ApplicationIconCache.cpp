#include "shortcuts/running/ApplicationIconCache.hpp"

#include <utility>
#include <vector>

namespace quenby {
namespace {

// The resolved URLs of the snapshot's mappings, each once, Dock positions first and then the
// letters, which is the order their icons load in.
std::vector<FileURL> resolvedURLs(const KeyboardMappingSnapshot& snapshot) {
  std::vector<FileURL> urls;
  std::unordered_set<FileURL> seen;
  const auto add = [&](const AppMapping& mapping) {
    if (const FileURL* url = mapping.resolution.resolvedURLIfAny();
        url && seen.insert(*url).second) {
      urls.push_back(*url);
    }
  };
  snapshot.forEachMapping(add);
  return urls;
}

} // namespace

void ApplicationIconCache::update(const KeyboardMappingSnapshot& snapshot) {
  if (loadedRevision_ == snapshot.revision &&
      loadedApplicationCatalogRevision_ == snapshot.applicationCatalogRevision) {
    return;
  }
  if (loadedApplicationCatalogRevision_ != snapshot.applicationCatalogRevision) {
    // The load in flight keeps its place in `currentWork_`, but without its token its result is
    // discarded and the URL is loaded again.
    images_.clear();
    tokens_.clear();
    pendingURLs_.clear();
    pendingURLSet_.clear();
  }
  loadedRevision_ = snapshot.revision;
  loadedApplicationCatalogRevision_ = snapshot.applicationCatalogRevision;

  const std::vector<FileURL> urls = resolvedURLs(snapshot);
  activeURLs_ = std::unordered_set<FileURL>(urls.begin(), urls.end());
  std::erase_if(images_, [this](const auto& entry) { return !activeURLs_.contains(entry.first); });
  std::erase_if(tokens_, [this](const auto& entry) { return !activeURLs_.contains(entry.first); });
  std::erase_if(pendingURLs_, [this](const FileURL& url) { return !activeURLs_.contains(url); });
  std::erase_if(pendingURLSet_, [this](const FileURL& url) { return !activeURLs_.contains(url); });

  for (const FileURL& url : urls) {
    // A URL with a token is loading; one whose earlier load was dropped has none and queues
    // again behind it.
    if (!images_.contains(url) && !tokens_.contains(url) && pendingURLSet_.insert(url).second) {
      pendingURLs_.push_back(url);
    }
  }
  startNextWork();
}

std::shared_ptr<const PreparedApplicationIcon>
ApplicationIconCache::icon(const AppMapping& mapping) const {
  const FileURL* url = mapping.resolution.resolvedURLIfAny();
  if (url == nullptr) {
    return nullptr;
  }
  // `images_` holds active URLs only: `update` drops the others.
  const auto found = images_.find(*url);
  return found == images_.end() ? nullptr : found->second;
}

void ApplicationIconCache::startNextWork() {
  if (currentWork_ || pendingURLs_.empty()) {
    return;
  }
  FileURL url = std::move(pendingURLs_.front());
  pendingURLs_.pop_front();
  pendingURLSet_.erase(url);
  const std::uint64_t token = nextToken_++;
  tokens_.insert_or_assign(url, token);
  currentWork_ = Work{url, token};
  scheduler_.schedule([loader = loader_, url] { return loader->loadIcon(url); },
                      guard_.weak([this, url, token](std::optional<PreparedApplicationIcon> icon) {
                        workFinished(url, token, std::move(icon));
                      }));
}

void ApplicationIconCache::workFinished(const FileURL& url, std::uint64_t token,
                                        std::optional<PreparedApplicationIcon> icon) {
  if (!currentWork_ || currentWork_->token != token) {
    return;
  }
  currentWork_.reset();
  bool arrived = false;
  if (const auto found = tokens_.find(url); found != tokens_.end() && found->second == token) {
    tokens_.erase(found);
    // A bundle without a readable icon is tried again with the next snapshot.
    if (icon) {
      images_.insert_or_assign(url,
                               std::make_shared<const PreparedApplicationIcon>(std::move(*icon)));
      arrived = true;
    }
  }
  startNextWork();
  // Last, so that an observer which updates the cache finds it consistent.
  if (arrived) {
    iconObservers_.notify();
  }
}

} // namespace quenby
