#pragma once

#include "shortcuts/dock/DockPreferenceReading.hpp"

#include <functional>
#include <optional>
#include <string_view>

namespace quenby {

/// Reads the Dock's domain through two closures: on macOS they wrap the current user's
/// preferences for any host; elsewhere they read a property-list file or a scripted Dock. Both
/// run on the main thread and are kept for the reader's lifetime.
class SystemDockPreferenceReader final : public DockPreferenceReading {
public:
  static constexpr std::string_view kDomain = "com.apple.dock";
  static constexpr std::string_view kPersistentAppsKey = "persistent-apps";

  /// `synchronize` brings the domain up to date and says whether it could;
  /// `copyPersistentApps` returns the "persistent-apps" value, absent when the key is missing.
  SystemDockPreferenceReader(std::function<bool()> synchronize,
                             std::function<std::optional<PropertyListValue>()> copyPersistentApps);

  [[nodiscard]] Expected<DockPersistentApplications, DockPreferenceReaderError>
  readPersistentApplications() override;

private:
  std::function<bool()> synchronize_;
  std::function<std::optional<PropertyListValue>()> copyPersistentApps_;
};

} // namespace quenby
