// The letter store loads once per launch, before the first snapshot: loading, repairing and
// resolving a full alphabet must stay a small multiple of parsing its JSON.
// BM_LetterDocumentParseBaseline is that parse alone, on the same bytes, the baseline the load is
// measured against.

#include "base/InMemoryKeyValueStore.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"
#include "support/LetterStoreHarness.hpp"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <string>

namespace quenby {
namespace {

/// `count` records under lower-case letters in reverse order, so that every load repairs the
/// letters and sorts them.
std::string document(int count) {
  std::string text = "[";
  for (int i = count - 1; i >= 0; --i) {
    const std::string letter(1, static_cast<char>('a' + i));
    text += R"({"letter":")" + letter + R"(","bundleIdentifier":"com.example.application)" +
            letter + R"(","displayName":" Application )" + letter +
            R"( ","lastKnownURL":"file:///Applications/Application%20)" + letter +
            R"(.app","catalogResolvedURL":"file:///Applications/Application%20)" + letter +
            R"(.app"})" + (i > 0 ? "," : "");
  }
  return text + "]";
}

void BM_LetterStoreLoad(benchmark::State& state) {
  LetterStoreHarness harness;
  const auto text = document(static_cast<int>(state.range(0)));
  const PropertyListValue stored = PropertyListValue::Data(text.begin(), text.end());
  for (auto _ : state) {
    InMemoryKeyValueStore defaults;
    defaults.set(LetterMappingDocument::kKey, stored);
    const KeyboardMappingStore store(harness.numberProvider, defaults, harness.clock,
                                     harness.resolver, harness.metadataReader,
                                     &harness.catalogMonitor, harness.reporter, harness.localizer);
    benchmark::DoNotOptimize(store.snapshot().letterMappings.size());
    harness.resolver.questions.clear();
  }
  if (!harness.reporter.failures.empty()) {
    state.SkipWithError("the document did not load cleanly");
  }
}
BENCHMARK(BM_LetterStoreLoad)->Arg(26);

void BM_LetterDocumentParseBaseline(benchmark::State& state) {
  const auto text = document(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const auto parsed = nlohmann::json::parse(text);
    benchmark::DoNotOptimize(parsed.size());
  }
}
BENCHMARK(BM_LetterDocumentParseBaseline)->Arg(26);

} // namespace
} // namespace quenby
