#pragma once

#include "base/KeyValueStore.hpp"

#include <string_view>

namespace quenby {

/// The HUD's own two switches in the user defaults; both read false when absent or not a
/// Boolean.
class UserDefaultsHUDFeaturePreferences {
public:
  static constexpr std::string_view kEnabledKey = "keyboardHUD.enabled";
  static constexpr std::string_view kPermissionRequestedKey = "keyboardHUD.permissionRequested";

  /// `defaults` must outlive the preferences.
  explicit UserDefaultsHUDFeaturePreferences(KeyValueStore& defaults) : defaults_(defaults) {}

  [[nodiscard]] bool isEnabled() const { return defaults_.isTrue(kEnabledKey); }
  void setEnabled(bool enabled) { defaults_.set(kEnabledKey, enabled); }
  /// The system prompts have been shown once.
  [[nodiscard]] bool wasPermissionRequested() const {
    return defaults_.isTrue(kPermissionRequestedKey);
  }
  void setPermissionRequested(bool requested) { defaults_.set(kPermissionRequestedKey, requested); }

private:
  KeyValueStore& defaults_;
};

} // namespace quenby
