#pragma once

#include "base/Localizer.hpp"
#include "data/AppPreferences.hpp"

#include <cstdint>
#include <string>

namespace quenby {

inline constexpr LocalizedText kHotKeyRegisterFailedText{
    "diagnostic.hotkeys.register-failed", "Unable to register %@-%lld: OSStatus %@.",
    "%1$@ is a modifier name, %2$lld the digit, %3$@ the raw OSStatus code text without digit "
    "grouping. OSStatus is not translated."};
inline constexpr LocalizedText kHotKeyInstallHandlerFailedText{
    "diagnostic.hotkeys.install-handler-failed",
    "Unable to install the digit shortcut handler: OSStatus %@.",
    "OSStatus is an Apple error-code type name; %@ is the raw code text, without digit grouping."};

/// The name of a modifier key as the user reads it: "Option" or "Control".
[[nodiscard]] const char* modifierDisplayName(ActivationModifierPreference modifier);

/// Why the digit shortcuts could not be put in place.
class OptionDigitHotKeyError {
public:
  enum class Kind { installHandler, registerHotKey, unexpected };

  [[nodiscard]] static OptionDigitHotKeyError installHandler(std::int32_t status) {
    return {Kind::installHandler, ActivationModifierPreference::option, 0, status, {}};
  }
  [[nodiscard]] static OptionDigitHotKeyError registerHotKey(ActivationModifierPreference modifier,
                                                             int digit, std::int32_t status) {
    return {Kind::registerHotKey, modifier, digit, status, {}};
  }
  [[nodiscard]] static OptionDigitHotKeyError unexpected(std::string text) {
    return {Kind::unexpected, ActivationModifierPreference::option, 0, 0, std::move(text)};
  }

  [[nodiscard]] Kind kind() const { return kind_; }
  /// Meaningful for a failed registration only.
  [[nodiscard]] ActivationModifierPreference modifier() const { return modifier_; }
  /// Meaningful for a failed registration only.
  [[nodiscard]] int digit() const { return digit_; }
  /// The system's status code; 0 for an unexpected failure.
  [[nodiscard]] std::int32_t status() const { return status_; }
  /// Localised ("Unable to register Option-3: OSStatus -9878.").
  [[nodiscard]] std::string description(const Localizer& localizer) const;

  friend bool operator==(const OptionDigitHotKeyError&, const OptionDigitHotKeyError&) = default;

private:
  OptionDigitHotKeyError(Kind kind, ActivationModifierPreference modifier, int digit,
                         std::int32_t status, std::string text)
      : kind_(kind), modifier_(modifier), digit_(digit), status_(status), text_(std::move(text)) {}

  Kind kind_;
  ActivationModifierPreference modifier_;
  int digit_;
  std::int32_t status_;
  std::string text_;
};

} // namespace quenby
