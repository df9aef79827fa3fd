#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kHUDDigitApplicationNotFoundText{
    "hud.digit-info.not-found",
    "The application at Dock position %lld can't be found on this Mac. Number shortcuts follow "
    "Dock order and cannot be edited in Quenby.",
    "%lld is a Dock position, 1–9. Dock is the macOS Dock; Dock and Quenby are not translated."};
inline constexpr LocalizedText kHUDDigitApplicationAmbiguousText{
    "hud.digit-info.ambiguous",
    "More than one installed copy matches the application at Dock position %1$lld: %2$@. Keep "
    "only one of them to use this shortcut.",
    "%1$lld is a Dock position, 1–9; %2$@ is a comma-separated list of file paths. Dock is the "
    "macOS Dock and is not translated."};

} // namespace quenby
