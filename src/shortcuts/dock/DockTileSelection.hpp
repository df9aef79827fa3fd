#pragma once

#include "base/FileURL.hpp"
#include "base/PropertyListValue.hpp"
#include "shortcuts/dock/PinnedTile.hpp"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace quenby {

/// Digits 1–9: more pinned applications than this are never read.
inline constexpr std::size_t kMaximumPinnedTiles = 9;

/// A Dock value as text: a string trimmed of Unicode whitespace and newlines; absent for another
/// kind, a missing value or nothing left after trimming. The view points into `value`.
[[nodiscard]] std::optional<std::string_view> dockText(const PropertyListValue* value);

/// A Dock value as a standardised file URL: text starting with "/" is a path, other text must be
/// a "file:" URL string (percent-encoded). Absent for anything else.
[[nodiscard]] std::optional<FileURL> dockFileURL(const PropertyListValue* value);

/// The first nine pinned applications of "persistent-apps", in Dock order: spacers, folders,
/// links, documents, running-only items, the Finder and the Trash take no position. An item
/// without any "tile-data" is kept as an empty tile so that its position reports the problem.
/// `itemsRead` receives how many leading items decided the result: once nine tiles are found,
/// the items after them cannot change it.
[[nodiscard]] std::vector<PinnedTile> selectPinnedTiles(const PropertyListValue::Array& items,
                                                        std::size_t& itemsRead);
[[nodiscard]] std::vector<PinnedTile> selectPinnedTiles(const PropertyListValue::Array& items);

} // namespace quenby
