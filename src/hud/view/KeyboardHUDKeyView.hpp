#pragma once

#include "hud/view/HUDKey.hpp"
#include "hud/view/KeyboardHUDKeyPresentation.hpp"
#include "hud/view/KeyboardHUDKeyVisualState.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

#include <optional>
#include <string>

namespace quenby {

/// Everything drawn on one key, decided in one place so that every drawing shows the same.
struct KeyboardHUDKeyView {
  HUDKey key = HUDKey::other();
  std::string label;
  std::optional<AppMapping> mapping;
  KeyboardHUDKeyPresentation icon = KeyboardHUDKeyPresentation::placeholder();
  KeyboardHUDKeyVisualState visualState = KeyboardHUDKeyVisualState::unbound;
  bool isRunning = false;
  std::string accessibilityLabel;
  /// The application's name as the key's caption, shortened to fit a key; empty when unbound.
  std::string caption;

  friend bool operator==(const KeyboardHUDKeyView&, const KeyboardHUDKeyView&) = default;
};

} // namespace quenby
