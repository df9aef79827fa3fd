#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quenby {

/// The UTF-16 text one key types, as the layout gives it: up to eight code units.
struct TypedKeyText {
  static constexpr std::size_t kCapacity = 8;
  std::array<char16_t, kCapacity> units{};
  std::size_t length = 0;
};

/// What each key types under the user's current keyboard layout, pressed alone. Asked on
/// key-downs inside the keyboard tap: it must not block and should not allocate. Main thread only.
class KeyboardCharacterTranslating {
public:
  virtual ~KeyboardCharacterTranslating() = default;
  /// Empty when the key types nothing or there is no layout to ask.
  [[nodiscard]] virtual TypedKeyText character(std::uint16_t keyCode) const = 0;
  /// The same under the layout macOS uses where Latin letters are needed (the last ASCII-capable
  /// layout the user selected): asked when the current layout types no Latin letter, as a
  /// Cyrillic or Greek one does.
  [[nodiscard]] virtual TypedKeyText asciiCapableCharacter(std::uint16_t keyCode) const = 0;
};

/// Types nothing, so every letter key is read by its US position.
class InertKeyboardCharacterTranslator final : public KeyboardCharacterTranslating {
public:
  [[nodiscard]] TypedKeyText character(std::uint16_t) const override { return {}; }
  [[nodiscard]] TypedKeyText asciiCapableCharacter(std::uint16_t) const override { return {}; }
};

} // namespace quenby
