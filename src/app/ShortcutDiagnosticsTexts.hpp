#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kEventTapDisabledByUserInputText{
    "diagnostic.event-tap.disabled-by-user-input",
    "The global keyboard event tap was disabled by user input.",
    "Shown when macOS switched off the keyboard HUD's event tap because of user input."};
inline constexpr LocalizedText kEventTapRepeatedDisableText{
    "diagnostic.event-tap.repeated-disable",
    "The global keyboard event tap was disabled again before receiving a normal event.",
    "Shown when macOS switched off the keyboard HUD's event tap again right after it was "
    "re-enabled."};
inline constexpr LocalizedText kEventTapTimeoutRecoveryFailedText{
    "diagnostic.event-tap.timeout-recovery-failed",
    "The global keyboard event tap could not recover from a timeout.",
    "Shown when the keyboard HUD's event tap timed out and could not be re-enabled."};
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
