#include "app/menu/MenuBarPresentation.hpp"

#include "app/menu/MenuBarTexts.hpp"
#include "base/StringFormatter.hpp"

namespace quenby {
namespace {

using Item = MenuBarItemPresentation;
using HUDKind = HUDHealth::Kind;
using DigitKind = OptionDigitHotKeyHealth::Kind;

const LocalizedText& permissionName(EventTapPermissionKind kind) {
  return kind == EventTapPermissionKind::accessibility ? kMenuAccessibilityPermissionText
                                                       : kMenuInputMonitoringPermissionText;
}

class ItemsBuilder {
public:
  ItemsBuilder(const MenuBarPresentationInputs& inputs, const Localizer& localizer)
      : inputs_(inputs), localizer_(localizer) {}

  std::vector<Item> build() {
    addHUDStatus();
    addKeyboardAccessStatus();
    addDigitStatus();
    addHUDActions();
    addDigitActions();
    items_.push_back(Item::separator());
    items_.push_back(Item::action(text(kMenuSettingsText), MenuBarCommand::showSettings()));
    items_.push_back(Item::separator());
    items_.push_back(Item::action(text(kMenuQuitText), MenuBarCommand::quit()));
    return std::move(items_);
  }

private:
  [[nodiscard]] std::string text(const LocalizedText& localized) const {
    return localizer_.localized(localized);
  }
  [[nodiscard]] const HUDHealth& hud() const { return inputs_.health.hud; }
  [[nodiscard]] const OptionDigitHotKeyHealth& digits() const {
    return inputs_.health.optionDigits;
  }

  void addHUDStatus() {
    items_.push_back(Item::status(text(hudStatusText(hud().kind))));
    if (hud().kind == HUDKind::needsPermission) {
      std::string names;
      for (const auto kind : hud().permission.missingKinds()) {
        names.append(names.empty() ? "" : ", ").append(text(permissionName(kind)));
      }
      items_.push_back(Item::status(formatLocalized(text(kMenuMissingPermissionsText), {names})));
    } else if (hud().kind == HUDKind::tapFailure) {
      items_.push_back(Item::status(
          formatLocalized(text(kMenuHUDIssueText), {text(hud().failure.description())})));
    }
  }

  [[nodiscard]] bool tapLooksStale() const {
    return hud().kind == HUDKind::ready && inputs_.keyboardAccess.tapLooksStale;
  }

  void addKeyboardAccessStatus() {
    if (hud().kind != HUDKind::ready) {
      return;
    }
    if (const auto& holder = inputs_.keyboardAccess.secureInputHolder) {
      items_.push_back(Item::status(holder->empty()
                                        ? text(kMenuSecureInputUnknownHolderText)
                                        : formatLocalized(text(kMenuSecureInputText), {*holder})));
    }
    if (tapLooksStale()) {
      items_.push_back(Item::status(text(kMenuTapStaleText)));
    }
  }

  void addDigitStatus() {
    items_.push_back(Item::status(text(digitStatusText(digits().kind()))));
    const OptionDigitHotKeyError* error = digits().error();
    if (error == nullptr) {
      return;
    }
    items_.push_back(
        Item::status(formatLocalized(text(kMenuDigitIssueText), {error->description(localizer_)})));
    if (error->kind() == OptionDigitHotKeyError::Kind::registerHotKey) {
      const std::string_view name = modifierDisplayName(inputs_.modifier);
      items_.push_back(Item::status(formatLocalized(text(kMenuDigitConflictText), {name, name})));
    }
  }

  void addHUDActions() {
    items_.push_back(
        Item::action(text(inputs_.isHUDEnabled ? kMenuDisableHUDText : kMenuEnableHUDText),
                     MenuBarCommand::toggleHUD()));
    if (hud().kind == HUDKind::needsPermission) {
      for (const auto kind : hud().permission.missingKinds()) {
        items_.push_back(Item::action(text(kind == EventTapPermissionKind::accessibility
                                               ? kMenuOpenAccessibilitySettingsText
                                               : kMenuOpenInputMonitoringSettingsText),
                                      MenuBarCommand::openPermissionSettings(kind)));
      }
    } else if (hud().kind == HUDKind::tapFailure) {
      items_.push_back(Item::action(text(kMenuRetryHUDText), MenuBarCommand::retryHUD()));
    } else if (tapLooksStale()) {
      items_.push_back(Item::action(
          text(kMenuOpenInputMonitoringSettingsText),
          MenuBarCommand::openPermissionSettings(EventTapPermissionKind::inputMonitoring)));
    }
  }

  void addDigitActions() {
    if (digits().kind() == DigitKind::registrationFailed) {
      items_.push_back(Item::action(
          formatLocalized(text(kMenuRetryDigitsText), {modifierDisplayName(inputs_.modifier)}),
          MenuBarCommand::retryOptionDigits()));
    }
  }

  const MenuBarPresentationInputs& inputs_;
  const Localizer& localizer_;
  std::vector<Item> items_;
};

bool needsAttention(const MenuBarPresentationInputs& inputs) {
  const HUDKind hud = inputs.health.hud.kind;
  // Secure keyboard entry is not a fault: a password field holds it for as long as it has focus.
  return (hud != HUDKind::disabled && hud != HUDKind::ready) ||
         (hud == HUDKind::ready && inputs.keyboardAccess.tapLooksStale) ||
         inputs.health.optionDigits.kind() == DigitKind::registrationFailed ||
         inputs.diagnosticsReportIssue;
}

} // namespace

MenuBarPresentation MenuBarPresentation::make(const MenuBarPresentationInputs& inputs,
                                              const Localizer& localizer) {
  const bool attention = needsAttention(inputs);
  return {.iconState = attention ? MenuBarIconState::attention : MenuBarIconState::normal,
          .accessibilityDescription = attention ? localizer.localized(kMenuNeedsAttentionText)
                                                : std::string(kMenuBarNormalDescription),
          .items = ItemsBuilder(inputs, localizer).build()};
}

} // namespace quenby
