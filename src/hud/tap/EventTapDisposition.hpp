#pragma once

#include <cstdint>

namespace quenby {

/// What becomes of one event that the keyboard tap saw: it goes on to the focused application
/// unchanged, or it is dropped.
enum class EventTapDisposition : std::uint8_t { forward, consume };

} // namespace quenby
