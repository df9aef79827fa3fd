#pragma once

#include <cstdint>

namespace quenby {

/// How a key is drawn: without a mapping, with one that works, or with one that cannot be
/// switched to until the user picks its application again.
enum class KeyboardHUDKeyVisualState : std::uint8_t { unbound, bound, invalid };

} // namespace quenby
