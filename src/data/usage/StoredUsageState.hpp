#pragma once

#include "base/Expected.hpp"
#include "base/PropertyListValue.hpp"
#include "base/WallClock.hpp"
#include "data/usage/StoredAppOutcome.hpp"
#include "data/usage/UsageDayKey.hpp"
#include "data/usage/UsageTotals.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// One application's switches: lifetime, or on one day.
struct StoredAppUsage {
  /// The application's name at the last record.
  std::string displayName;
  std::int64_t successCount = 0;
  std::int64_t failureCount = 0;

  /// Counts `outcome` (never wrapping past the largest integer) and takes `name`.
  void record(StoredAppOutcome outcome, std::string_view name);

  friend bool operator==(const StoredAppUsage&, const StoredAppUsage&) = default;
};

/// One day's counts per category.
struct StoredDailyUsage {
  UsageTotals totals;
  friend bool operator==(const StoredDailyUsage&, const StoredDailyUsage&) = default;
};

/// Per-application records by bundle identifier.
using StoredAppUsages = std::map<std::string, StoredAppUsage, std::less<>>;

/// The usage analytics document as it is persisted, as JSON: "version", "totals", "daily",
/// "apps", "appDaily" and "startedOn". Reading is strict about what this program writes (counts
/// are integers from 0 to the largest 64-bit integer, categories are known ones) and lenient about
/// the rest (missing or null collections are empty, unknown keys are ignored).
struct StoredUsageState {
  /// The version written; documents of a higher one are refused, lower ones read as this one.
  static constexpr std::int64_t kFormatVersion = 1;
  /// Deeper JSON than this is refused before it is parsed: the document nests four levels, and
  /// refusing early keeps hostile nesting from reaching any recursion.
  static constexpr int kMaximumNesting = 32;

  /// Why bytes are not a usable document.
  struct DecodeFailure {
    /// The version of a document from a newer format; absent when the bytes are unreadable.
    std::optional<std::int64_t> unsupportedVersion;
  };

  std::int64_t version = kFormatVersion;
  UsageTotals totals;
  std::map<UsageDayKey, StoredDailyUsage> daily;
  StoredAppUsages apps;
  std::map<UsageDayKey, StoredAppUsages> appDaily;
  /// When counting started, as seconds since 1 January 2001 UTC (how dates are written).
  std::optional<double> startedOn;

  [[nodiscard]] static double referenceDateSeconds(WallTime time);

  /// The UTF-8 JSON text. Invalid UTF-8 in a name is replaced rather than refused, so that
  /// encoding cannot fail.
  [[nodiscard]] std::string encode() const;
  [[nodiscard]] PropertyListValue encodedValue() const;
  [[nodiscard]] static Expected<StoredUsageState, DecodeFailure> decode(std::string_view bytes);

  friend bool operator==(const StoredUsageState&, const StoredUsageState&) = default;
};

} // namespace quenby
