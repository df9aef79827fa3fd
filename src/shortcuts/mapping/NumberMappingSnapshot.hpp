#pragma once

#include "base/Localizer.hpp"
#include "shortcuts/mapping/NumberMappingEntries.hpp"

#include <cstdint>

namespace quenby {

inline constexpr LocalizedText kDockNotLoadedText{
    "diagnostic.dock.not-loaded", "Dock mappings have not loaded yet.",
    "Temporary startup state while reading the macOS Dock."};

/// The Dock positions as last published. `revision` rises by exactly one with every publication
/// whose entries differ from the previous ones.
struct NumberMappingSnapshot {
  std::uint64_t revision = 0;
  NumberMappingEntries entries;

  /// Revision 0, every position "not loaded yet": what the provider holds before its first read.
  [[nodiscard]] static NumberMappingSnapshot placeholder(const Localizer& localizer);

  friend bool operator==(const NumberMappingSnapshot&, const NumberMappingSnapshot&) = default;
};

} // namespace quenby
