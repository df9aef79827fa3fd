#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kEventTapCreationFailedText{
    "diagnostic.event-tap.creation-failed", "The global keyboard event tap could not be created.",
    "Shown when macOS refused to create the keyboard HUD's event tap."};
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

} // namespace quenby
