#pragma once

#include "app/ConfigurationFailure.hpp"
#include "base/Localizer.hpp"
#include "shortcuts/mapping/NumberMappingProblem.hpp"

namespace quenby {

inline constexpr LocalizedText kDockShortcutReadOnlyTitle{
    "diagnostic.hotkeys.dock-read-only", "Dock Shortcut Is Read-Only",
    "Dock is the macOS Dock and is not translated."};
inline constexpr LocalizedText kDockShortcutReadOnlyMessage{
    "diagnostic.hotkeys.dock-read-only.message",
    "%@ Number shortcuts follow Dock order and cannot be edited in Quenby.",
    "%@ is a complete localized explanation. Dock and Quenby are not translated."};
inline constexpr LocalizedText kEmptyDockPositionText{
    "diagnostic.hotkeys.empty-dock-position",
    "Dock position %lld does not contain a pinned application.",
    "%lld is a Dock position, 1–9. Dock is the macOS Dock."};

/// Why the digit `position` leads nowhere, as the user is told once per position and cause,
/// whether the digit was pressed with the modifier or picked on the HUD.
[[nodiscard]] ConfigurationFailure
unavailableDockPositionFailure(int position, const NumberMappingProblem& problem,
                               const Localizer& localizer);

} // namespace quenby
