#include "shortcuts/dock/DockTileSelection.hpp"

#include <algorithm>
#include <array>

namespace quenby {
namespace {

/// Length of the whitespace or newline character that starts `text`, 0 if it starts with
/// something else. Covers the Unicode space separators, line and paragraph separators, the
/// ASCII controls 9–13 and NEL, which is what the Dock's own trimming removes.
std::size_t leadingWhitespaceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  if (text.empty()) {
    return 0;
  }
  const unsigned char first = byte(0);
  if (first == ' ' || (first >= 0x09 && first <= 0x0D)) {
    return 1;
  }
  if (first == 0xC2 && text.size() >= 2) {
    return byte(1) == 0x85 || byte(1) == 0xA0 ? 2 : 0;
  }
  if (text.size() < 3) {
    return 0;
  }
  const unsigned char second = byte(1);
  const unsigned char third = byte(2);
  if (first == 0xE1) {
    return second == 0x9A && third == 0x80 ? 3 : 0; // U+1680
  }
  if (first == 0xE2 && second == 0x80) {
    // U+2000–U+200A, U+2028, U+2029, U+202F
    return (third >= 0x80 && third <= 0x8A) || third == 0xA8 || third == 0xA9 || third == 0xAF ? 3
                                                                                               : 0;
  }
  if (first == 0xE2 && second == 0x81) {
    return third == 0x9F ? 3 : 0; // U+205F
  }
  if (first == 0xE3) {
    return second == 0x80 && third == 0x80 ? 3 : 0; // U+3000
  }
  return 0;
}

/// Length of the whitespace or newline character that ends `text`, 0 if none.
std::size_t trailingWhitespaceLength(std::string_view text) {
  // A UTF-8 character is at most four bytes; try each start that could end exactly at the end.
  for (std::size_t length = 1; length <= std::min<std::size_t>(3, text.size()); ++length) {
    const std::string_view tail = text.substr(text.size() - length);
    if (leadingWhitespaceLength(tail) == length) {
      return length;
    }
  }
  return 0;
}

std::string_view trimmed(std::string_view text) {
  while (const std::size_t length = leadingWhitespaceLength(text)) {
    text.remove_prefix(length);
  }
  while (const std::size_t length = trailingWhitespaceLength(text)) {
    text.remove_suffix(length);
  }
  return text;
}

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalsLowered(std::string_view text, std::string_view lowercase) {
  return text.size() == lowercase.size() &&
         std::equal(text.begin(), text.end(), lowercase.begin(),
                    [](char a, char b) { return lowered(a) == b; });
}

bool endsWithLowered(std::string_view text, std::string_view lowercase) {
  return text.size() >= lowercase.size() &&
         equalsLowered(text.substr(text.size() - lowercase.size()), lowercase);
}

/// Booleans and numbers, as the Dock writes "is-running-only" either way.
bool isTrue(const PropertyListValue* value) {
  if (value == nullptr) {
    return false;
  }
  if (const bool* flag = value->boolean()) {
    return *flag;
  }
  if (const std::int64_t* number = value->integer()) {
    return *number != 0;
  }
  if (const double* number = value->real()) {
    return *number != 0;
  }
  return false;
}

const PropertyListValue* dictionaryValue(const PropertyListValue* container, std::string_view key) {
  const PropertyListValue* value = container ? container->find(key) : nullptr;
  return value && value->dictionary() ? value : nullptr;
}

bool isFinderOrTrash(const std::optional<std::string_view>& bundleIdentifier,
                     const std::optional<FileURL>& url) {
  if (bundleIdentifier && (equalsLowered(*bundleIdentifier, "com.apple.finder") ||
                           equalsLowered(*bundleIdentifier, "com.apple.trash"))) {
    return true;
  }
  return url && (endsWithLowered(url->path(), "/system/library/coreservices/finder.app") ||
                 endsWithLowered(url->path(), "/system/library/coreservices/trash.app"));
}

} // namespace

std::optional<std::string_view> dockText(const PropertyListValue* value) {
  const std::string* text = value ? value->string() : nullptr;
  if (text == nullptr) {
    return std::nullopt;
  }
  const std::string_view result = trimmed(*text);
  if (result.empty()) {
    return std::nullopt;
  }
  return result;
}

std::optional<FileURL> dockFileURL(const PropertyListValue* value) {
  const auto text = dockText(value);
  if (!text) {
    return std::nullopt;
  }
  if (text->front() == '/') {
    return FileURL::fromPath(*text);
  }
  return FileURL::fromString(*text);
}

std::vector<PinnedTile> selectPinnedTiles(const PropertyListValue::Array& items) {
  std::size_t itemsRead = 0;
  return selectPinnedTiles(items, itemsRead);
}

std::vector<PinnedTile> selectPinnedTiles(const PropertyListValue::Array& items,
                                          std::size_t& itemsRead) {
  std::vector<PinnedTile> tiles;
  itemsRead = 0;
  for (const auto& item : items) {
    if (tiles.size() == kMaximumPinnedTiles) {
      break;
    }
    ++itemsRead;
    const auto tileType = dockText(item.find("tile-type"));
    if (!tileType || !equalsLowered(*tileType, "file-tile")) {
      continue;
    }
    const PropertyListValue* tileData = dictionaryValue(&item, "tile-data");
    if (isTrue(item.find("is-running-only")) ||
        (tileData && isTrue(tileData->find("is-running-only")))) {
      continue;
    }
    const PropertyListValue* fileData = dictionaryValue(tileData, "file-data");
    auto bundleIdentifier = dockText(tileData ? tileData->find("bundle-identifier") : nullptr);
    if (!bundleIdentifier) {
      bundleIdentifier = dockText(fileData ? fileData->find("bundle-identifier") : nullptr);
    }
    auto url = dockFileURL(fileData ? fileData->find("_CFURLString") : nullptr);
    if (isFinderOrTrash(bundleIdentifier, url)) {
      continue;
    }
    // Without an identifier only an application bundle is worth a position (documents and
    // unreadable entries are not); an item with no tile data at all still takes its position so
    // that the user learns why that digit does nothing.
    if (!bundleIdentifier && tileData && (!url || !url->hasPathExtension("app"))) {
      continue;
    }
    const auto label = dockText(tileData ? tileData->find("file-label") : nullptr);
    tiles.push_back(
        PinnedTile{label ? std::optional<std::string>(*label) : std::nullopt,
                   bundleIdentifier ? std::optional<std::string>(*bundleIdentifier) : std::nullopt,
                   std::move(url)});
  }
  return tiles;
}

} // namespace quenby
