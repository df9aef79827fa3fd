#include "shortcuts/hotkeys/SymbolicHotKeyConflict.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

using Conflict = SymbolicHotKeyConflict;
using Modifier = ActivationModifierPreference;
using Dictionary = PropertyListValue::Dictionary;
using Array = PropertyListValue::Array;

constexpr std::int64_t kControl = 262144;
constexpr std::int64_t kOption = 524288;

PropertyListValue entry(PropertyListValue enabled, PropertyListValue parameters) {
  return Dictionary{{"enabled", std::move(enabled)},
                    {"value", Dictionary{{"parameters", std::move(parameters)}}}};
}

PropertyListValue entry(bool enabled, std::int64_t keyCode, std::int64_t flags) {
  return entry(enabled, Array{65535, keyCode, flags});
}

TEST(SymbolicHotKeyConflictTest, FindsEnabledShortcutsOfExactlyTheModifierAndADigit) {
  const PropertyListValue table = Dictionary{
      {"118", entry(true, 18, kControl)},                     // Control-1
      {"123", entry(true, 22, kControl)},                     // Control-6 (key code 22)
      {"119", entry(false, 19, kControl)},                    // disabled
      {"120", entry(true, 20, kControl | 131072)},            // Control-Shift-3
      {"121", entry(true, 21, kOption)},                      // Option-4
      {"60", entry(true, 49, kControl)},                      // Control-Space: not a digit
      {"200", entry(true, 83, kControl)},                     // keypad 1: not the main row
      {"79", entry(1, Array{65535, 23, kControl | 8388608})}, // Control-5 with the fn bit
  };
  const std::vector<Conflict> expected{{1, 118}, {5, 79}, {6, 123}};
  EXPECT_EQ(Conflict::findAll(table, Modifier::control), expected);
  EXPECT_EQ(Conflict::findAll(table, Modifier::option), (std::vector<Conflict>{{4, 121}}));
}

TEST(SymbolicHotKeyConflictTest, SkipsMalformedEntriesAndTables) {
  const PropertyListValue table = Dictionary{
      {"abc", entry(true, 18, kControl)},
      {"118x", entry(true, 18, kControl)},
      {"", entry(true, 18, kControl)},
      {"119", "not a dictionary"},
      {"120", Dictionary{{"value", Dictionary{{"parameters", Array{65535, 20, kControl}}}}}},
      {"121", entry("yes", Array{65535, 21, kControl})},
      {"122", entry(true, Array{65535, 23})},
      {"123", entry(true, Array{65535, "22", kControl})},
      {"124", entry(true, "parameters")},
      {"125", Dictionary{{"enabled", true}, {"value", Array{}}}},
      {"126", entry(true, Array{65535, 25, 262144.0})},
  };
  EXPECT_TRUE(Conflict::findAll(table, Modifier::control).empty());
  EXPECT_TRUE(Conflict::findAll(PropertyListValue(Array{}), Modifier::control).empty());
}

TEST(SymbolicHotKeyConflictTest, NamesDesktopSwitchesAndOtherShortcuts) {
  const EnglishLocalizer english;
  EXPECT_EQ((Conflict{3, 120}).takenBy(english), "Switch to Desktop 3");
  EXPECT_EQ((Conflict{9, 126}).takenBy(english), "Switch to Desktop 9");
  EXPECT_EQ((Conflict{1, 117}).takenBy(english), "a system shortcut");
  EXPECT_EQ((Conflict{1, 127}).takenBy(english), "a system shortcut");
  EXPECT_EQ((Conflict{4, 60}).message(Modifier::option, english),
            "Option-4 is used by a system shortcut in System Settings > Keyboard > Keyboard "
            "Shortcuts");
}

} // namespace
} // namespace quenby
