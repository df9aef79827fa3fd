// The Dock poll runs twice a second for the whole session; when nothing changed it must cost
// the read and a comparison, never a resolution. BM_DockPollReadOnly is the read alone, the
// baseline the poll is measured against.

#include "base/DistributedNotificationObserving.hpp"
#include "base/ManualScheduler.hpp"
#include "shortcuts/dock/DockNumberMappingProvider.hpp"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "support/DockItems.hpp"
#include "support/ScriptedApplicationResolver.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace quenby {
namespace {

/// Thirty items as a well-used Dock holds them: applications with their full tile data,
/// spacers, a folder and a web link.
PropertyListValue thirtyItemDock() {
  PropertyListValue::Array items;
  for (int i = 0; items.size() < 30; ++i) {
    const std::string name = "Application " + std::to_string(i);
    if (i % 9 == 4) {
      items.push_back(DockItems::spacer(i % 2 == 0 ? "spacer-tile" : "small-spacer-tile"));
    } else if (i == 13) {
      items.push_back(DockItems::folder("file:///Users/alex/Projects/", "Projects"));
    } else if (i == 21) {
      items.push_back(DockItems::webLink("https://example.org/handbook/", "Handbook"));
    } else {
      items.push_back(DockItems::application(
          name, "com.example.application" + std::to_string(i),
          "file:///Applications/Application%20" + std::to_string(i) + ".app/", 3'000'000'000 + i));
    }
  }
  return items;
}

/// The system hands back a freshly built value on every read, equal to the last one but not
/// shared with it, so the comparison walks the whole tree.
SystemDockPreferenceReader freshCopyReader() {
  return SystemDockPreferenceReader([] { return true; },
                                    [fresh = thirtyItemDock()] { return fresh; });
}

void BM_DockPollUnchanged(benchmark::State& state) {
  const PropertyListValue first = thirtyItemDock();
  const PropertyListValue later = thirtyItemDock();
  const PropertyListValue* next = &first;
  SystemDockPreferenceReader reader([] { return true; },
                                    [&]() -> std::optional<PropertyListValue> {
                                      const PropertyListValue* served = next;
                                      next = &later;
                                      return *served;
                                    });
  ScriptedApplicationResolver resolver;
  ManualScheduler scheduler;
  InertDistributedNotificationCenter center;
  EnglishLocalizer localizer;
  DockNumberMappingProvider provider(reader, resolver, scheduler, center, nullptr, localizer);
  provider.reload(false);
  const std::size_t resolved = resolver.questions.size();
  for (auto _ : state) {
    provider.reload(false);
  }
  if (resolver.questions.size() != resolved || provider.current().revision != 1) {
    state.SkipWithError("an unchanged poll resolved or published");
  }
}
BENCHMARK(BM_DockPollUnchanged);

void BM_DockPollReadOnly(benchmark::State& state) {
  SystemDockPreferenceReader reader = freshCopyReader();
  for (auto _ : state) {
    auto read = reader.readPersistentApplications();
    benchmark::DoNotOptimize(read);
  }
}
BENCHMARK(BM_DockPollReadOnly);

} // namespace
} // namespace quenby
