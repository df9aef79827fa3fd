#pragma once

#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferences.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace quenby {

/// Where the HUD's content is in its cross-fade; the panel controller drives it.
enum class KeyboardHUDContentAnimationPhase : std::uint8_t { visible, fadingOut, fadingIn };

/// What the HUD shows: the mappings, which of their applications run, and the icons loaded so
/// far, keyed by bundle identifier.
struct KeyboardHUDMappingCache {
  KeyboardMappingSnapshot snapshot;
  std::set<std::string> runningBundleIdentifiers;
  std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>> icons;

  friend bool operator==(const KeyboardHUDMappingCache&, const KeyboardHUDMappingCache&) = default;
};

/// Everything the HUD view draws. The panel controller sets it; the view (AppKit, or the SVG
/// of `quenbyctl hud`) only reads it and redraws when told that it changed. Main thread only.
class KeyboardHUDViewModel {
public:
  KeyboardHUDViewModel(HUDSizePreference size, HUDThemePreference theme,
                       std::string settingsAccessibilityLabel)
      : hudSize_(size), hudTheme_(theme),
        settingsAccessibilityLabel_(std::move(settingsAccessibilityLabel)) {}
  KeyboardHUDViewModel(const KeyboardHUDViewModel&) = delete;
  KeyboardHUDViewModel& operator=(const KeyboardHUDViewModel&) = delete;

  [[nodiscard]] const KeyboardHUDMappingCache& current() const { return current_; }
  void setCurrent(KeyboardHUDMappingCache current) {
    current_ = std::move(current);
    changed_.notify();
  }
  /// Replaces only the icons: a newly loaded icon needs no fade.
  void setIcons(std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>> icons) {
    current_.icons = std::move(icons);
    changed_.notify();
  }

  [[nodiscard]] HUDSizePreference hudSize() const { return hudSize_; }
  void setHUDSize(HUDSizePreference size) { assign(hudSize_, size); }
  [[nodiscard]] HUDThemePreference hudTheme() const { return hudTheme_; }
  void setHUDTheme(HUDThemePreference theme) { assign(hudTheme_, theme); }
  [[nodiscard]] KeyboardHUDContentAnimationPhase contentAnimationPhase() const {
    return contentAnimationPhase_;
  }
  void setContentAnimationPhase(KeyboardHUDContentAnimationPhase phase) {
    assign(contentAnimationPhase_, phase);
  }
  [[nodiscard]] const std::string& settingsAccessibilityLabel() const {
    return settingsAccessibilityLabel_;
  }

  /// What the view calls back; set by the panel controller.
  std::function<void(char letter)> onLetterClicked;
  std::function<void(int digit)> onNumberClicked;
  std::function<void()> onSettingsClicked;

  /// `handler` is called after every change until the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return changed_.add(std::move(handler));
  }

private:
  template <typename T> void assign(T& field, T value) {
    if (field != value) {
      field = value;
      changed_.notify();
    }
  }

  KeyboardHUDMappingCache current_;
  HUDSizePreference hudSize_;
  HUDThemePreference hudTheme_;
  KeyboardHUDContentAnimationPhase contentAnimationPhase_ =
      KeyboardHUDContentAnimationPhase::visible;
  std::string settingsAccessibilityLabel_;
  ObserverList<> changed_;
};

} // namespace quenby
