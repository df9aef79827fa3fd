// The HUD builds its key views on every show and after every content change while it is up, so
// building all 35 from a full snapshot must stay a small multiple of copying that snapshot
// (BM_HUDSnapshotCopyBaseline), which the panel does anyway when it hands content to the model.

#include "hud/view/KeyboardHUDContentBuilder.hpp"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace quenby {
namespace {

AppMapping application(MappingSource source, const std::string& name) {
  const auto url = FileURL::fromPath("/Applications/" + name + ".app");
  return {.displayName = name,
          .bundleIdentifier = "com.example." + name,
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = source};
}

/// Nine Dock applications and 26 letters, every third running, every other with its icon.
KeyboardHUDMappingCache fullCache() {
  KeyboardHUDMappingCache cache;
  const auto icon = std::make_shared<const PreparedApplicationIcon>(
      PreparedApplicationIcon{.encoding = PreparedApplicationIcon::Encoding::rgba8Premultiplied,
                              .bitmapData = std::vector<std::uint8_t>(64 * 64 * 4),
                              .pixelsWide = 64,
                              .pixelsHigh = 64,
                              .bytesPerRow = 256});
  int count = 0;
  const auto note = [&](const AppMapping& mapping) {
    if (count % 3 == 0) {
      cache.runningBundleIdentifiers.insert(mapping.bundleIdentifier);
    }
    if (count % 2 == 0) {
      cache.icons.emplace(mapping.bundleIdentifier, icon);
    }
    ++count;
  };
  for (int position = 1; position <= 9; ++position) {
    auto mapping =
        application(MappingSource::dock(position), "Dock Application " + std::to_string(position));
    note(mapping);
    cache.snapshot.numberEntries.set(position, NumberMappingEntry::mapped(std::move(mapping)));
  }
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    auto mapping = application(MappingSource::letter(letter), std::string("Letter ") + letter);
    note(mapping);
    cache.snapshot.letterMappings.emplace(letter, std::move(mapping));
  }
  return cache;
}

void BM_HUDContentBuild(benchmark::State& state) {
  const auto cache = fullCache();
  const EnglishLocalizer localizer;
  const KeyboardHUDContentBuilder builder(localizer);
  for (auto _ : state) {
    const auto rows = builder.rows(cache);
    benchmark::DoNotOptimize(rows.data());
  }
}
BENCHMARK(BM_HUDContentBuild);

void BM_HUDSnapshotCopyBaseline(benchmark::State& state) {
  const auto cache = fullCache();
  for (auto _ : state) {
    const auto copy = cache.snapshot;
    benchmark::DoNotOptimize(&copy);
  }
}
BENCHMARK(BM_HUDSnapshotCopyBaseline);

} // namespace
} // namespace quenby
