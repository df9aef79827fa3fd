#include "strings/LocalizableStringsCatalog.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(LocalizableStringsTest, ReadsDeclarationsTheWayTheCompilerDoes) {
  Scan scan;
  scanSource(R"cpp(
    // inline constexpr LocalizedText kCommentedOut{"commented", "x", "y"};
    constexpr char kQuote = '"'; int kN = 1'000; inline constexpr LocalizedText kSplit{
        "demo.split", "Say \"hi\"\\n"  "twice.\n"
        "\x41\101\u00e9", "Two "
        /* between */ "parts."};
    static constexpr LocalizedText kAssigned = {"demo.assigned", "A", "B",};
    inline constexpr LocalizedText kBroken{kSplit.key, "x", "y"};
    inline constexpr LocalizedText kAgain{"demo.assigned", "A", "B"};
    inline constexpr LocalizedText kClash{"demo.assigned", "A", "Another comment"};
  )cpp",
             "demo.hpp", scan);

  EXPECT_EQ(scan.strings, (LocalizableStrings{
                              {"demo.split", {"Say \"hi\"\\ntwice.\nAA\xC3\xA9", "Two parts."}},
                              {"demo.assigned", {"A", "B"}},
                          }));
  EXPECT_THAT(scan.problems,
              ElementsAre(HasSubstr("demo.hpp:8: kBroken"), HasSubstr("demo.hpp:10: \"demo.")));
}

TEST(LocalizableStringsTest, RenderedFileReadsBackAndDifferencesAreListed) {
  const LocalizableStrings declared{
      {"a.quote", {"Say \"hi\"\\ then\n\ttab\r", "Mentions \"quotes\"."}},
      {"b.plain", {"Plain", "A plain text."}},
  };
  EXPECT_EQ(parseStringsFile(renderStringsFile(declared)), declared);
  EXPECT_EQ(parseStringsFile(renderStringsFile({})), LocalizableStrings{});
  EXPECT_EQ(parseStringsFile("\"a\" = \"b\""), std::nullopt);
  EXPECT_EQ(parseStringsFile("/* open"), std::nullopt);

  EXPECT_TRUE(differences(declared, declared).empty());
  auto file = declared;
  file["a.quote"].english = "Changed";
  file["a.quote"].comment = "Another comment.";
  file.erase("b.plain");
  file["c.stale"] = {"Stale", "No longer declared."};
  EXPECT_THAT(differences(declared, file),
              ElementsAre(HasSubstr("\"a.quote\": the sources say"),
                          HasSubstr("\"a.quote\": the comment differs"),
                          HasSubstr("\"b.plain\" is declared but missing"),
                          HasSubstr("\"c.stale\" is in Localizable.strings but declared nowhere")));
}

} // namespace
} // namespace quenby
