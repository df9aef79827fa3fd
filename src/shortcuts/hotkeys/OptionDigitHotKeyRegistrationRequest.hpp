#pragma once

#include "data/AppPreferences.hpp"

#include <array>
#include <cstdint>
#include <optional>

namespace quenby {

/// One digit shortcut as the system registers it.
struct OptionDigitHotKeyRegistrationRequest {
  /// "QNBY" read as a big-endian 32-bit value: marks the presses that are ours.
  static constexpr std::uint32_t kSignature = 0x514E4259;
  /// The system's modifier masks; exactly one is used, never Command or Shift.
  static constexpr std::uint32_t kOptionModifierFlags = 0x0800;
  static constexpr std::uint32_t kControlModifierFlags = 0x1000;
  /// The key codes of the digits 1–9 on the main row (not the keypad). 5/6 and 8/9 are not in
  /// ascending order on the keyboard.
  static constexpr std::array<std::uint32_t, 9> kDigitKeyCodes{18, 19, 20, 21, 23, 22, 26, 28, 25};

  int digit = 1;
  std::uint32_t keyCode = 0;
  std::uint32_t signature = kSignature;
  /// The digit itself.
  std::uint32_t identifier = 0;
  ActivationModifierPreference modifier = ActivationModifierPreference::option;
  std::uint32_t modifierFlags = 0;

  /// The nine requests for `modifier`, in ascending digit order.
  [[nodiscard]] static std::array<OptionDigitHotKeyRegistrationRequest, 9>
  requestsFor(ActivationModifierPreference modifier);

  /// The digit of a press with this signature and id, or none when the press is not ours (a
  /// foreign signature, id 0 or above 9) and must be left to others.
  [[nodiscard]] static std::optional<int> digitOfPress(std::uint32_t signature,
                                                       std::uint32_t identifier);

  /// The digit that `keyCode` types on the main row, or none.
  [[nodiscard]] static std::optional<int> digitOfKeyCode(std::int64_t keyCode);

  friend bool operator==(const OptionDigitHotKeyRegistrationRequest&,
                         const OptionDigitHotKeyRegistrationRequest&) = default;
};

} // namespace quenby
