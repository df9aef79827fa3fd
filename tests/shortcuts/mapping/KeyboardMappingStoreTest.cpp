#include "shortcuts/mapping/KeyboardMappingStore.hpp"

#include "support/ApplicationBundleFixture.hpp"
#include "support/LetterStoreHarness.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

std::string record(std::string_view letter, std::string_view bundle, std::string_view path,
                   std::string_view extra = "") {
  return "{\"letter\":\"" + std::string(letter) + "\",\"bundleIdentifier\":\"" +
         std::string(bundle) + "\",\"displayName\":\"" + std::string(bundle) +
         "\",\"lastKnownURL\":\"file://" + std::string(path) + "\"" + std::string(extra) + "}";
}

std::string letters(const KeyboardMappingSnapshot& snapshot) {
  std::string described;
  for (const auto& [letter, mapping] : snapshot.letterMappings) {
    described += std::string(1, letter) + "=" + mapping.bundleIdentifier + " ";
  }
  return described;
}

class KeyboardMappingStoreTest : public ::testing::Test, protected LetterStoreHarness {};

TEST_F(KeyboardMappingStoreTest, RepairsWhatItReadsAndWritesTheRepairBack) {
  // Lower-case a and upper-case A: the first in stable order keeps the letter. The application
  // under C and B keeps only B. A catalog location that is no bundle is forgotten.
  presetDocument("[" + record("C", "com.example.notes", "/Applications/Notes.app") + "," +
                 record("a", "com.example.first", "/Applications/First.app") + "," +
                 record("A", "com.example.second", "/Applications/Second.app") + "," +
                 record("B", "COM.example.NOTES", "/Applications/Notes.app") + "," +
                 record("D", " com.example.mail\\n", "/Applications/Mail.app",
                        ",\"catalogResolvedURL\":\"file:///Applications/Mail.txt\"") +
                 "]");
  const auto store = makeStore();

  EXPECT_EQ(letters(store->snapshot()),
            "A=com.example.first B=COM.example.NOTES D=com.example.mail ");
  ASSERT_EQ(store->records().size(), 3u);
  EXPECT_EQ(store->records().back().catalogResolvedURL, std::nullopt);
  EXPECT_EQ(storedDocument(),
            "[" + record("A", "com.example.first", "/Applications/First.app") + "," +
                record("B", "COM.example.NOTES", "/Applications/Notes.app") + "," +
                "{\"letter\":\"D\",\"bundleIdentifier\":\"com.example.mail\",\"displayName\":"
                "\"com.example.mail\",\"lastKnownURL\":\"file:///Applications/Mail.app\"}]");
  EXPECT_TRUE(reporter.failures.empty());
  EXPECT_EQ(store->snapshot().revision, 0u);
  EXPECT_EQ(store->snapshot().letterMappings.at('A').id(), "letter:A");
}

TEST_F(KeyboardMappingStoreTest, ADocumentInNormalFormIsNotWrittenAgain) {
  // Another writer's spelling of the same locations (escaped slashes, a trailing slash) is
  // the same document.
  presetDocument(R"([{"letter":"K","bundleIdentifier":"com.example.k","displayName":"K",)"
                 R"("lastKnownURL":"file:\/\/\/Applications\/K.app\/",)"
                 R"("catalogResolvedURL":"file:///Applications/K.app/"}])");
  const auto store = makeStore();
  EXPECT_EQ(store->records().size(), 1u);
  EXPECT_TRUE(defaults.writes.empty());
  EXPECT_TRUE(reporter.failures.empty());
}

TEST_F(KeyboardMappingStoreTest, UnreadableDataIsSetAsideByteForByteAndTheStoreStartsEmpty) {
  const std::string backupKey = "letterMappings.v1.corrupt.1772874000123";
  const auto noBundle = "[" + record("A", "com.example.a", "/Applications/A.app") + "," +
                        record("B", "com.example.b", "/Applications/B.txt") + "]";
  const std::vector<PropertyListValue> unreadable{
      PropertyListValue::Data{'{', 'x', 0xFF},
      PropertyListValue::Data(noBundle.begin(), noBundle.end()),
      PropertyListValue(std::string("[]")), // not data at all
  };
  for (const auto& value : unreadable) {
    LetterStoreHarness harness;
    harness.defaults.preset("letterMappings.v1", value);
    const auto store = harness.makeStore();

    EXPECT_TRUE(store->snapshot().letterMappings.empty());
    EXPECT_EQ(harness.defaults.object(backupKey), value);
    EXPECT_EQ(harness.storedDocument(), "[]");
    ASSERT_EQ(harness.reporter.failures.size(), 1u);
    EXPECT_EQ(harness.reporter.failures[0],
              (ConfigurationFailure{
                  "mapping.persistence.corrupt", "Letter Mappings Were Reset",
                  "Quenby preserved the unreadable data under " + backupKey +
                      ", reset letter mappings to a safe empty state, and continued launching. "
                      "Recreate the affected mappings."}));
  }
}

TEST_F(KeyboardMappingStoreTest, AFailedQuarantineSaysWhichStepFailedAndLosesNothing) {
  const std::string backupKey = "letterMappings.v1.corrupt.1772874000123";
  const PropertyListValue garbage = PropertyListValue::Data{'n', 'o', 'p', 'e'};
  const PropertyListValue earlier = PropertyListValue::Data{'o', 'l', 'd'};
  struct Case {
    std::string droppedKey;
    bool backupKeyTaken;
    std::string id;
    std::string reason;
  };
  for (const auto& c : std::vector<Case>{
           {backupKey, false, "backup", "The user defaults did not keep the copy."},
           {"letterMappings.v1", false, "reset",
            "The user defaults did not keep the emptied mappings."},
           {"", true, "operation", "Another copy is already kept under that key."},
       }) {
    SCOPED_TRACE(c.id);
    LetterStoreHarness harness;
    harness.defaults.droppedKeys.insert(c.droppedKey);
    harness.defaults.preset("letterMappings.v1", garbage);
    if (c.backupKeyTaken) {
      harness.defaults.preset(backupKey, earlier);
    }
    const auto store = harness.makeStore();

    EXPECT_TRUE(store->snapshot().letterMappings.empty());
    EXPECT_EQ(harness.defaults.object("letterMappings.v1"), garbage);
    std::optional<PropertyListValue> expectedBackup;
    if (c.backupKeyTaken) {
      expectedBackup = earlier;
    } else if (c.id == "reset") {
      expectedBackup = garbage;
    }
    EXPECT_EQ(harness.defaults.object(backupKey), expectedBackup);
    ASSERT_EQ(harness.reporter.failures.size(), 1u);
    EXPECT_EQ(harness.reporter.failures[0],
              (ConfigurationFailure{"mapping.persistence.corrupt-recovery." + c.id,
                                    "Letter Mappings Could Not Be Recovered",
                                    "Quenby could not quarantine unreadable mapping data under " +
                                        backupKey + ": " + c.reason}));
  }
}

TEST_F(KeyboardMappingStoreTest, ARepairThatCannotBeSavedIsReportedAndStillUsed) {
  defaults.droppedKeys.insert("letterMappings.v1");
  const auto document = "[" + record("b", "com.example.b", "/Applications/B.app") + "]";
  presetDocument(document);
  const auto store = makeStore();
  EXPECT_EQ(letters(store->snapshot()), "B=com.example.b ");
  EXPECT_EQ(storedDocument(), document);
  ASSERT_EQ(reporter.failures.size(), 1u);
  EXPECT_EQ(reporter.failures[0],
            (ConfigurationFailure{"mapping.persistence.normalization-save",
                                  "Letter Mapping Cleanup Could Not Be Saved",
                                  "The user defaults did not keep the letter mappings."}));
}

class KeyboardMappingStoreAssignmentTest : public KeyboardMappingStoreTest {
protected:
  ApplicationBundleFixture bundles;
  FileURL mail = bundles.createBundle("Applications/Mail.app", "com.example.mail", "Mail");
  FileURL notes = bundles.createBundle("Applications/Notes.app", "com.example.notes", " Notes ");
};

TEST_F(KeyboardMappingStoreAssignmentTest, AssigningMovesAnApplicationAndPublishesOnce) {
  const auto store = makeStore();
  std::vector<KeyboardMappingSnapshot> published;
  const auto token =
      store->observe([&](const KeyboardMappingSnapshot& s) { published.push_back(s); });

  const auto assigned = store->setLetterMapping("q", mail);
  ASSERT_TRUE(assigned);
  EXPECT_EQ(assigned->source, MappingSource::letter('Q'));
  EXPECT_EQ(assigned->resolution, ApplicationResolution::resolved(mail));
  ASSERT_TRUE(store->setLetterMapping("N", notes));
  ASSERT_TRUE(store->setLetterMapping("W", mail));

  EXPECT_EQ(letters(store->snapshot()), "N=com.example.notes W=com.example.mail ");
  EXPECT_EQ(store->snapshot().letterMappings.at('N').displayName, "Notes");
  ASSERT_EQ(published.size(), 3u);
  EXPECT_EQ(published.back(), store->snapshot());
  EXPECT_EQ(published.back().revision, 3u);
  // What was stored loads back to the same mappings.
  const auto reloaded = makeStore();
  EXPECT_EQ(reloaded->records(), store->records());

  EXPECT_EQ(store->removeLetterMapping("w").value(), true);
  EXPECT_EQ(store->removeLetterMapping("W").value(), false);
  EXPECT_EQ(letters(store->snapshot()), "N=com.example.notes ");
  EXPECT_EQ(published.size(), 4u);
}

TEST_F(KeyboardMappingStoreAssignmentTest, MergedRecordsTakeTheirLettersWithoutReadingBundles) {
  const auto store = makeStore();
  ASSERT_TRUE(store->setLetterMapping("M", mail));
  ASSERT_TRUE(store->setLetterMapping("N", notes));
  resolver.answers.emplace("com.example.safari", ApplicationResolution::notFound());
  const auto record = [](char letter, std::string bundle, std::string path) {
    return LetterMappingRecord{.letter = letter,
                               .bundleIdentifier = std::move(bundle),
                               .displayName = "Imported",
                               .lastKnownURL = FileURL::fromPath(path),
                               .catalogResolvedURL = FileURL::fromPath("/Elsewhere/Old.app")};
  };

  // Mail moves from M to K; Safari is not installed here; N is not named and keeps Notes.
  const auto merged =
      store->mergeLetterMappings({record('K', "COM.example.MAIL", "/Applications/Mail.app"),
                                  record('S', "com.example.safari", "/Applications/Safari.app")});
  ASSERT_TRUE(merged);
  EXPECT_EQ(*merged, 2u);
  EXPECT_EQ(letters(store->snapshot()), "K=COM.example.MAIL N=com.example.notes "
                                        "S=com.example.safari ");
  EXPECT_EQ(store->snapshot().letterMappings.at('S').resolution, ApplicationResolution::notFound());
  // Where another Mac found the bundle means nothing here: the resolver's answer is kept.
  EXPECT_EQ(store->records().front().catalogResolvedURL,
            FileURL::fromPath("/Applications/Mail.app"));
  EXPECT_EQ(store->records().back().catalogResolvedURL, std::nullopt);
  EXPECT_EQ(makeStore()->records(), store->records());

  defaults.droppedKeys.insert("letterMappings.v1");
  const auto before = store->snapshot();
  EXPECT_FALSE(store->mergeLetterMappings({record('A', "com.example.a", "/A.app")}));
  EXPECT_EQ(store->snapshot(), before);
}

TEST_F(KeyboardMappingStoreAssignmentTest, RefusedAssignmentsChangeNothing) {
  const auto store = makeStore();
  ASSERT_TRUE(store->setLetterMapping("M", mail));
  const auto before = store->snapshot();
  const auto stored = storedDocument();

  for (const std::string_view letter : {"é", "AB", "", "1"}) {
    const auto refused = store->setLetterMapping(letter, notes);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message(localizer),
              std::string(letter) + " is not an A–Z mapping key.");
  }
  bundles.writeFile("Documents/Notes.txt", "hello");
  for (const auto& url : {bundles.url("Documents/Notes.txt"), bundles.url("Missing.app")}) {
    const auto refused = store->setLetterMapping("N", url);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message(localizer),
              url.lastPathComponent() + " is not a readable application bundle.");
  }
  EXPECT_FALSE(store->removeLetterMapping("ñ"));

  // The defaults refusing the write leaves memory and storage as they were.
  defaults.droppedKeys.insert("letterMappings.v1");
  const auto unsaved = store->setLetterMapping("N", mail);
  ASSERT_FALSE(unsaved);
  EXPECT_EQ(unsaved.error(), KeyboardMappingStoreError::notSaved());
  EXPECT_FALSE(store->removeLetterMapping("M"));
  EXPECT_EQ(store->snapshot(), before);
  EXPECT_EQ(storedDocument(), stored);
  EXPECT_TRUE(reporter.failures.empty());
}

TEST_F(KeyboardMappingStoreTest, ACatalogChangeHealsMovedApplicationsAndPublishesEitherWay) {
  presetDocument("[" + record("A", "com.example.a", "/Applications/A.app") + "," +
                 record("B", "com.example.b", "/Applications/B.app") + "]");
  resolver.answers.insert_or_assign("com.example.b", ApplicationResolution::notFound());
  const auto store = makeStore();
  store->startMonitoring();
  std::vector<std::uint64_t> revisions;
  const auto token = store->observe(
      [&](const KeyboardMappingSnapshot& s) { revisions.push_back(s.applicationCatalogRevision); });

  const auto moved = FileURL::fromPath("/Archive/A.app");
  resolver.answers.insert_or_assign("com.example.a", ApplicationResolution::resolved(moved));
  resolver.revision = 4;
  catalogMonitor.reportChange();
  EXPECT_EQ(revisions, std::vector<std::uint64_t>{4});
  EXPECT_EQ(store->records().front().catalogResolvedURL, moved);
  EXPECT_EQ(store->records().back().catalogResolvedURL, std::nullopt); // still not found
  EXPECT_NE(storedDocument().find("\"catalogResolvedURL\":\"file:///Archive/A.app\""),
            std::string::npos);
  EXPECT_EQ(store->snapshot().letterMappings.at('A').resolution,
            ApplicationResolution::resolved(moved));

  // Nothing moved: published, nothing written.
  const auto writes = defaults.writes.size();
  catalogMonitor.reportChange();
  EXPECT_EQ(defaults.writes.size(), writes);
  EXPECT_EQ(revisions.size(), 2u);

  defaults.droppedKeys.insert("letterMappings.v1");
  resolver.answers.insert_or_assign("com.example.b", ApplicationResolution::resolved(moved));
  catalogMonitor.reportChange();
  EXPECT_EQ(revisions.size(), 3u);
  EXPECT_EQ(store->snapshot().letterMappings.at('B').resolution,
            ApplicationResolution::resolved(moved));
  EXPECT_EQ(failureIds(), std::vector<std::string>{"mapping.persistence.self-heal-save"});
  EXPECT_EQ(reporter.failures[0].title, "Letter Mapping Update Could Not Be Saved");
  // Memory still says what storage says, so the next change tries again.
  EXPECT_EQ(store->records().back().catalogResolvedURL, std::nullopt);
}

TEST_F(KeyboardMappingStoreAssignmentTest, ChangesDuringAPublicationWaitTheirTurn) {
  const auto store = makeStore();
  store->startMonitoring();
  EXPECT_TRUE(numberProvider.isHeard());
  EXPECT_EQ(catalogMonitor.observerCount(), 1u);

  int depth = 0;
  std::vector<std::string> seen;
  const auto first = store->observe([&](const KeyboardMappingSnapshot& s) {
    EXPECT_EQ(++depth, 1) << "published re-entrantly";
    seen.push_back(std::to_string(s.revision) + ":" + letters(s));
    if (s.revision == 1) {
      // An observer reacting to a snapshot: a new Dock snapshot and an assignment arrive.
      auto dock = numberProvider.current();
      dock.entries.set(3,
                       NumberMappingEntry::unavailable(NumberMappingProblem::emptyDockPosition()));
      numberProvider.publish(dock);
      EXPECT_TRUE(store->setLetterMapping("N", notes));
      catalogMonitor.reportChange();
    }
    --depth;
  });
  std::vector<std::uint64_t> second;
  const auto secondToken =
      store->observe([&](const KeyboardMappingSnapshot& s) { second.push_back(s.revision); });

  ASSERT_TRUE(store->setLetterMapping("M", mail));
  // The Dock's snapshot, the assignment and the catalog's change, one snapshot each.
  EXPECT_EQ(seen, (std::vector<std::string>{"1:M=com.example.mail ", "2:M=com.example.mail ",
                                            "3:M=com.example.mail N=com.example.notes ",
                                            "4:M=com.example.mail N=com.example.notes "}));
  // Every observer sees every snapshot, in order.
  EXPECT_EQ(second, (std::vector<std::uint64_t>{1, 2, 3, 4}));
  EXPECT_EQ(store->snapshot().numberEntries.at(3).problem()->kind(),
            NumberMappingProblem::Kind::emptyDockPosition);

  store->stopMonitoring();
  EXPECT_FALSE(numberProvider.isHeard());
  EXPECT_EQ(catalogMonitor.observerCount(), 0u);
  catalogMonitor.reportChange();
  EXPECT_EQ(second.size(), 4u);
}

TEST_F(KeyboardMappingStoreTest, StartingCatchesUpWithTheDockAndTheCatalog) {
  const auto store = makeStore();
  auto dock = numberProvider.current();
  dock.revision = 1;
  dock.entries.set(1, NumberMappingEntry::unavailable(NumberMappingProblem::emptyDockPosition()));
  numberProvider.publish(dock);
  resolver.revision = 2;

  store->startMonitoring();
  store->startMonitoring();
  EXPECT_EQ(store->snapshot().numberEntries, dock.entries);
  EXPECT_EQ(store->snapshot().applicationCatalogRevision, 2u);
  EXPECT_EQ(store->snapshot().revision, 2u);
}

} // namespace
} // namespace quenby
