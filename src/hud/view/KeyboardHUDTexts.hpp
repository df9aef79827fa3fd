#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kHUDEscapeKeyLabel{"hud.key.escape", "Esc",
                                                  "Label of the Escape key on the keyboard HUD."};
inline constexpr LocalizedText kHUDGenericKeyLabel{
    "hud.key.generic", "Key", "Label of a key on the keyboard HUD that has no name of its own."};

inline constexpr LocalizedText kHUDUnboundAccessibilityLabel{
    "hud.a11y.unbound", "%@, unbound",
    "Spoken for a keyboard HUD key without an application. %@ is the key's label."};
inline constexpr LocalizedText kHUDBoundAccessibilityLabel{
    "hud.a11y.bound", "%1$@, bound to %2$@",
    "Spoken for a keyboard HUD key. %1$@ is the key's label, %2$@ the application's name."};
inline constexpr LocalizedText kHUDBoundRunningAccessibilityLabel{
    "hud.a11y.bound-running", "%1$@, bound to %2$@, running",
    "Spoken for a keyboard HUD key whose application is running. %1$@ is the key's label, %2$@ "
    "the application's name."};
inline constexpr LocalizedText kHUDInvalidAccessibilityLabel{
    "hud.a11y.invalid", "%1$@, %2$@, invalid mapping",
    "Spoken for a keyboard HUD key whose application cannot be found. %1$@ is the key's label, "
    "%2$@ the application's name."};
inline constexpr LocalizedText kHUDInvalidRunningAccessibilityLabel{
    "hud.a11y.invalid-running", "%1$@, %2$@, invalid mapping, running",
    "Spoken for a keyboard HUD key whose application cannot be found but is running. %1$@ is the "
    "key's label, %2$@ the application's name."};
inline constexpr LocalizedText kHUDInvalidUnknownAccessibilityLabel{
    "hud.a11y.invalid-unknown", "%@, invalid mapping",
    "Spoken for a keyboard HUD key whose application cannot be found and has no known name. %@ "
    "is the key's label."};
inline constexpr LocalizedText kHUDOpenSettingsAccessibilityLabel{
    "hud.a11y.open-settings", "Open Quenby Settings",
    "Spoken for the settings button in the corner of the keyboard HUD."};

} // namespace quenby
