#include "data/AppPreferencesStore.hpp"

#include "support/WriteDroppingKeyValueStore.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using Store = AppPreferencesStore;

constexpr const char* kValueMessage =
    "HUD size migration persistence error: Failed to persist migrated HUD size value.";
constexpr const char* kVersionMessage =
    "HUD size migration persistence error: Failed to persist migrated HUD size version.";

struct Fixture {
  WriteDroppingKeyValueStore defaults;
  std::vector<std::string> reports;
  Store::MigrationFailureReporter reporter() {
    return [this](const std::string& message) { reports.push_back(message); };
  }
};

TEST(AppPreferencesStoreTest, FreshInstallationMigratesAndReadsDefaults) {
  Fixture f;
  const Store store(f.defaults, f.reporter());
  EXPECT_EQ(f.defaults.object(Store::kHUDSizeKey), PropertyListValue("standard"));
  EXPECT_EQ(f.defaults.object(Store::kHUDSizeVersionKey), PropertyListValue(2));
  EXPECT_TRUE(f.reports.empty());
  const std::vector<std::pair<std::string, PropertyListValue>> expected{
      {"windowPlacement", "mainDisplay"},
      {"hudSize", "standard"},
      {"activationModifier", "option"},
      {"hudActivationGesture", "both"},
      {"hudTheme", "system"},
      {"hudOpacity", 100},
      {"shortcutAnimationEnabled", true},
      {"shortcutAnimationDisplay", "mainDisplay"},
      {"shortcutHidesFrontmostApplication", false}};
  EXPECT_EQ(store.rawValues(), expected);
}

TEST(AppPreferencesStoreTest, MigratesTheOlderSizeScaleOnlyBelowVersionTwo) {
  struct Case {
    std::optional<std::int64_t> version;
    std::optional<PropertyListValue> stored;
    HUDSizePreference reads;
    PropertyListValue storedAfter;
  };
  const std::vector<Case> cases{{1, "medium", HUDSizePreference::small, "small"},
                                {std::nullopt, "small", HUDSizePreference::small, "small"},
                                {1, "large", HUDSizePreference::standard, "standard"},
                                {0, "huge", HUDSizePreference::standard, "standard"},
                                {1, 3, HUDSizePreference::standard, "standard"},
                                {2, "medium", HUDSizePreference::standard, "medium"},
                                {3, "large", HUDSizePreference::large, "large"}};
  for (const auto& c : cases) {
    Fixture f;
    if (c.version) {
      f.defaults.preset(Store::kHUDSizeVersionKey, *c.version);
    }
    if (c.stored) {
      f.defaults.preset(Store::kHUDSizeKey, *c.stored);
    }
    const Store store(f.defaults, f.reporter());
    EXPECT_EQ(store.hudSize(), c.reads) << c.version.value_or(-1);
    EXPECT_EQ(f.defaults.object(Store::kHUDSizeKey), c.storedAfter);
    EXPECT_GE(f.defaults.integer(Store::kHUDSizeVersionKey), 2);
  }
}

TEST(AppPreferencesStoreTest, MalformedValuesReadAsTheDefaults) {
  Fixture f;
  Store store(f.defaults, f.reporter());
  for (const PropertyListValue& opacity :
       {PropertyListValue(75), PropertyListValue(80.5), PropertyListValue(80.0),
        PropertyListValue(true), PropertyListValue("80")}) {
    f.defaults.preset(Store::kHUDOpacityKey, opacity);
    EXPECT_EQ(store.hudOpacity(), HUDOpacityPreference::oneHundred);
  }
  f.defaults.preset(Store::kHUDOpacityKey, 80);
  EXPECT_EQ(store.hudOpacity(), HUDOpacityPreference::eighty);

  f.defaults.preset(Store::kShortcutAnimationEnabledKey, 0);
  EXPECT_TRUE(store.shortcutAnimationEnabled());
  f.defaults.preset(Store::kShortcutHidesFrontmostApplicationKey, 1);
  EXPECT_FALSE(store.shortcutHidesFrontmostApplication());
  f.defaults.preset(Store::kShortcutHidesFrontmostApplicationKey, true);
  EXPECT_TRUE(store.shortcutHidesFrontmostApplication());

  f.defaults.preset(Store::kWindowPlacementKey, "DisplayUnderMouse");
  EXPECT_EQ(store.windowPlacement(), WindowPlacementPreference::mainDisplay);
  f.defaults.preset(Store::kShortcutAnimationDisplayKey, 1);
  EXPECT_EQ(store.shortcutAnimationDisplay(), ShortcutAnimationDisplayPreference::mainDisplay);
  f.defaults.preset(Store::kHUDThemeKey, "");
  EXPECT_EQ(store.hudTheme(), HUDThemePreference::system);
  f.defaults.preset(Store::kHUDActivationGestureKey, "tap");
  EXPECT_EQ(store.hudActivationGesture(), HUDActivationGesturePreference::both);
  f.defaults.preset(Store::kActivationModifierKey, "command");
  EXPECT_EQ(store.activationModifier(), ActivationModifierPreference::option);
  f.defaults.preset(Store::kHUDSizeKey, "medium");
  EXPECT_EQ(store.hudSize(), HUDSizePreference::standard);
}

TEST(AppPreferencesStoreTest, WritesOnlyChangesAndTellsEveryObserverOnce) {
  Fixture f;
  Store store(f.defaults, f.reporter());
  std::vector<AppPreferenceChange> first;
  std::vector<AppPreferenceChange> second;
  const auto a = store.observe([&](AppPreferenceChange c) { first.push_back(c); });
  const auto b = store.observe([&](AppPreferenceChange c) { second.push_back(c); });
  f.defaults.writes.clear();

  // Each of these is what the property already reads as, stored or not.
  store.setHUDTheme(HUDThemePreference::system);
  store.setHUDSize(HUDSizePreference::standard);
  store.setShortcutAnimationEnabled(true);
  store.setHUDOpacity(HUDOpacityPreference::oneHundred);
  EXPECT_TRUE(f.defaults.writes.empty());
  EXPECT_TRUE(first.empty());

  store.setHUDOpacity(HUDOpacityPreference::seventy);
  store.setShortcutHidesFrontmostApplication(true);
  store.setActivationModifier(ActivationModifierPreference::control);
  store.setActivationModifier(ActivationModifierPreference::control);
  EXPECT_EQ(f.defaults.object(Store::kHUDOpacityKey), PropertyListValue(70));
  EXPECT_EQ(f.defaults.object(Store::kShortcutHidesFrontmostApplicationKey),
            PropertyListValue(true));
  EXPECT_EQ(f.defaults.object(Store::kActivationModifierKey), PropertyListValue("control"));
  const std::vector expected{
      AppPreferenceChange::hudOpacity(HUDOpacityPreference::seventy),
      AppPreferenceChange::shortcutHidesFrontmostApplication(true),
      AppPreferenceChange::activationModifier(ActivationModifierPreference::control)};
  EXPECT_EQ(first, expected);
  EXPECT_EQ(second, expected);
  EXPECT_EQ(first[1].valueIf<bool>(AppPreferenceProperty::shortcutHidesFrontmostApplication), true);
  EXPECT_EQ(first[1].valueIf<bool>(AppPreferenceProperty::shortcutAnimationEnabled), std::nullopt);
}

TEST(AppPreferencesStoreTest, ObservationsEndWhenCancelledOrDropped) {
  Fixture f;
  auto store = std::make_unique<Store>(f.defaults, f.reporter());
  int selfCancelling = 0;
  int steady = 0;
  int added = 0;
  AppPreferenceObservation own;
  AppPreferenceObservation late;
  own = store->observe([&](AppPreferenceChange) {
    ++selfCancelling;
    own.cancel();
    late = store->observe([&](AppPreferenceChange) { ++added; });
  });
  auto kept = store->observe([&](AppPreferenceChange) { ++steady; });
  store->setHUDTheme(HUDThemePreference::dark);
  store->setHUDTheme(HUDThemePreference::light);
  EXPECT_EQ(selfCancelling, 1);
  EXPECT_EQ(steady, 2);
  EXPECT_EQ(added, 1);

  kept.cancel();
  kept.cancel();
  { const auto dropped = std::move(late); }
  store->setHUDTheme(HUDThemePreference::dark);
  EXPECT_EQ(steady, 2);
  EXPECT_EQ(added, 1);

  auto outliving = store->observe([](AppPreferenceChange) {});
  store.reset();
  outliving.cancel();
  EXPECT_TRUE(outliving.isCancelled());
}

TEST(AppPreferencesStoreTest, UnpersistedSizeValueIsKeptInMemoryUntilAWriteTakes) {
  Fixture f;
  f.defaults.preset(Store::kHUDSizeVersionKey, 1);
  f.defaults.preset(Store::kHUDSizeKey, "medium");
  f.defaults.droppedKeys = {std::string(Store::kHUDSizeKey)};
  Store store(f.defaults, f.reporter());
  EXPECT_EQ(f.reports, std::vector<std::string>{kValueMessage});
  EXPECT_EQ(store.hudSize(), HUDSizePreference::small);
  EXPECT_EQ(store.migratedHUDSizeFallback(), HUDSizePreference::small);
  EXPECT_EQ(f.defaults.integer(Store::kHUDSizeVersionKey), 1);

  std::vector<AppPreferenceChange> changes;
  const auto observation = store.observe([&](AppPreferenceChange c) { changes.push_back(c); });
  store.setHUDSize(HUDSizePreference::small);
  EXPECT_TRUE(changes.empty());
  store.setHUDSize(HUDSizePreference::large);
  EXPECT_EQ(store.hudSize(), HUDSizePreference::large);
  EXPECT_EQ(f.reports.size(), 2U);

  f.defaults.droppedKeys.clear();
  store.setHUDSize(HUDSizePreference::standard);
  EXPECT_EQ(store.migratedHUDSizeFallback(), std::nullopt);
  EXPECT_EQ(f.defaults.object(Store::kHUDSizeKey), PropertyListValue("standard"));
  EXPECT_EQ(f.defaults.integer(Store::kHUDSizeVersionKey), 2);
  EXPECT_EQ(changes, (std::vector{AppPreferenceChange::hudSize(HUDSizePreference::large),
                                  AppPreferenceChange::hudSize(HUDSizePreference::standard)}));
}

TEST(AppPreferencesStoreTest, UnpersistedSizeVersionRestoresTheOldOneAndLogs) {
  struct RecordingLogger final : Logger {
    void log(LogLevel level, std::string_view category, std::string_view message) override {
      lines.push_back({level, std::string(category), std::string(message)});
    }
    std::vector<std::tuple<LogLevel, std::string, std::string>> lines;
  } logger;
  WriteDroppingKeyValueStore defaults;
  defaults.preset(Store::kHUDSizeVersionKey, 1);
  defaults.preset(Store::kHUDSizeKey, "small");
  defaults.droppedKeys = {std::string(Store::kHUDSizeVersionKey)};
  const Store store(defaults, Store::loggingReporter(logger));
  EXPECT_EQ(std::count(defaults.writes.begin(), defaults.writes.end(), Store::kHUDSizeVersionKey),
            2);
  EXPECT_EQ(store.migratedHUDSizeFallback(), HUDSizePreference::small);
  ASSERT_EQ(logger.lines.size(), 1U);
  EXPECT_EQ(logger.lines[0], std::make_tuple(LogLevel::error, std::string("Preferences"),
                                             std::string(kVersionMessage)));
}

TEST(AppPreferencesStoreTest, SetRawParsesTheTextOfEveryKindOfProperty) {
  Fixture f;
  Store store(f.defaults, f.reporter());
  EXPECT_TRUE(store.setRaw("hudOpacity", "80").value());
  EXPECT_FALSE(store.setRaw("hudOpacity", "80").value());
  EXPECT_EQ(store.hudOpacity(), HUDOpacityPreference::eighty);
  EXPECT_TRUE(store.setRaw("windowPlacement", "displayUnderMouse").value());
  EXPECT_TRUE(store.setRaw("shortcutAnimationEnabled", "false").value());
  EXPECT_FALSE(store.shortcutAnimationEnabled());
  EXPECT_EQ(store.rawValues()[0].second, PropertyListValue("displayUnderMouse"));

  EXPECT_EQ(store.setRaw("hudOpacity", "75").error(),
            "hudOpacity must be one of 60, 70, 80, 90, 100");
  EXPECT_EQ(store.setRaw("hudOpacity", "80 ").error(),
            "hudOpacity must be one of 60, 70, 80, 90, 100");
  EXPECT_EQ(store.setRaw("hudSize", "medium").error(),
            "hudSize must be one of small, standard, large");
  EXPECT_EQ(store.setRaw("shortcutHidesFrontmostApplication", "1").error(),
            "shortcutHidesFrontmostApplication must be true or false");
  EXPECT_EQ(store.setRaw("HUDSize", "small").error(), "unknown preference \"HUDSize\"");

  for (const auto opacity : allCases<HUDOpacityPreference>()) {
    EXPECT_EQ(fromRawValue<HUDOpacityPreference>(rawValue(opacity)), opacity);
  }
  EXPECT_EQ(allCases<HUDSizePreference>().back(), HUDSizePreference::large);
}

TEST(AppPreferencesStoreTest, EveryValueOfEveryPreferenceSurvivesARestartAndIsAnnounced) {
  Fixture f;
  auto store = std::make_unique<Store>(f.defaults, f.reporter());
  std::vector<AppPreferenceChange> changes;
  const auto record = [&changes](AppPreferenceChange c) { changes.push_back(c); };
  auto observation = store->observe(record);
  const auto shownAs = [&store](const std::string& name) -> std::string {
    for (const auto& [shown, value] : store->rawValues()) {
      if (shown == name) {
        if (const auto* flag = value.boolean()) {
          return *flag ? "true" : "false";
        }
        return value.string() ? *value.string() : std::to_string(*value.integer());
      }
    }
    return "absent";
  };
  std::vector<std::pair<std::string, std::string>> texts;
  for (const auto& [name, value] : store->rawValues()) {
    // Each preference's non-default values, written as a scenario would write them.
    const auto property = appPreferencePropertyNamed(name);
    ASSERT_TRUE(property.has_value()) << name;
    EXPECT_EQ(propertyName(*property), name);
    if (const auto* flag = value.boolean()) {
      texts.emplace_back(name, *flag ? "false" : "true");
    }
  }
  for (const auto size : allCases<HUDSizePreference>()) {
    texts.emplace_back("hudSize", std::string(rawValue(size)));
  }
  for (const auto opacity : allCases<HUDOpacityPreference>()) {
    texts.emplace_back("hudOpacity", std::to_string(rawValue(opacity)));
  }
  texts.emplace_back("windowPlacement", "displayUnderMouse");
  texts.emplace_back("shortcutAnimationDisplay", "displayUnderMouse");
  texts.emplace_back("hudTheme", "light");
  texts.emplace_back("hudActivationGesture", "longPress");
  texts.emplace_back("activationModifier", "control");

  for (const auto& [name, text] : texts) {
    changes.clear();
    const bool changed = store->setRaw(name, text).value();
    EXPECT_EQ(changes.size(), changed ? 1U : 0U) << name << " " << text;
    if (changed) {
      EXPECT_EQ(propertyName(changes[0].property), name);
    }
    const auto before = store->rawValues();
    store = std::make_unique<Store>(f.defaults, f.reporter());
    observation = store->observe(record);
    EXPECT_EQ(shownAs(name), text);
    EXPECT_EQ(store->rawValues(), before) << name << " " << text;
  }
  EXPECT_TRUE(f.reports.empty());
}

} // namespace
} // namespace quenby
