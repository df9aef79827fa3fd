#include "hud/tap/GlobalKeyboardEventTapFailure.hpp"

#include "hud/tap/GlobalKeyboardEventTapTexts.hpp"

namespace quenby {

const LocalizedText& descriptionText(GlobalKeyboardEventTapFailure failure) {
  switch (failure) {
  case GlobalKeyboardEventTapFailure::timeoutRecoveryFailed:
    return kEventTapTimeoutRecoveryFailedText;
  case GlobalKeyboardEventTapFailure::repeatedDisable:
    return kEventTapRepeatedDisableText;
  case GlobalKeyboardEventTapFailure::disabledByUserInput:
    break;
  }
  return kEventTapDisabledByUserInputText;
}

} // namespace quenby
