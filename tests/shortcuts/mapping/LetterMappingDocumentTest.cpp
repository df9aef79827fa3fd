#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "support/LetterStoreHarness.hpp"

#include <gtest/gtest.h>
#include <random>

namespace quenby {
namespace {

using Bytes = PropertyListValue::Data;

Bytes bytes(std::string_view text) { return {text.begin(), text.end()}; }

TEST(LetterMappingRecordTest, LettersAndNamesNormaliseAsTheSystemUpperCasesAndTrims) {
  const std::vector<std::pair<std::string_view, std::optional<char>>> letters{
      {"a", 'A'},
      {"Z", 'Z'},
      {"m", 'M'},
      {"\u0131", 'I'},
      {"\u017F", 'S'},
      {"é", {}},
      {"AB", {}},
      {"", {}},
      {"1", {}},
      {"@", {}},
      {"[", {}},
      {"`", {}},
      {"{", {}},
      {"\xC4", {}},
      {"ß", {}},
      {" A", {}},
      {"Å", {}},
      {"\u212A", {}},
      {std::string_view("\0", 1), {}}};
  for (const auto& [text, letter] : letters) {
    EXPECT_EQ(LetterMappingRecord::normalizedLetter(text), letter) << text;
  }
  EXPECT_EQ(LetterMappingRecord::trimmed(" \t\u00A0Mail\u3000\r\n\u2029"), "Mail");
  EXPECT_EQ(LetterMappingRecord::trimmed("\u2028 \u0085"), "");
  EXPECT_EQ(LetterMappingRecord::trimmed("Two Words"), "Two Words");
}

TEST(LetterMappingDocumentTest, TellsWhyADocumentCannotBeRead) {
  const auto why = [](std::string_view text) {
    const auto read = LetterMappingDocument::read(bytes(text));
    return read ? std::optional<PersistenceFormatError>() : read.error();
  };
  const std::string fine =
      R"({"letter":"A","bundleIdentifier":"a","displayName":"A","lastKnownURL":"file:///A.app")";
  EXPECT_EQ(why("[" + fine + "}]"), std::nullopt);
  EXPECT_EQ(why("[" + fine + R"(,"catalogResolvedURL":null}])"), std::nullopt);
  EXPECT_EQ(why("[" + fine + R"(,"version":-1}])"), std::nullopt); // the key names the version
  EXPECT_EQ(why("[" + fine + R"(,"catalogResolvedURL":7}])"), PersistenceFormatError::wrongShape);
  EXPECT_EQ(why("[" + fine + "]"), PersistenceFormatError::notJSON);
  EXPECT_EQ(why(R"({"letters":[]})"), PersistenceFormatError::wrongShape);
  EXPECT_EQ(why("[[]]"), PersistenceFormatError::wrongShape);
  EXPECT_EQ(why(R"([{"letter":"A"}])"), PersistenceFormatError::wrongShape);
  EXPECT_EQ(why(R"([{"letter":"A","bundleIdentifier":"a","displayName":"A",)"
                R"("lastKnownURL":"https://example.com/A.app"}])"),
            PersistenceFormatError::invalidRecord);
  // Brackets inside strings do not count towards the nesting.
  EXPECT_EQ(why("[" + fine + R"(,"x":")" + std::string(100, '[') + R"(\""}])"), std::nullopt);
  EXPECT_EQ(why(std::string(LetterMappingDocument::kMaximumDepth + 1, '[') +
                std::string(LetterMappingDocument::kMaximumDepth + 1, ']')),
            PersistenceFormatError::tooDeep);
  // The parser recurses per level: this must be refused before it gets there.
  EXPECT_EQ(why(std::string(100'000, '[')), PersistenceFormatError::tooDeep);
  EXPECT_EQ(why(std::string(100'000, '[') + std::string(100'000, ']')),
            PersistenceFormatError::tooDeep);
}

/// Ten thousand and more payloads, readable and not, each loaded into a fresh store.
std::vector<Bytes> badInput() {
  const std::string a =
      R"({"letter":"a","bundleIdentifier":"com.example.a","displayName":"Á",)"
      R"("lastKnownURL":"file:///Applications/A%20B.app","catalogResolvedURL":"file:///X/A.app"})";
  const std::string b = R"({"letter":"B","bundleIdentifier":"com.example.b","displayName":"B",)"
                        R"("lastKnownURL":"file:///Applications/B.app"})";
  const std::vector<std::string> seeds{"[" + a + "," + b + "]", "[" + b + "]", "[]"};
  std::vector<Bytes> payloads;
  for (const auto& seed : seeds) {
    for (std::size_t length = 0; length <= seed.size(); ++length) {
      payloads.push_back(bytes(seed.substr(0, length)));
    }
  }
  const std::vector<std::string> values{"0",    "-1",    "1e400", "123456789012345678901234567890",
                                        "true", "null",  "[]",    "{}",
                                        "\"\"", "\" \"", "\"x\"", "-0.0e-999"};
  for (const std::string field :
       {"letter", "bundleIdentifier", "displayName", "lastKnownURL", "catalogResolvedURL"}) {
    for (const auto& value : values) {
      payloads.push_back(bytes(R"([{"letter":"A","bundleIdentifier":"a","displayName":"A",)"
                               R"("lastKnownURL":"file:///A.app",")" +
                               field + "\":" + value + "}]"));
    }
  }
  for (const auto& value : values) {
    payloads.push_back(bytes(value));
    payloads.push_back(bytes("[" + value + "]"));
  }
  for (const std::size_t depth : {1, 2, 3, 31, 32, 33, 64, 1000, 100'000}) {
    payloads.push_back(bytes(std::string(depth, '[') + std::string(depth, ']')));
    payloads.push_back(bytes(std::string(depth, '[')));
    std::string objects;
    for (std::size_t i = 0; i < depth; ++i) {
      objects += "{\"a\":";
    }
    payloads.push_back(bytes("[" + objects + "1" + std::string(depth, '}') + "]"));
  }
  // Duplicate keys: the later one counts.
  payloads.push_back(bytes(R"([{"letter":"é","letter":"C","bundleIdentifier":"c",)"
                           R"("displayName":"C","lastKnownURL":"file:///C.app"}])"));
  payloads.push_back(bytes(R"([{"letter":"C","letter":"é","bundleIdentifier":"c",)"
                           R"("displayName":"C","lastKnownURL":"file:///C.app"}])"));
  for (const std::string invalid :
       {"\xC0\x80", "\xFF", "\xED\xA0\x80", "\xE2\x82", "\xF4\x90\x80\x80"}) {
    payloads.push_back(bytes(R"([{"letter":"D","bundleIdentifier":"d","displayName":"D)" + invalid +
                             R"(","lastKnownURL":"file:///D.app"}])"));
  }
  for (const std::string version : {"0", "1", "2", "7", "-1"}) {
    payloads.push_back(bytes("[{\"version\":" + version + "," + b.substr(1) + "]"));
    payloads.push_back(bytes("{\"version\":" + version + ",\"records\":[" + b + "]}"));
  }
  std::mt19937 random(20'260'307);
  while (payloads.size() < 10'500) {
    auto payload = bytes(seeds[random() % 2]);
    const auto flips = 1 + random() % 3;
    for (unsigned i = 0; i < flips; ++i) {
      const auto at = random() % payload.size();
      payload[at] = random() % 2 ? static_cast<std::uint8_t>(random())
                                 : static_cast<std::uint8_t>(payload[at] ^ (1u << (random() % 8)));
    }
    if (random() % 4 == 0) {
      payload.resize(random() % payload.size());
    }
    payloads.push_back(std::move(payload));
  }
  return payloads;
}

TEST(LetterMappingDocumentTest, NoPayloadCrashesOrLosesABit) {
  LetterStoreHarness harness;
  const std::string backupKey = "letterMappings.v1.corrupt.1772874000123";
  std::size_t loaded = 0;
  std::size_t quarantined = 0;
  for (const auto& payload : badInput()) {
    InMemoryKeyValueStore defaults;
    defaults.set(LetterMappingDocument::kKey, payload);
    harness.reporter.failures.clear();
    const KeyboardMappingStore store(harness.numberProvider, defaults, harness.clock,
                                     harness.resolver, harness.metadataReader,
                                     &harness.catalogMonitor, harness.reporter, harness.localizer);
    const std::string shown(payload.begin(), payload.end());
    if (const auto readable = LetterMappingDocument::read(payload)) {
      ++loaded;
      ASSERT_EQ(store.records(), readable->records) << shown;
      ASSERT_FALSE(defaults.object(backupKey)) << shown;
      ASSERT_TRUE(harness.reporter.failures.empty()) << shown;
      // What was written back reads as what is in use.
      const auto stored = defaults.object(LetterMappingDocument::kKey);
      ASSERT_EQ(LetterMappingDocument::read(*stored->data())->records, readable->records);
    } else {
      ++quarantined;
      ASSERT_EQ(defaults.object(backupKey), PropertyListValue(payload)) << shown;
      ASSERT_EQ(defaults.object(LetterMappingDocument::kKey), PropertyListValue(bytes("[]")));
      ASSERT_TRUE(store.records().empty());
      ASSERT_EQ(harness.failureIds(), std::vector<std::string>{"mapping.persistence.corrupt"});
    }
  }
  // Both outcomes were exercised well, so neither branch above passed vacuously.
  EXPECT_GT(loaded, 100u);
  EXPECT_GT(quarantined, 5'000u);
}

} // namespace
} // namespace quenby
