#pragma once

#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"

#include <functional>

namespace quenby {

/// Counts refreshes and whether Spotlight candidates came with them; `onRefresh`, when set, lets
/// the test change what the resolver answers afterwards.
class CountingCatalogRefresher final : public ApplicationCatalogRefreshing {
public:
  void refreshCatalog(const CandidateMap* spotlightCandidates) override {
    ++refreshCount;
    withSpotlightCandidates = withSpotlightCandidates || spotlightCandidates != nullptr;
    if (onRefresh) {
      onRefresh();
    }
  }
  [[nodiscard]] std::uint64_t catalogRevision() const override { return refreshCount; }

  std::uint64_t refreshCount = 0;
  bool withSpotlightCandidates = false;
  std::function<void()> onRefresh;
};

} // namespace quenby
