#pragma once

#include "base/Localizer.hpp"

#include <cstdint>

namespace quenby {

/// Why the keyboard tap could not be started.
enum class GlobalKeyboardEventTapError : std::uint8_t {
  /// The system refused the tap or its run-loop source; nothing stays installed.
  creationFailed,
};

[[nodiscard]] const LocalizedText& descriptionText(GlobalKeyboardEventTapError error);

} // namespace quenby
