#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"

#include "base/StringFormatter.hpp"

namespace quenby {

const char* modifierDisplayName(ActivationModifierPreference modifier) {
  return modifier == ActivationModifierPreference::control ? "Control" : "Option";
}

std::string OptionDigitHotKeyError::description(const Localizer& localizer) const {
  // Status codes are looked up by their exact text, so no digit grouping.
  const std::string statusText = std::to_string(status_);
  switch (kind_) {
  case Kind::installHandler:
    return formatLocalized(localizer.localized(kHotKeyInstallHandlerFailedText), {statusText});
  case Kind::registerHotKey:
    return formatLocalized(
        localizer.localized(kHotKeyRegisterFailedText),
        {modifierDisplayName(modifier_), static_cast<long long>(digit_), statusText});
  case Kind::unexpected:
    break;
  }
  return text_;
}

} // namespace quenby
