// Makes the AppKit Settings window.
//
// Threading: main thread only.
//
// Lifetime: the window it returns keeps references to the pages' view models, which the caller
// guarantees outlive it.
//
// Guarantee: nothing is created in AppKit until the window is first shown.

#include "ui/settings/macos/SystemSettingsWindowFactory.hpp"

#include "ui/settings/macos/SystemSettingsWindow.hpp"

namespace quenby {

std::unique_ptr<SettingsWindowPresenting>
SystemSettingsWindowFactory::makeSettingsWindow(SettingsWindowPages pages) {
  return std::make_unique<SystemSettingsWindow>(pages);
}

} // namespace quenby
