#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/mapping/NumberMappingEntries.hpp"

#include <cstdint>
#include <map>

namespace quenby {

/// Everything the shortcut consumers need at one instant: the nine Dock positions and the
/// assigned letters.
struct KeyboardMappingSnapshot {
  /// The mapping store's own revision.
  std::uint64_t revision = 0;
  /// The catalog revision the letter resolutions were computed against.
  std::uint64_t applicationCatalogRevision = 0;
  NumberMappingEntries numberEntries;
  /// Only letters ('A'–'Z') that have a mapping; each mapping's source is that letter.
  std::map<char, AppMapping> letterMappings;

  /// Calls `visit` with every mapping: the Dock's in position order, then the letters'.
  template <typename Visitor> void forEachMapping(Visitor&& visit) const {
    for (int position = NumberMappingEntries::kFirstPosition;
         position <= NumberMappingEntries::kLastPosition; ++position) {
      if (const AppMapping* mapping = numberEntries.at(position).mapping()) {
        visit(*mapping);
      }
    }
    for (const auto& [letter, mapping] : letterMappings) {
      visit(mapping);
    }
  }

  friend bool operator==(const KeyboardMappingSnapshot&, const KeyboardMappingSnapshot&) = default;
};

} // namespace quenby
