#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kPermissionsNeedAttentionText{
    "diagnostic.permissions.attention", "Keyboard shortcut permissions need attention.",
    "Summary shown when a privacy permission that the keyboard shortcuts need is missing."};
inline constexpr LocalizedText kMissingPermissionText{
    "diagnostic.permissions.missing", "Missing permission: %@",
    "%@ is the name of a privacy permission, for example Accessibility."};
inline constexpr LocalizedText kAccessibilityPermissionNameText{
    "diagnostic.permission.accessibility", "Accessibility",
    "Name of the macOS Accessibility privacy permission, as System Settings shows it."};
inline constexpr LocalizedText kInputMonitoringPermissionNameText{
    "diagnostic.permission.input-monitoring", "Input Monitoring",
    "Name of the macOS Input Monitoring privacy permission, as System Settings shows it."};

} // namespace quenby
