#pragma once

#include "data/usage/UsageCategory.hpp"

#include <array>
#include <cstdint>
#include <limits>

namespace quenby {

/// One count per category.
struct UsageTotals {
  std::array<std::int64_t, kUsageCategories.size()> counts{};

  [[nodiscard]] std::int64_t operator[](UsageCategory category) const {
    return counts[static_cast<std::size_t>(category)];
  }
  /// Adds one; a count that has reached the largest integer stays there rather than wrapping.
  void increment(UsageCategory category) {
    auto& count = counts[static_cast<std::size_t>(category)];
    if (count < std::numeric_limits<std::int64_t>::max()) {
      ++count;
    }
  }
  [[nodiscard]] bool isEmpty() const { return counts == decltype(counts){}; }

  friend bool operator==(const UsageTotals&, const UsageTotals&) = default;
};

} // namespace quenby
