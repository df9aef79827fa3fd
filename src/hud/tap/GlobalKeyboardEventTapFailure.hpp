#pragma once

#include "base/Localizer.hpp"

#include <cstdint>

namespace quenby {

/// Why a running keyboard tap stopped by itself. The tap never restarts on its own; its owner
/// decides.
enum class GlobalKeyboardEventTapFailure : std::uint8_t {
  timeoutRecoveryFailed,
  repeatedDisable,
  disabledByUserInput,
};

[[nodiscard]] const LocalizedText& descriptionText(GlobalKeyboardEventTapFailure failure);

} // namespace quenby
