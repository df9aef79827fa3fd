#pragma once

#include "base/ObservationToken.hpp"
#include "data/AppPreferenceChange.hpp"
#include "data/AppPreferences.hpp"

#include <functional>

namespace quenby {

/// Ends an observation of the preferences when cancelled or destroyed; keep it for as long as the
/// changes matter.
using AppPreferenceObservation = ObservationToken;

/// The user's preferences as every consumer reads and writes them. Setting a property to the
/// value it already has changes nothing and tells no observer.
class AppPreferencesProviding {
public:
  using Handler = std::function<void(AppPreferenceChange)>;

  virtual ~AppPreferencesProviding() = default;

  [[nodiscard]] virtual WindowPlacementPreference windowPlacement() const = 0;
  virtual void setWindowPlacement(WindowPlacementPreference value) = 0;
  [[nodiscard]] virtual HUDSizePreference hudSize() const = 0;
  virtual void setHUDSize(HUDSizePreference value) = 0;
  [[nodiscard]] virtual ActivationModifierPreference activationModifier() const = 0;
  virtual void setActivationModifier(ActivationModifierPreference value) = 0;
  [[nodiscard]] virtual HUDActivationGesturePreference hudActivationGesture() const = 0;
  virtual void setHUDActivationGesture(HUDActivationGesturePreference value) = 0;
  [[nodiscard]] virtual HUDThemePreference hudTheme() const = 0;
  virtual void setHUDTheme(HUDThemePreference value) = 0;
  [[nodiscard]] virtual HUDOpacityPreference hudOpacity() const = 0;
  virtual void setHUDOpacity(HUDOpacityPreference value) = 0;
  [[nodiscard]] virtual bool shortcutAnimationEnabled() const = 0;
  virtual void setShortcutAnimationEnabled(bool value) = 0;
  [[nodiscard]] virtual ShortcutAnimationDisplayPreference shortcutAnimationDisplay() const = 0;
  virtual void setShortcutAnimationDisplay(ShortcutAnimationDisplayPreference value) = 0;
  [[nodiscard]] virtual bool shortcutHidesFrontmostApplication() const = 0;
  virtual void setShortcutHidesFrontmostApplication(bool value) = 0;

  /// `handler` receives every later change, once per change, for as long as the token is held.
  /// It may add or cancel observations while it runs.
  [[nodiscard]] virtual AppPreferenceObservation observe(Handler handler) = 0;
};

} // namespace quenby
