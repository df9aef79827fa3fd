#pragma once

#include "base/KeyValueStore.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/Logger.hpp"
#include "ui/installer/ApplicationBundleLocation.hpp"
#include "ui/installer/ApplicationInstallerPlatform.hpp"

#include <string>
#include <string_view>

namespace quenby {

/// Offers, once, to move the application into the Applications folder when it runs from
/// anywhere else, and carries the move out without ever losing a working copy: the original is
/// left alone until the new copy has passed its signature check and launched, and an older copy
/// in the way goes to the Trash, never straight away. Main thread only.
class ApplicationInstaller {
public:
  /// Set once the user has been asked, whatever the answer.
  static constexpr std::string_view kOfferedKey = "installer.moveToApplicationsOffered";
  static constexpr std::string_view kInstalledBundlePath = "/Applications/Quenby.app";

  /// `userDefaults`, `localizer` and `logger` must outlive the installer.
  ApplicationInstaller(ApplicationInstallerPlatform platform, KeyValueStore& userDefaults,
                       const Localizer& localizer, Logger& logger);
  ApplicationInstaller(const ApplicationInstaller&) = delete;
  ApplicationInstaller& operator=(const ApplicationInstaller&) = delete;

  /// Called once launching has finished. Asks only when the bundle is outside the Applications
  /// folders and the user was never asked; on a successful move the process quits in favour of
  /// the new copy, otherwise it carries on from where it is.
  void offerToMoveIfNeeded();

private:
  void moveToApplications(const std::string& bundlePath, ApplicationBundleLocation location);
  void finishRelaunch(const std::string& originalPath, ApplicationBundleLocation location);
  void tell(const LocalizedText& message, const LocalizedText& detail, std::string_view reason);

  ApplicationInstallerPlatform platform_;
  KeyValueStore& userDefaults_;
  const Localizer& localizer_;
  Logger& logger_;
  // Last: the relaunch completion may arrive after the graph is gone.
  LifetimeGuard lifetime_;
};

} // namespace quenby
