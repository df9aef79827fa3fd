#include "hud/view/KeyboardHUDContentBuilder.hpp"

#include "hud/view/KeyboardHUDLayout.hpp"
#include "hud/view/KeyboardHUDTexts.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

AppMapping mapping(MappingSource source, std::string name, std::string bundleIdentifier,
                   ApplicationResolution resolution) {
  const auto url = FileURL::fromPath("/Applications/" + name + ".app");
  return {.displayName = std::move(name),
          .bundleIdentifier = std::move(bundleIdentifier),
          .lastKnownURL = url,
          .resolution = std::move(resolution),
          .source = source};
}

AppMapping resolved(MappingSource source, std::string name, std::string bundleIdentifier) {
  const auto url = FileURL::fromPath("/Applications/" + name + ".app");
  return mapping(source, std::move(name), std::move(bundleIdentifier),
                 ApplicationResolution::resolved(url));
}

/// Translates every text into a recognisable pseudo-language, so that a test sees which text
/// was taken and that it went through the localiser.
class BracketingLocalizer final : public Localizer {
public:
  [[nodiscard]] std::string localized(const LocalizedText& text) const override {
    return "[" + std::string(text.english) + "]";
  }
};

class KeyboardHUDContentBuilderTest : public ::testing::Test {
protected:
  KeyboardHUDContentBuilderTest() {
    auto& entries = cache.snapshot.numberEntries;
    entries.set(
        1, NumberMappingEntry::mapped(resolved(MappingSource::dock(1), "Mail", "com.apple.mail")));
    entries.set(2, NumberMappingEntry::unavailable(NumberMappingProblem::invalidDockEntry("x")));
    entries.set(
        3, NumberMappingEntry::mapped(mapping(MappingSource::dock(3), "Gone", "com.example.gone",
                                              ApplicationResolution::notFound())));
    auto& letters = cache.snapshot.letterMappings;
    letters.emplace('S', resolved(MappingSource::letter('S'), "Safari", "com.apple.Safari"));
    // Resolved, but not to an application bundle: the switch would refuse it.
    letters.emplace('N', mapping(MappingSource::letter('N'), "Notes", "com.apple.Notes",
                                 ApplicationResolution::resolved(
                                     FileURL::fromPath("/Applications/Notes.txt"))));
    letters.emplace('U', mapping(MappingSource::letter('U'), "", "com.example.unnamed",
                                 ApplicationResolution::notFound()));
    cache.runningBundleIdentifiers = {"com.apple.Safari", "com.apple.Notes", "com.example.idle"};
    cache.icons.emplace("com.apple.mail", std::make_shared<PreparedApplicationIcon>());
    cache.icons.emplace("com.apple.Safari", nullptr);
  }

  EnglishLocalizer english;
  KeyboardHUDContentBuilder builder{english};
  KeyboardHUDMappingCache cache;
};

TEST_F(KeyboardHUDContentBuilderTest, StatesFollowTheDockTheLettersAndTheSwitchingCheck) {
  const auto mail = builder.keyView(HUDKey::number(1), cache);
  EXPECT_EQ(mail.label, "1");
  EXPECT_EQ(mail.visualState, KeyboardHUDKeyVisualState::bound);
  EXPECT_EQ(mail.mapping, *cache.snapshot.numberEntries.at(1).mapping());
  EXPECT_FALSE(mail.isRunning);
  ASSERT_FALSE(mail.icon.isPlaceholder());
  EXPECT_EQ(mail.icon.icon(), cache.icons.at("com.apple.mail"));
  EXPECT_EQ(mail.caption, "Mail");

  // An unavailable position is a key without a mapping, like an empty one.
  for (const int digit : {2, 9}) {
    const auto view = builder.keyView(HUDKey::number(digit), cache);
    EXPECT_EQ(view.visualState, KeyboardHUDKeyVisualState::unbound) << digit;
    EXPECT_EQ(view.mapping, std::nullopt);
    EXPECT_TRUE(view.icon.isPlaceholder());
    EXPECT_EQ(view.caption, "");
  }
  EXPECT_EQ(builder.keyView(HUDKey::number(3), cache).visualState,
            KeyboardHUDKeyVisualState::invalid);

  const auto safari = builder.keyView(HUDKey::letter('S'), cache);
  EXPECT_EQ(safari.visualState, KeyboardHUDKeyVisualState::bound);
  EXPECT_TRUE(safari.isRunning);
  EXPECT_TRUE(safari.icon.isPlaceholder()) << "a null icon in the cache is still loading";

  const auto notes = builder.keyView(HUDKey::letter('N'), cache);
  EXPECT_EQ(notes.visualState, KeyboardHUDKeyVisualState::invalid);
  EXPECT_TRUE(notes.isRunning);
  EXPECT_EQ(builder.keyView(HUDKey::letter('Q'), cache).visualState,
            KeyboardHUDKeyVisualState::unbound);
}

TEST_F(KeyboardHUDContentBuilderTest, SpokenLabelsNameTheKeyTheApplicationAndItsState) {
  const auto spoken = [&](HUDKey key) { return builder.keyView(key, cache).accessibilityLabel; };
  EXPECT_EQ(spoken(HUDKey::number(1)), "1, bound to Mail");
  EXPECT_EQ(spoken(HUDKey::number(2)), "2, unbound");
  EXPECT_EQ(spoken(HUDKey::number(3)), "3, Gone, invalid mapping");
  EXPECT_EQ(spoken(HUDKey::letter('S')), "S, bound to Safari, running");
  EXPECT_EQ(spoken(HUDKey::letter('N')), "N, Notes, invalid mapping, running");
  EXPECT_EQ(spoken(HUDKey::letter('U')), "U, invalid mapping");
  EXPECT_EQ(spoken(HUDKey::escape()), "Esc, unbound");
  EXPECT_EQ(spoken(HUDKey::other()), "Key, unbound");

  BracketingLocalizer bracketing;
  const KeyboardHUDContentBuilder translated(bracketing);
  EXPECT_EQ(translated.label(HUDKey::escape()), "[Esc]");
  EXPECT_EQ(translated.keyView(HUDKey::letter('S'), cache).accessibilityLabel,
            "[S, bound to Safari, running]");
  EXPECT_EQ(translated.keyView(HUDKey::letter('U'), cache).accessibilityLabel,
            "[U, invalid mapping]");
}

TEST(KeyboardHUDContentBuilderCaptionTest, LongNamesAreCutAtWholeCharacters) {
  EXPECT_EQ(KeyboardHUDContentBuilder::caption(""), "");
  EXPECT_EQ(KeyboardHUDContentBuilder::caption("Calculator"), "Calculator");
  EXPECT_EQ(KeyboardHUDContentBuilder::caption("Calculators"), "Calculato\u2026");
  EXPECT_EQ(KeyboardHUDContentBuilder::caption("Caf\u00e9 N\u00f6ir!"), "Caf\u00e9 N\u00f6ir!");
  EXPECT_EQ(KeyboardHUDContentBuilder::caption("\u65e5\u672c\u8a9e\u30a8\u30c7\u30a3\u30bf"
                                               "\u30fc\u30bd\u30d5\u30c8"),
            "\u65e5\u672c\u8a9e\u30a8\u30c7\u30a3\u30bf\u30fc\u30bd\u2026");
}

} // namespace
} // namespace quenby
