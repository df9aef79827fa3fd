#pragma once

#include "base/FileURL.hpp"

#include <optional>
#include <string>

namespace quenby {

/// One eligible pinned application of the Dock, as the Dock itself describes it.
struct PinnedTile {
  /// The Dock's own label of the item.
  std::optional<std::string> label;
  /// As the Dock wrote it, case included.
  std::optional<std::string> bundleIdentifier;
  std::optional<FileURL> url;

  friend bool operator==(const PinnedTile&, const PinnedTile&) = default;
};

} // namespace quenby
