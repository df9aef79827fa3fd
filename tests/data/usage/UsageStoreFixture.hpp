#pragma once

#include "base/BasePlatform.hpp"
#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"
#include "support/WriteDroppingKeyValueStore.hpp"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace quenby {

/// Calendar time that moves only when told to.
class SettableWallClock final : public WallClock {
public:
  [[nodiscard]] WallTime now() const override { return time; }
  WallTime time = BasePlatform::kInertStart;
};

class RecordingReporter final : public ConfigurationFailureReporting {
public:
  void report(const ConfigurationFailure& failure) override { failures.push_back(failure); }
  std::vector<ConfigurationFailure> failures;
};

class RecordingLogger final : public Logger {
public:
  void log(LogLevel, std::string_view, std::string_view message) override {
    lines.emplace_back(message);
  }
  std::vector<std::string> lines;
};

/// Everything a usage store needs, in memory, with numbered UUIDs and time fixed at
/// `BasePlatform::kInertStart` until a test moves it.
struct UsageStoreFixture {
  WriteDroppingKeyValueStore defaults;
  FixedOffsetUsageCalendar calendar;
  SettableWallClock clock;
  EnglishLocalizer localizer;
  RecordingLogger logger;
  RecordingReporter reporter;
  int uuids = 0;

  [[nodiscard]] static std::string uuid(int n) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "00000000-0000-4000-8000-%012d", n);
    return text.data();
  }
  std::unique_ptr<UsageAnalyticsStore> make() {
    return std::make_unique<UsageAnalyticsStore>(
        UsageAnalyticsStore::Dependencies{.defaults = defaults,
                                          .calendar = calendar,
                                          .clock = clock,
                                          .localizer = localizer,
                                          .logger = logger,
                                          .reporter = reporter,
                                          .makeUUID = [this] { return uuid(++uuids); },
                                          .defaultStartDate = BasePlatform::kInertStart});
  }
  void store(std::string_view bytes) {
    defaults.preset(UsageAnalyticsStore::kStorageKey,
                    PropertyListValue::Data(bytes.begin(), bytes.end()));
  }
  /// The bytes under `key`, or "<none>" / "<not data>".
  [[nodiscard]] std::string stored(std::string_view key = UsageAnalyticsStore::kStorageKey) const {
    const auto value = defaults.object(key);
    if (!value) {
      return "<none>";
    }
    return value->data() == nullptr ? "<not data>"
                                    : std::string(value->data()->begin(), value->data()->end());
  }
  /// The document under the main key, decoded; it must be readable.
  [[nodiscard]] StoredUsageState document() const {
    auto decoded = StoredUsageState::decode(stored());
    if (!decoded) {
      ADD_FAILURE() << "unreadable: " << stored();
      return {};
    }
    return std::move(decoded).value();
  }
  /// Keys under which unreadable data was set aside.
  [[nodiscard]] std::vector<std::string> backupKeys() const {
    std::vector<std::string> keys;
    for (const auto& key : defaults.writes) {
      if (key.starts_with(UsageAnalyticsStore::kBackupKeyPrefix) && defaults.object(key)) {
        keys.push_back(key);
      }
    }
    return keys;
  }
};

} // namespace quenby
