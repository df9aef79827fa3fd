#pragma once

#include "base/PropertyListValue.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// Items of the Dock's "persistent-apps" shaped as the Dock writes them, with the bookkeeping
/// fields (GUID, alias data, dates) that the reader must step over.
struct DockItems {
  using Dictionary = PropertyListValue::Dictionary;

  /// A pinned application tile; `urlString` goes to "_CFURLString" as given (a "file://" URL
  /// string, or a plain path). An empty `bundleIdentifier` leaves the key out.
  static PropertyListValue application(std::string_view label, std::string_view bundleIdentifier,
                                       std::string_view urlString, std::int64_t guid = 1001) {
    Dictionary fileData{{"_CFURLString", std::string(urlString)},
                        {"_CFURLStringType", std::int64_t{urlString.starts_with("/") ? 0 : 15}}};
    Dictionary tileData{
        {"book", PropertyListValue::Data{0x62, 0x6f, 0x6f, 0x6b, 0x30, 0x02, 0x00, 0x00}},
        {"dock-extra", false},
        {"file-data", std::move(fileData)},
        {"file-label", std::string(label)},
        {"file-mod-date", std::int64_t{3'782'457'330}},
        {"file-type", std::int64_t{41}},
        {"is-beta", false},
        {"parent-mod-date", std::int64_t{3'782'457'330}}};
    if (!bundleIdentifier.empty()) {
      tileData.emplace("bundle-identifier", std::string(bundleIdentifier));
    }
    return Dictionary{
        {"GUID", guid}, {"tile-data", std::move(tileData)}, {"tile-type", "file-tile"}};
  }

  /// `application` with a change to its tile data (a key set, or removed when `value` is absent).
  static PropertyListValue withTileData(const PropertyListValue& item, std::string_view key,
                                        std::optional<PropertyListValue> value) {
    Dictionary copy = *item.dictionary();
    Dictionary tileData = *copy.at("tile-data").dictionary();
    tileData.erase(std::string(key));
    if (value) {
      tileData.emplace(std::string(key), std::move(*value));
    }
    copy.insert_or_assign("tile-data", std::move(tileData));
    return copy;
  }

  /// `item` with one of its own keys set.
  static PropertyListValue withKey(const PropertyListValue& item, std::string_view key,
                                   PropertyListValue value) {
    Dictionary copy = *item.dictionary();
    copy.insert_or_assign(std::string(key), std::move(value));
    return copy;
  }

  static PropertyListValue spacer(std::string_view type = "spacer-tile") {
    return Dictionary{{"GUID", std::int64_t{2002}},
                      {"tile-data", Dictionary{{"file-label", ""}}},
                      {"tile-type", std::string(type)}};
  }

  static PropertyListValue folder(std::string_view urlString, std::string_view label) {
    return Dictionary{
        {"GUID", std::int64_t{3003}},
        {"tile-data", Dictionary{{"arrangement", std::int64_t{2}},
                                 {"displayas", std::int64_t{0}},
                                 {"file-data", Dictionary{{"_CFURLString", std::string(urlString)},
                                                          {"_CFURLStringType", std::int64_t{15}}}},
                                 {"file-label", std::string(label)},
                                 {"file-type", std::int64_t{2}},
                                 {"showas", std::int64_t{1}}}},
        {"tile-type", "directory-tile"}};
  }

  static PropertyListValue webLink(std::string_view url, std::string_view label) {
    return Dictionary{
        {"GUID", std::int64_t{4004}},
        {"tile-data", Dictionary{{"label", std::string(label)},
                                 {"url", Dictionary{{"_CFURLString", std::string(url)},
                                                    {"_CFURLStringType", std::int64_t{15}}}}}},
        {"tile-type", "url-tile"}};
  }

  /// A document pinned as a file tile: no bundle identifier.
  static PropertyListValue document(std::string_view urlString, std::string_view label) {
    return Dictionary{
        {"GUID", std::int64_t{5005}},
        {"tile-data", Dictionary{{"file-data", Dictionary{{"_CFURLString", std::string(urlString)},
                                                          {"_CFURLStringType", std::int64_t{15}}}},
                                 {"file-label", std::string(label)},
                                 {"file-type", std::int64_t{32}}}},
        {"tile-type", "file-tile"}};
  }
};

} // namespace quenby
