#include "app/menu/MenuBarPresentation.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using ::testing::ElementsAreArray;
using Modifier = ActivationModifierPreference;
using Digits = OptionDigitHotKeyHealth;

struct Case {
  const char* name;
  MenuBarPresentationInputs inputs;
  MenuBarIconState icon;
  std::vector<std::string> items; // "-" for a separator
};

std::vector<std::string> titles(const MenuBarPresentation& presentation) {
  std::vector<std::string> titles;
  for (const auto& item : presentation.items) {
    titles.push_back(item.isSeparator ? "-" : item.title);
  }
  return titles;
}

TEST(MenuBarPresentationTest, EachHealthReadsAsItsStatusLinesRepairItemsAndIcon) {
  const HUDHealth tapStopped = HUDHealth::tapFailure(
      HUDTapFailure::runtime(GlobalKeyboardEventTapFailure::disabledByUserInput));
  const std::vector<Case> cases{
      {"both permissions missing",
       {{HUDHealth::needsPermission({false, false}), Digits::ready()}, true},
       MenuBarIconState::attention,
       {"Keyboard HUD: Permission Required", "Missing: Accessibility, Input Monitoring",
        "Digit Shortcuts: Ready", "Disable Keyboard HUD", "Open Accessibility Settings…",
        "Open Input Monitoring Settings…", "-", "Settings", "-", "Quit Quenby"}},
      {"input monitoring missing",
       {{HUDHealth::needsPermission({true, false}), Digits::ready()}, true},
       MenuBarIconState::attention,
       {"Keyboard HUD: Permission Required", "Missing: Input Monitoring", "Digit Shortcuts: Ready",
        "Disable Keyboard HUD", "Open Input Monitoring Settings…", "-", "Settings", "-",
        "Quit Quenby"}},
      {"event tap failed",
       {{tapStopped, Digits::ready()}, true},
       MenuBarIconState::attention,
       {"Keyboard HUD: Event Tap Failed",
        "HUD issue: The global keyboard event tap was disabled by user input.",
        "Digit Shortcuts: Ready", "Disable Keyboard HUD", "Retry Keyboard HUD", "-", "Settings",
        "-", "Quit Quenby"}},
      {"registration failed under Control",
       {{HUDHealth::disabled(), Digits::registrationFailed(OptionDigitHotKeyError::registerHotKey(
                                    Modifier::control, 3, -9878))},
        false,
        Modifier::control},
       MenuBarIconState::attention,
       {"Keyboard HUD: Disabled", "Digit Shortcuts: Registration Failed",
        "Shortcut issue: Unable to register Control-3: OSStatus -9878.",
        "Quit or reconfigure apps using Control-1 through Control-9, then retry.",
        "Enable Keyboard HUD…", "Retry Control-Digit Shortcuts", "-", "Settings", "-",
        "Quit Quenby"}},
      // Only a refused combination is another application's doing.
      {"handler not installed",
       {{HUDHealth::disabled(),
         Digits::registrationFailed(OptionDigitHotKeyError::installHandler(-50))},
        false},
       MenuBarIconState::attention,
       {"Keyboard HUD: Disabled", "Digit Shortcuts: Registration Failed",
        "Shortcut issue: Unable to install the digit shortcut handler: OSStatus -50.",
        "Enable Keyboard HUD…", "Retry Option-Digit Shortcuts", "-", "Settings", "-",
        "Quit Quenby"}},
      {"disabled",
       {{HUDHealth::disabled(), Digits::ready()}, false},
       MenuBarIconState::normal,
       {"Keyboard HUD: Disabled", "Digit Shortcuts: Ready", "Enable Keyboard HUD…", "-", "Settings",
        "-", "Quit Quenby"}},
      {"ready, digits not started",
       {{HUDHealth::ready(), Digits::notStarted()}, true},
       MenuBarIconState::normal,
       {"Keyboard HUD: Ready", "Digit Shortcuts: Not Started", "Disable Keyboard HUD", "-",
        "Settings", "-", "Quit Quenby"}},
      {"ready with a diagnostics issue",
       {{HUDHealth::ready(), Digits::ready()}, true, Modifier::option, true},
       MenuBarIconState::attention,
       {"Keyboard HUD: Ready", "Digit Shortcuts: Ready", "Disable Keyboard HUD", "-", "Settings",
        "-", "Quit Quenby"}},
      {"ready, but secure entry held and the grant stale",
       {{HUDHealth::ready(), Digits::ready()},
        true,
        Modifier::option,
        false,
        {.secureInputHolder = "Terminal", .tapLooksStale = true}},
       MenuBarIconState::attention,
       {"Keyboard HUD: Ready",
        "Letter shortcuts are paused: Terminal is using secure keyboard entry",
        "Keyboard access looks stale: remove Quenby from Input Monitoring and add it again",
        "Digit Shortcuts: Ready", "Disable Keyboard HUD", "Open Input Monitoring Settings…", "-",
        "Settings", "-", "Quit Quenby"}},
      // A password field holding secure entry is no fault; and with no tap there is none to pause.
      {"ready, secure entry held by an unnamed application",
       {{HUDHealth::ready(), Digits::ready()},
        true,
        Modifier::option,
        false,
        {.secureInputHolder = "", .tapLooksStale = false}},
       MenuBarIconState::normal,
       {"Keyboard HUD: Ready",
        "Letter shortcuts are paused: another app is using secure keyboard entry",
        "Digit Shortcuts: Ready", "Disable Keyboard HUD", "-", "Settings", "-", "Quit Quenby"}},
      {"disabled while secure entry is held",
       {{HUDHealth::disabled(), Digits::ready()},
        false,
        Modifier::option,
        false,
        {.secureInputHolder = "Terminal", .tapLooksStale = true}},
       MenuBarIconState::normal,
       {"Keyboard HUD: Disabled", "Digit Shortcuts: Ready", "Enable Keyboard HUD…", "-", "Settings",
        "-", "Quit Quenby"}},
  };
  const EnglishLocalizer localizer;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const auto presentation = MenuBarPresentation::make(c.inputs, localizer);
    EXPECT_THAT(titles(presentation), ElementsAreArray(c.items));
    EXPECT_EQ(presentation.iconState, c.icon);
    EXPECT_EQ(presentation.accessibilityDescription,
              c.icon == MenuBarIconState::normal ? "Quenby" : "Quenby needs attention");
    // Every line before the HUD switch is information and can never be chosen; every line
    // after it but the separators is an action.
    bool isStatus = true;
    for (const auto& item : presentation.items) {
      isStatus = isStatus && item.command != MenuBarCommand::toggleHUD();
      EXPECT_EQ(item.command.has_value(), !item.isSeparator && !isStatus) << item.title;
    }
  }
}

} // namespace
} // namespace quenby
