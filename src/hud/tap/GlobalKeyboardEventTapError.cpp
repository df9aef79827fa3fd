#include "hud/tap/GlobalKeyboardEventTapError.hpp"

#include "hud/tap/GlobalKeyboardEventTapTexts.hpp"

namespace quenby {

const LocalizedText& descriptionText(GlobalKeyboardEventTapError) {
  return kEventTapCreationFailedText;
}

} // namespace quenby
