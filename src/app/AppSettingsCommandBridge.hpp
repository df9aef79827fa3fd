#pragma once

#include "base/Localizer.hpp"

#include <functional>
#include <string>

namespace quenby {

inline constexpr LocalizedText kMenuSettingsText{"menu.settings", "Settings",
                                                 "App menu item that opens the Settings window."};

/// The application menu's Settings command (Command-Comma), as the platform menu shows it.
struct AppSettingsCommandBridge {
  enum class Modifier { command };

  std::string title;
  char keyEquivalent = ',';
  Modifier modifiers = Modifier::command;
  std::function<void()> showSettingsHandler;

  [[nodiscard]] static AppSettingsCommandBridge make(const Localizer& localizer,
                                                     std::function<void()> showSettings) {
    return {localizer.localized(kMenuSettingsText), ',', Modifier::command,
            std::move(showSettings)};
  }
};

} // namespace quenby
