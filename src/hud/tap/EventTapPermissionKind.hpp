#pragma once

#include <cstdint>

namespace quenby {

/// The privacy permissions the keyboard tap needs: Accessibility for an active tap, Input
/// Monitoring to see other applications' keys.
enum class EventTapPermissionKind : std::uint8_t { accessibility, inputMonitoring };

} // namespace quenby
