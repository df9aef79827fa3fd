#pragma once

#include "shortcuts/mapping/NumberMappingEntry.hpp"

#include <array>
#include <cassert>

namespace quenby {

/// The nine Dock positions, addressed 1–9. Always complete: a position nobody set is empty.
class NumberMappingEntries {
public:
  static constexpr int kFirstPosition = 1;
  static constexpr int kLastPosition = 9;

  [[nodiscard]] static bool isPosition(int position) {
    return position >= kFirstPosition && position <= kLastPosition;
  }

  [[nodiscard]] const NumberMappingEntry& at(int position) const {
    assert(isPosition(position));
    return entries_[static_cast<std::size_t>(position - kFirstPosition)];
  }
  void set(int position, NumberMappingEntry entry) {
    assert(isPosition(position));
    entries_[static_cast<std::size_t>(position - kFirstPosition)] = std::move(entry);
  }

  friend bool operator==(const NumberMappingEntries&, const NumberMappingEntries&) = default;

private:
  std::array<NumberMappingEntry, kLastPosition> entries_;
};

} // namespace quenby
