#pragma once

#include "base/Localizer.hpp"

#include <string>

namespace quenby {

inline constexpr LocalizedText kDockSyncFailedText{
    "diagnostic.dock.sync-failed", "Dock preferences could not be synchronized.",
    "Shown for every Dock position when the macOS Dock's preferences cannot be read."};
inline constexpr LocalizedText kDockMissingPersistentText{
    "diagnostic.dock.missing-persistent", "Dock persistent applications are missing.",
    "Shown for every Dock position when the macOS Dock stores no list of pinned applications."};
inline constexpr LocalizedText kDockInvalidPersistentText{
    "diagnostic.dock.invalid-persistent",
    "Dock persistent applications are not in the expected array format.",
    "Shown for every Dock position when the macOS Dock's list of pinned applications is "
    "malformed."};

/// Why the Dock's list of pinned applications could not be read at all.
enum class DockPreferenceReaderError {
  synchronizationFailed,
  missingPersistentApplications,
  invalidPersistentApplications,
};

[[nodiscard]] const LocalizedText& localizedText(DockPreferenceReaderError error);
[[nodiscard]] std::string localizedDescription(DockPreferenceReaderError error,
                                               const Localizer& localizer);

} // namespace quenby
