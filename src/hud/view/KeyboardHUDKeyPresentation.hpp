#pragma once

#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <memory>

namespace quenby {

/// A key's icon: the icon cache's image, or a placeholder until the cache delivers one.
class KeyboardHUDKeyPresentation {
public:
  [[nodiscard]] static KeyboardHUDKeyPresentation
  cachedIcon(std::shared_ptr<const PreparedApplicationIcon> icon) {
    return KeyboardHUDKeyPresentation(std::move(icon));
  }
  [[nodiscard]] static KeyboardHUDKeyPresentation placeholder() {
    return KeyboardHUDKeyPresentation(nullptr);
  }

  [[nodiscard]] bool isPlaceholder() const { return icon_ == nullptr; }
  /// The cached image; null for a placeholder.
  [[nodiscard]] const std::shared_ptr<const PreparedApplicationIcon>& icon() const { return icon_; }

  friend bool operator==(const KeyboardHUDKeyPresentation&,
                         const KeyboardHUDKeyPresentation&) = default;

private:
  explicit KeyboardHUDKeyPresentation(std::shared_ptr<const PreparedApplicationIcon> icon)
      : icon_(std::move(icon)) {}

  std::shared_ptr<const PreparedApplicationIcon> icon_;
};

} // namespace quenby
