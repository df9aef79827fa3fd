#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"

namespace quenby {

std::array<OptionDigitHotKeyRegistrationRequest, 9>
OptionDigitHotKeyRegistrationRequest::requestsFor(ActivationModifierPreference modifier) {
  const std::uint32_t flags = modifier == ActivationModifierPreference::control
                                  ? kControlModifierFlags
                                  : kOptionModifierFlags;
  std::array<OptionDigitHotKeyRegistrationRequest, 9> requests{};
  for (std::size_t index = 0; index < requests.size(); ++index) {
    const int digit = static_cast<int>(index) + 1;
    requests[index] = {.digit = digit,
                       .keyCode = kDigitKeyCodes[index],
                       .signature = kSignature,
                       .identifier = static_cast<std::uint32_t>(digit),
                       .modifier = modifier,
                       .modifierFlags = flags};
  }
  return requests;
}

std::optional<int> OptionDigitHotKeyRegistrationRequest::digitOfPress(std::uint32_t signature,
                                                                      std::uint32_t identifier) {
  if (signature != kSignature || identifier == 0 || identifier > kDigitKeyCodes.size()) {
    return std::nullopt;
  }
  return static_cast<int>(identifier);
}

std::optional<int> OptionDigitHotKeyRegistrationRequest::digitOfKeyCode(std::int64_t keyCode) {
  for (std::size_t index = 0; index < kDigitKeyCodes.size(); ++index) {
    if (static_cast<std::int64_t>(kDigitKeyCodes[index]) == keyCode) {
      return static_cast<int>(index) + 1;
    }
  }
  return std::nullopt;
}

} // namespace quenby
