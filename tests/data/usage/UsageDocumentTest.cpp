#include "data/usage/StoredUsageState.hpp"
#include "data/usage/UsageStoreFixture.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <random>

namespace quenby {
namespace {

using Json = nlohmann::json;

const std::string kSeed =
    R"({"version":1,"totals":{"hud":3,"optionDigit":2,"optionLetter":1},)"
    R"("daily":{"2026-03-06":{"totals":{"hud":1}},"2026-03-07":{"totals":{"hud":2,"optionDigit":2,)"
    R"("optionLetter":1}}},"apps":{"com.apple.mail":{"displayName":"Mail \u2709 ✉",)"
    R"("successCount":2,"failureCount":1}},"appDaily":{"2026-03-07":{"com.apple.mail":)"
    R"({"displayName":"Mail","successCount":2,"failureCount":1}}},"startedOn":794566800.5})";

std::string replaced(std::string text, std::string_view from, std::string_view to) {
  if (const auto at = text.find(from); at != std::string::npos) {
    text.replace(at, from.size(), to);
  }
  return text;
}

void collectPointers(const Json& json, const Json::json_pointer& at,
                     std::vector<Json::json_pointer>& out) {
  out.push_back(at);
  if (json.is_object()) {
    for (const auto& [key, value] : json.items()) {
      collectPointers(value, at / key, out);
    }
  }
}

/// Broken, odd and hostile variations of a readable document.
std::vector<std::string> payloads() {
  std::vector<std::string> out;
  for (std::size_t length = 0; length < kSeed.size(); ++length) {
    out.push_back(kSeed.substr(0, length));
  }
  for (std::size_t i = 0; i < kSeed.size(); ++i) {
    for (const char byte : std::string_view("\0\"{}[],:9-x\xFF\xC3", 14)) {
      auto flipped = kSeed;
      flipped[i] = byte;
      out.push_back(std::move(flipped));
    }
  }
  const Json seed = Json::parse(kSeed);
  std::vector<Json::json_pointer> pointers;
  collectPointers(seed, Json::json_pointer(), pointers);
  for (const auto& pointer : pointers) {
    for (const char* value :
         {"null", "true", "-1", "1.5", "\"7\"", "[]", "{}", "1e400", "18446744073709551615",
          "9223372036854775808", "-9223372036854775809", "123456789012345678901234567890"}) {
      auto document = seed;
      document[pointer] = "@@";
      out.push_back(replaced(document.dump(), "\"@@\"", value));
    }
    auto without = seed;
    if (!pointer.empty()) {
      without.at(pointer.parent_pointer()).erase(pointer.back());
      out.push_back(without.dump());
    }
  }
  for (const char* version : {"0", "1", "2", "7", "-1"}) {
    out.push_back(replaced(kSeed, "\"version\":1", std::string("\"version\":") + version));
    out.push_back(std::string(R"({"version":)") + version + R"(,"totals":{"hud":"x"}})");
    out.push_back(std::string(R"({"version":)") + version + "}");
  }
  for (const char* duplicate : {R"({"version":1,"version":2})", R"({"version":2,"version":1})",
                                R"({"version":1,"totals":{"hud":1,"hud":"x"}})",
                                R"({"version":1,"totals":{"hud":1,"hud":2}})",
                                R"({"version":1,"apps":{},"apps":{"a":{"displayName":"A"}}})"}) {
    out.emplace_back(duplicate);
  }
  for (const char* bad : {"\xFF", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\\ud800",
                          "\\udc00\\ud800", "\xE2\x9C", "\x01"}) {
    out.push_back(replaced(kSeed, "Mail\"", std::string("Mail") + bad + "\""));
    out.push_back(replaced(kSeed, "\"hud\"", std::string("\"h") + bad + "ud\""));
  }
  for (const int depth : {30, 31, 32, 33, 100, 5000}) {
    out.push_back(replaced(kSeed, "\"startedOn\":794566800.5",
                           "\"x\":" + std::string(depth, '[') + std::string(depth, ']')));
  }
  std::mt19937 random(20260307);
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  while (out.size() < 10'000) {
    auto text = kSeed;
    for (std::size_t edits = 1 + below(4); edits > 0 && !text.empty(); --edits) {
      const auto at = below(text.size());
      switch (below(4)) {
      case 0:
        text[at] = static_cast<char>(below(256));
        break;
      case 1:
        text.erase(at, 1 + below(8));
        break;
      case 2:
        text.insert(at, text.substr(below(text.size()), 1 + below(12)));
        break;
      default:
        text.insert(at, 1, "{}[]\",:0"[below(8)]);
      }
    }
    out.push_back(std::move(text));
  }
  return out;
}

TEST(UsageDocumentTest, EveryPayloadLoadsOrIsSetAsideByteForByte) {
  const auto all = payloads();
  ASSERT_GE(all.size(), 10'000U);
  std::size_t unreadable = 0;
  std::vector<std::string> mistakes;
  for (const auto& payload : all) {
    UsageStoreFixture f;
    f.store(payload);
    const auto store = f.make();
    const auto decoded = StoredUsageState::decode(payload);
    const auto backups = f.backupKeys();
    bool right = false;
    if (decoded) {
      right = backups.empty() && store->lifetimeTotals() == decoded->totals &&
              store->state().apps == decoded->apps;
    } else {
      ++unreadable;
      const auto reset = StoredUsageState::decode(f.stored());
      right = backups.size() == 1 && f.stored(backups[0]) == payload && reset &&
              reset->totals.isEmpty() && reset->daily.empty() && reset->appDaily.empty() &&
              f.reporter.failures.size() == 1;
    }
    if (!right && mistakes.size() < 5) {
      mistakes.push_back(payload);
    }
  }
  EXPECT_EQ(mistakes, std::vector<std::string>{});
  // Both paths were really taken, many times.
  EXPECT_GT(unreadable, 5'000U);
  EXPECT_GT(all.size() - unreadable, 500U);
}

TEST(UsageDocumentTest, NestingIsRefusedBeforeParsingButBracketsInTextAreNot) {
  const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
  std::string objects;
  for (int i = 0; i < 100'000; ++i) {
    objects += "{\"a\":";
  }
  objects += "1" + std::string(100'000, '}');
  for (const auto& payload :
       {deep, std::string(100'000, '['), objects, "{\"version\":1,\"x\":" + deep + "}"}) {
    EXPECT_FALSE(StoredUsageState::decode(payload));
    UsageStoreFixture f;
    f.store(payload);
    f.make();
    EXPECT_EQ(f.stored(f.backupKeys().at(0)), payload);
  }
  const auto name = std::string(100'000, '[') + "\\\"{";
  const auto inText = replaced(kSeed, "\"Mail\"", "\"" + name + "\"");
  const auto decoded = StoredUsageState::decode(inText);
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->appDaily.begin()->second.begin()->second.displayName.size(), 100'002U);
}

TEST(UsageDocumentTest, ReadsWhatItWritesAndToleratesMissingCollections) {
  const auto seed = StoredUsageState::decode(kSeed);
  ASSERT_TRUE(seed);
  EXPECT_EQ(seed->apps.at("com.apple.mail").displayName, "Mail ✉ ✉");
  EXPECT_EQ(seed->daily.at(UsageDayKey("2026-03-06")).totals.counts,
            (std::array<std::int64_t, 3>{1, 0, 0}));
  EXPECT_EQ(StoredUsageState::decode(seed->encode()).value(), *seed);

  for (const char* sparse : {R"({"version":1})", R"({"version":0,"totals":null,"daily":null})",
                             R"({"version":-1,"daily":{"2026-03-07":{}},"unknown":[1]})"}) {
    const auto decoded = StoredUsageState::decode(sparse);
    ASSERT_TRUE(decoded) << sparse;
    EXPECT_TRUE(decoded->totals.isEmpty());
    EXPECT_TRUE(decoded->apps.empty() && decoded->appDaily.empty());
    EXPECT_EQ(decoded->startedOn, std::nullopt);
  }
  for (const char* unreadable :
       {R"({"totals":{}})", R"({"version":"1"})", R"({"version":1.0})", R"([1])",
        R"({"version":1,"totals":{"hud":-1}})", R"({"version":1,"totals":{"mouse":1}})",
        R"({"version":1,"apps":{"a":{"displayName":"A","successCount":1}}})"}) {
    const auto decoded = StoredUsageState::decode(unreadable);
    ASSERT_FALSE(decoded) << unreadable;
    EXPECT_EQ(decoded.error().unsupportedVersion, std::nullopt);
  }
  EXPECT_EQ(StoredUsageState::decode(R"({"version":9,"totals":"x"})").error().unsupportedVersion,
            9);
}

TEST(UsageDocumentTest, FixedOffsetCalendarDaysAndLimits) {
  const FixedOffsetUsageCalendar tokyo(std::chrono::hours{9});
  const FixedOffsetUsageCalendar honolulu(std::chrono::hours{-10});
  const WallTime lateEvening =
      std::chrono::sys_days{std::chrono::year{2026} / 12 / 31} + std::chrono::hours{20};
  EXPECT_EQ(UsageDayKey::from(*tokyo.day(lateEvening)).rawValue(), "2027-01-01");
  EXPECT_EQ(UsageDayKey::from(*honolulu.day(lateEvening)).rawValue(), "2026-12-31");
  EXPECT_EQ(*tokyo.startOfDay(lateEvening),
            std::chrono::sys_days{std::chrono::year{2026} / 12 / 31} + std::chrono::hours{15});
  EXPECT_EQ(UsageDayKey::from(*tokyo.day(*tokyo.addingDays(-60, lateEvening))).rawValue(),
            "2026-11-02");
  EXPECT_EQ(UsageDayKey::from(std::chrono::year{987} / 6 / 5).rawValue(), "0987-06-05");

  EXPECT_EQ(tokyo.day(WallTime::max()), std::nullopt);
  EXPECT_EQ(honolulu.startOfDay(WallTime::min()), std::nullopt);
  EXPECT_EQ(tokyo.addingDays(1, WallTime::max() - std::chrono::hours{1}), std::nullopt);
  EXPECT_EQ(tokyo.addingDays(std::numeric_limits<std::int64_t>::min(), lateEvening), std::nullopt);
}

} // namespace
} // namespace quenby
