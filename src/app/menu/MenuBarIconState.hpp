#pragma once

#include <cstdint>

namespace quenby {

/// Which variant of the status icon the menu bar shows: `attention` while something in the menu
/// needs the user.
enum class MenuBarIconState : std::uint8_t { normal, attention };

} // namespace quenby
