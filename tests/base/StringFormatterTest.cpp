#include "base/StringFormatter.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(StringFormatterTest, FillsSequentialAndPositionalSpecifiers) {
  EXPECT_EQ(formatLocalized("%@: no URL.", {"Mail"}), "Mail: no URL.");
  EXPECT_EQ(formatLocalized("Dock position %lld", {7LL}), "Dock position 7");
  EXPECT_EQ(formatLocalized("%@ at %lld%%", {"Mail", 3LL}), "Mail at 3%");
  // A translation may reorder its arguments.
  EXPECT_EQ(formatLocalized("%2$lld: %1$@", {"Mail", 3LL}), "3: Mail");
  EXPECT_EQ(formatLocalized("%1$@ %1$@", {"echo"}), "echo echo");
  EXPECT_EQ(formatLocalized("%lld", {-42LL}), "-42");
}

TEST(StringFormatterTest, BrokenFormatsShowTheirMistakeInsteadOfFailing) {
  EXPECT_EQ(formatLocalized("%@ and %@", {"one"}), "one and %@");
  EXPECT_EQ(formatLocalized("%3$@", {"one"}), "%3$@");
  EXPECT_EQ(formatLocalized("%0$@", {"one"}), "%0$@");
  EXPECT_EQ(formatLocalized("100% sure %d", {"x"}), "100% sure %d");
  EXPECT_EQ(formatLocalized("trailing %", {}), "trailing %");
  EXPECT_EQ(formatLocalized("%lld", {"text"}), "text"); // the other kind is written as it is
}

} // namespace
} // namespace quenby
