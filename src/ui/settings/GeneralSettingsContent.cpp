#include "ui/settings/GeneralSettingsContent.hpp"

#include "app/menu/MenuBarTexts.hpp"
#include "base/StringFormatter.hpp"
#include "hud/routing/HUDNumericMappingProblem.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"
#include "shortcuts/hotkeys/UnavailableDockPositionFailure.hpp"
#include "ui/settings/GeneralSettingsTexts.hpp"

#include <algorithm>
#include <initializer_list>

namespace quenby {
namespace {

using Content = GeneralSettingsContent;
using ChoiceId = Content::ChoiceId;
using ToggleId = Content::ToggleId;
using Action = Content::Action;
using HUDKind = HUDHealth::Kind;

template <typename Enum> std::size_t indexOf(Enum value) { return static_cast<std::size_t>(value); }

class ContentBuilder {
public:
  ContentBuilder(const Content::Inputs& inputs, const Localizer& localizer)
      : in_(inputs), localizer_(localizer) {}

  Content build() {
    content_.windowTitle = text(kSettingsWindowTitle);
    content_.generalTabTitle = text(kSettingsGeneralTabTitle);
    content_.usageTabTitle = text(kSettingsUsageTabTitle);
    content_.shortcutsHeading = text(kSettingsShortcutsSection);
    content_.hudHeading = text(kSettingsHUDSection);
    content_.animationHeading = text(kSettingsAnimationSection);
    content_.startupHeading = text(kSettingsStartupSection);
    content_.testHeading = text(kSettingsTestSection);
    addChoices();
    addToggles();
    addDigitStatus();
    addHUDStatus();
    addLaunchAtLoginStatus();
    addShortcutTest();
    return std::move(content_);
  }

private:
  [[nodiscard]] std::string text(const LocalizedText& localized) const {
    return localizer_.localized(localized);
  }
  [[nodiscard]] std::vector<std::string> texts(std::initializer_list<LocalizedText> list) const {
    std::vector<std::string> result;
    for (const auto& each : list) {
      result.push_back(text(each));
    }
    return result;
  }
  [[nodiscard]] ActivationModifierPreference modifier() const {
    return in_.preferences.activationModifier();
  }

  void setChoice(ChoiceId id, const LocalizedText& title, std::vector<std::string> options,
                 std::size_t selected, bool enabled = true) {
    content_.choices[indexOf(id)] = {.id = id,
                                     .title = text(title),
                                     .options = std::move(options),
                                     .selectedIndex = selected,
                                     .isEnabled = enabled};
  }

  void addChoices() {
    const auto& p = in_.preferences;
    const std::vector<std::string> displays =
        texts({kSettingsDisplayMain, kSettingsDisplayUnderMouse});
    setChoice(ChoiceId::activationModifier, kSettingsModifierTitle,
              texts({kSettingsModifierOption, kSettingsModifierControl}),
              indexOf(p.activationModifier()));
    setChoice(ChoiceId::hudActivationGesture, kSettingsGestureTitle,
              texts({kSettingsGestureDoubleTap, kSettingsGestureLongPress, kSettingsGestureBoth}),
              indexOf(p.hudActivationGesture()));
    setChoice(ChoiceId::hudSize, kSettingsSizeTitle,
              texts({kSettingsSizeSmall, kSettingsSizeStandard, kSettingsSizeLarge}),
              indexOf(p.hudSize()));
    setChoice(ChoiceId::hudTheme, kSettingsThemeTitle,
              texts({kSettingsThemeLight, kSettingsThemeDark, kSettingsThemeSystem}),
              indexOf(p.hudTheme()));
    std::vector<std::string> percents;
    for (const long long percent : {60, 70, 80, 90, 100}) {
      percents.push_back(formatLocalized(text(kSettingsOpacityPercent), {percent}));
    }
    setChoice(ChoiceId::hudOpacity, kSettingsOpacityTitle, std::move(percents),
              indexOf(p.hudOpacity()));
    setChoice(ChoiceId::windowPlacement, kSettingsPlacementTitle, displays,
              indexOf(p.windowPlacement()));
    setChoice(ChoiceId::shortcutAnimationDisplay, kSettingsAnimationDisplayTitle, displays,
              indexOf(p.shortcutAnimationDisplay()), p.shortcutAnimationEnabled());
  }

  void setToggle(ToggleId id, const LocalizedText& title, bool on, bool enabled = true,
                 std::string footnote = {}) {
    content_.toggles[indexOf(id)] = {.id = id,
                                     .title = text(title),
                                     .isOn = on,
                                     .isEnabled = enabled,
                                     .footnote = std::move(footnote)};
  }

  void addToggles() {
    setToggle(ToggleId::shortcutHidesFrontmostApplication, kSettingsHideFrontmostTitle,
              in_.preferences.shortcutHidesFrontmostApplication(), true,
              text(kSettingsHideFrontmostFootnote));
    setToggle(ToggleId::hudEnabled, kSettingsHUDEnabledTitle, in_.isHUDEnabled);
    setToggle(ToggleId::shortcutAnimationEnabled, kSettingsAnimationEnabled,
              in_.preferences.shortcutAnimationEnabled());
    const auto login = in_.launchAtLogin;
    const bool loginOn =
        login == LaunchAtLoginStatus::enabled || login == LaunchAtLoginStatus::requiresApproval;
    // A copy macOS cannot register can still be unregistered, never registered.
    setToggle(ToggleId::launchAtLogin, kSettingsLaunchAtLoginTitle, loginOn,
              loginOn || login != LaunchAtLoginStatus::notFound);
  }

  void addDockLines(Content::Status& status) {
    std::string empty;
    int emptyCount = 0;
    int lastEmpty = 0;
    for (int position = NumberMappingEntries::kFirstPosition;
         position <= NumberMappingEntries::kLastPosition; ++position) {
      const NumberMappingEntry& entry = in_.dockPositions.at(position);
      std::string line;
      if (const NumberMappingProblem* problem = entry.problem()) {
        if (problem->kind() == NumberMappingProblem::Kind::emptyDockPosition) {
          empty.append(empty.empty() ? "" : ", ").append(std::to_string(position));
          ++emptyCount;
          lastEmpty = position;
          continue;
        }
        line = unavailableDockPositionFailure(position, *problem, localizer_).message;
      } else if (const auto unresolved = entry.mapping()->problem()) {
        line = HUDNumericMappingProblem::unresolved(*unresolved).message(position, localizer_);
      } else {
        continue;
      }
      status.needsAttention = true;
      // An unreadable Dock explains every position the same way.
      if (std::find(status.lines.begin(), status.lines.end(), line) == status.lines.end()) {
        status.lines.push_back(std::move(line));
      }
    }
    if (emptyCount == 1) {
      status.lines.push_back(
          formatLocalized(text(kEmptyDockPositionText), {static_cast<long long>(lastEmpty)}));
    } else if (emptyCount > 1) {
      status.lines.push_back(formatLocalized(text(kSettingsEmptyDockPositions), {empty}));
    }
  }

  void addDigitStatus() {
    auto& status = content_.digitShortcuts;
    status.lines.push_back(text(digitStatusText(in_.digits.kind())));
    const std::string_view name = modifierDisplayName(modifier());
    if (const OptionDigitHotKeyError* error = in_.digits.error()) {
      status.needsAttention = true;
      status.lines.push_back(
          formatLocalized(text(kMenuDigitIssueText), {error->description(localizer_)}));
      if (error->kind() == OptionDigitHotKeyError::Kind::registerHotKey) {
        status.lines.push_back(formatLocalized(text(kMenuDigitConflictText), {name, name}));
      }
      status.buttons.push_back(
          {formatLocalized(text(kMenuRetryDigitsText), {name}), Action::retryDigitShortcuts});
    }
    for (const auto& conflict : in_.systemShortcutConflicts) {
      status.needsAttention = true;
      status.lines.push_back(conflict.message(modifier(), localizer_));
    }
    if (const auto& warning = in_.diagnostics.automaticWarning()) {
      status.needsAttention = true;
      status.lines.push_back(*warning);
    }
    if (const auto& conflict = in_.diagnostics.manualConflict()) {
      status.needsAttention = true;
      status.lines.push_back(conflict->message);
    }
    addDockLines(status);
  }

  void addHUDStatus() {
    auto& status = content_.hud;
    const HUDHealth& hud = in_.hud;
    status.lines.push_back(text(hudStatusText(hud.kind)));
    switch (hud.kind) {
    case HUDKind::needsPermission: {
      status.needsAttention = true;
      std::string names;
      for (const auto kind : hud.permission.missingKinds()) {
        const bool accessibility = kind == EventTapPermissionKind::accessibility;
        names.append(names.empty() ? "" : ", ")
            .append(text(accessibility ? kMenuAccessibilityPermissionText
                                       : kMenuInputMonitoringPermissionText));
        status.buttons.push_back({text(accessibility ? kMenuOpenAccessibilitySettingsText
                                                     : kMenuOpenInputMonitoringSettingsText),
                                  accessibility ? Action::openAccessibilitySettings
                                                : Action::openInputMonitoringSettings});
      }
      status.lines.push_back(formatLocalized(text(kMenuMissingPermissionsText), {names}));
      break;
    }
    case HUDKind::tapFailure:
      status.needsAttention = true;
      status.lines.push_back(
          formatLocalized(text(kMenuHUDIssueText), {text(hud.failure.description())}));
      status.buttons.push_back({text(kMenuRetryHUDText), Action::retryHUD});
      break;
    case HUDKind::ready:
      addKeyboardAccessLines(status);
      break;
    case HUDKind::disabled:
      break;
    }
  }

  void addKeyboardAccessLines(Content::Status& status) {
    if (const auto& holder = in_.keyboardAccess.secureInputHolder) {
      status.lines.push_back(holder->empty()
                                 ? text(kMenuSecureInputUnknownHolderText)
                                 : formatLocalized(text(kMenuSecureInputText), {*holder}));
    }
    if (in_.keyboardAccess.tapLooksStale) {
      status.needsAttention = true;
      status.lines.push_back(text(kMenuTapStaleText));
      status.buttons.push_back(
          {text(kMenuOpenInputMonitoringSettingsText), Action::openInputMonitoringSettings});
    }
  }

  void addLaunchAtLoginStatus() {
    auto& status = content_.launchAtLogin;
    switch (in_.launchAtLogin) {
    case LaunchAtLoginStatus::enabled:
      status.lines.push_back(text(kSettingsLaunchAtLoginEnabled));
      break;
    case LaunchAtLoginStatus::requiresApproval:
      status.needsAttention = true;
      status.lines.push_back(text(kSettingsLaunchAtLoginRequiresApproval));
      status.buttons.push_back({text(kSettingsOpenLoginItems), Action::openLoginItemsSettings});
      break;
    case LaunchAtLoginStatus::notFound:
      status.lines.push_back(text(kSettingsLaunchAtLoginNotFound));
      break;
    case LaunchAtLoginStatus::notRegistered:
      break;
    }
    if (in_.launchAtLoginError) {
      status.needsAttention = true;
      status.lines.push_back(
          formatLocalized(text(kSettingsLaunchAtLoginError), {*in_.launchAtLoginError}));
    }
  }

  void addShortcutTest() {
    auto& test = content_.shortcutTest;
    const ShortcutTestSession& session = in_.test;
    test.isWaiting = session.phase() == ShortcutTestSession::Phase::waiting;
    test.isEnabled = in_.diagnostics.isRuntimeAvailable();
    test.button = test.isWaiting
                      ? Content::Button{text(kShortcutTestCancelButton), Action::cancelShortcutTest}
                      : Content::Button{text(kShortcutTestButton), Action::startShortcutTest};
    if (!test.isEnabled) {
      test.status = text(kShortcutTestUnavailable);
    } else if (session.phase() == ShortcutTestSession::Phase::idle) {
      test.status = text(kShortcutTestHint);
    } else {
      test.status = session.status();
    }
    test.pressed = session.pressed();
    test.outcome = session.outcome();
  }

  const Content::Inputs& in_;
  const Localizer& localizer_;
  Content content_;
};

} // namespace

GeneralSettingsContent GeneralSettingsContent::make(const Inputs& inputs,
                                                    const Localizer& localizer) {
  return ContentBuilder(inputs, localizer).build();
}

} // namespace quenby
