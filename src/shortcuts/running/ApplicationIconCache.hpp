#pragma once

#include "base/FileURL.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/ObserverList.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/running/ApplicationIconLoading.hpp"
#include "shortcuts/running/ApplicationIconProviding.hpp"
#include "shortcuts/running/ApplicationIconWorkScheduling.hpp"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace quenby {

/// The icons of the currently mapped applications, keyed by bundle location and loaded one at a
/// time through `scheduler`. It holds only the icons of the current mappings, so it needs no
/// eviction; a change of the application catalog drops them all, since a bundle may have changed
/// its icon. Every load carries a token: a result whose URL was dropped or queued again in the
/// meantime changes nothing.
///
/// Main thread only. `scheduler` must outlive the cache; the loader is shared with the work in
/// flight, which may finish after the cache is gone.
class ApplicationIconCache final : public ApplicationIconProviding {
public:
  ApplicationIconCache(std::shared_ptr<const ApplicationIconLoading> loader,
                       ApplicationIconWorkScheduling& scheduler)
      : loader_(std::move(loader)), scheduler_(scheduler) {}
  ApplicationIconCache(const ApplicationIconCache&) = delete;
  ApplicationIconCache& operator=(const ApplicationIconCache&) = delete;

  /// Brings the cache in line with `snapshot`; an already applied snapshot costs a comparison.
  void update(const KeyboardMappingSnapshot& snapshot);
  /// Starts loading every mapped application's icon at launch.
  void preload(const KeyboardMappingSnapshot& snapshot) { update(snapshot); }

  [[nodiscard]] std::shared_ptr<const PreparedApplicationIcon>
  icon(const AppMapping& mapping) const override;
  [[nodiscard]] ObservationToken observeIcons(std::function<void()> handler) override {
    return iconObservers_.add(std::move(handler));
  }

private:
  struct Work {
    FileURL url;
    std::uint64_t token = 0;
  };

  /// Makes the snapshot's resolved URLs the active ones and drops what belongs to no other.
  void activate(const KeyboardMappingSnapshot& snapshot);
  void startNextWork();
  void workFinished(const FileURL& url, std::uint64_t token,
                    std::optional<PreparedApplicationIcon> icon);

  std::shared_ptr<const ApplicationIconLoading> loader_;
  ApplicationIconWorkScheduling& scheduler_;
  std::optional<std::uint64_t> loadedRevision_;
  std::optional<std::uint64_t> loadedApplicationCatalogRevision_;
  std::unordered_set<FileURL> activeURLs_;
  std::unordered_map<FileURL, std::shared_ptr<const PreparedApplicationIcon>> images_;
  /// The token of each URL's current load, from when it starts until its result is taken; a
  /// URL that is dropped loses its token, so its result is discarded.
  std::unordered_map<FileURL, std::uint64_t> tokens_;
  std::deque<FileURL> pendingURLs_;
  std::unordered_set<FileURL> pendingURLSet_;
  /// The one load in flight. It stays here until its result arrives even when its URL was
  /// dropped, so loads never overlap.
  std::optional<Work> currentWork_;
  std::uint64_t nextToken_ = 0;
  ObserverList<> iconObservers_;
  LifetimeGuard guard_;
};

} // namespace quenby
