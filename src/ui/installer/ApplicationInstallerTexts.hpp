#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kInstallerMoveMessageText{
    "alert.installer.move.message", "Move to Applications folder?",
    "Title of the alert offered once at launch when Quenby runs from outside the Applications "
    "folder."};
inline constexpr LocalizedText kInstallerMoveInformativeText{
    "alert.installer.move.informative",
    "Quenby is running from outside the Applications folder. From there it can open at login, "
    "and macOS keeps its Accessibility and Input Monitoring permissions from one launch to the "
    "next. Quenby copies itself there and reopens from the copy.",
    "Body of the move-to-Applications alert when no copy is in the Applications folder yet."};
inline constexpr LocalizedText kInstallerReplaceInformativeText{
    "alert.installer.move.informative-replace",
    "Quenby is running from outside the Applications folder. From there it can open at login, "
    "and macOS keeps its Accessibility and Input Monitoring permissions from one launch to the "
    "next. The copy already in the Applications folder goes to the Trash, and Quenby reopens "
    "from the new one.",
    "Body of the move-to-Applications alert when an older copy is in the Applications folder and "
    "will be moved to the Trash."};
inline constexpr LocalizedText kInstallerMoveButtonText{
    "alert.installer.move.confirm", "Move to Applications",
    "Button of the move-to-Applications alert that copies Quenby there and reopens it."};
inline constexpr LocalizedText kInstallerKeepButtonText{
    "alert.installer.move.cancel", "Do Not Move",
    "Button of the move-to-Applications alert that leaves Quenby where it is; not asked again."};

inline constexpr LocalizedText kInstallerFailedMessageText{
    "alert.installer.failed.message", "Quenby could not be moved to the Applications folder",
    "Title of the alert shown when moving Quenby to the Applications folder failed."};
inline constexpr LocalizedText kInstallerRunningCopyText{
    "alert.installer.failed.running-copy",
    "Another copy of Quenby is running from the Applications folder. Quit it, then drag this "
    "copy to the Applications folder in Finder. Quenby keeps running from where it is.",
    "Body of the move-failed alert: the copy in the Applications folder is running, so it was "
    "left alone."};
inline constexpr LocalizedText kInstallerReplaceFailedText{
    "alert.installer.failed.replace",
    "The copy already in the Applications folder could not be moved to the Trash. Quenby keeps "
    "running from where it is. The system reported: %@",
    "Body of the move-failed alert. %@ is the system's description of the error."};
inline constexpr LocalizedText kInstallerCopyFailedText{
    "alert.installer.failed.copy",
    "Quenby could not be copied. It keeps running from where it is. The system reported: %@",
    "Body of the move-failed alert. %@ is the system's description of the error."};
inline constexpr LocalizedText kInstallerVerificationFailedText{
    "alert.installer.failed.verification",
    "The copy failed its code signature check and was removed from the Applications folder. "
    "Quenby keeps running from where it is. The system reported: %@",
    "Body of the move-failed alert when the new copy's code signature did not hold. %@ is the "
    "system's description of the problem."};
inline constexpr LocalizedText kInstallerLaunchFailedMessageText{
    "alert.installer.launch-failed.message", "Quenby could not reopen from the Applications folder",
    "Title of the alert shown when Quenby was copied to the Applications folder but the copy did "
    "not open."};
inline constexpr LocalizedText kInstallerLaunchFailedText{
    "alert.installer.launch-failed.informative",
    "The copy is in the Applications folder; open it from there yourself. Quenby keeps running "
    "from where it is until then. The system reported: %@",
    "Body of the launch-failed alert. %@ is the system's description of the error."};
inline constexpr LocalizedText kInstallerDismissText{
    "alert.installer.ok", "OK", "Button that closes the installer's failure alerts."};

} // namespace quenby
