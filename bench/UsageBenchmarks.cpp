// Every switch is written through: recording one use encodes the whole document and writes it.
// With a full history (90 days of 100 applications) that must cost little more than the encoding
// itself. BM_UsageEncodeOnly encodes the same document once, the baseline the recording is
// measured against; the "bytes" counter is the size of the document written.

#include "base/InMemoryKeyValueStore.hpp"
#include "base/Logger.hpp"
#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"

#include <benchmark/benchmark.h>

namespace quenby {
namespace {

constexpr int kApplications = 100;

class FixedWallClock final : public WallClock {
public:
  [[nodiscard]] WallTime now() const override { return kNow; }
  static constexpr WallTime kNow{std::chrono::sys_days{std::chrono::year{2026} / 3 / 7} +
                                 std::chrono::hours{9}};
};

std::string bundleIdentifier(int application) {
  return "com.example.application" + std::to_string(application);
}

/// 90 days in which each of the applications was opened a few times, plus lifetime records.
StoredUsageState fullHistory() {
  StoredUsageState state;
  const std::chrono::sys_days today{std::chrono::year{2026} / 3 / 7};
  for (int offset = -89; offset <= 0; ++offset) {
    const auto day = UsageDayKey::from(today + std::chrono::days{offset});
    state.daily[day].totals.counts = {offset + 90, 2 * (offset + 90), 7};
    for (int application = 0; application < kApplications; ++application) {
      state.appDaily[day][bundleIdentifier(application)] = {
          "Application " + std::to_string(application), 3 + application % 5, application % 2};
    }
  }
  for (int application = 0; application < kApplications; ++application) {
    state.apps[bundleIdentifier(application)] = {"Application " + std::to_string(application),
                                                 300 + application, 45};
  }
  state.totals.counts = {8190, 16380, 630};
  state.startedOn = StoredUsageState::referenceDateSeconds(FixedWallClock::kNow);
  return state;
}

void BM_UsageRecordFullHistory(benchmark::State& state) {
  InMemoryKeyValueStore defaults;
  const auto bytes = fullHistory().encode();
  defaults.set(UsageAnalyticsStore::kStorageKey,
               PropertyListValue::Data(bytes.begin(), bytes.end()));
  const FixedOffsetUsageCalendar calendar;
  const FixedWallClock clock;
  const EnglishLocalizer localizer;
  NullLogger logger;
  InertConfigurationFailureReporter reporter;
  UsageAnalyticsStore store({defaults, calendar, clock, localizer, logger, reporter});
  const AppMapping mapping{"Application 7", bundleIdentifier(7), FileURL(),
                           ApplicationResolution::notFound(), MappingSource::dock(3)};
  for (auto _ : state) {
    store.recordShortcutUse(mapping);
  }
  if (store.lastError() || store.state().appDaily.size() != 90) {
    state.SkipWithError("the recording did not keep the history");
  }
  state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_UsageRecordFullHistory)->Unit(benchmark::kMillisecond);

void BM_UsageEncodeOnly(benchmark::State& state) {
  const auto history = fullHistory();
  std::size_t size = 0;
  for (auto _ : state) {
    const auto bytes = history.encode();
    size = bytes.size();
    benchmark::DoNotOptimize(bytes.data());
  }
  state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(BM_UsageEncodeOnly)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quenby
