#include "ui/installer/ApplicationInstaller.hpp"

#include "base/StringFormatter.hpp"
#include "ui/installer/ApplicationInstallerTexts.hpp"

#include <utility>

namespace quenby {
namespace {

constexpr std::string_view kLogCategory = "Installer";

} // namespace

ApplicationInstaller::ApplicationInstaller(ApplicationInstallerPlatform platform,
                                           KeyValueStore& userDefaults, const Localizer& localizer,
                                           Logger& logger)
    : platform_(std::move(platform)), userDefaults_(userDefaults), localizer_(localizer),
      logger_(logger) {}

void ApplicationInstaller::offerToMoveIfNeeded() {
  const auto bundlePath = platform_.files->runningBundlePath();
  // A bare executable (run from a build folder, say) has no bundle to move.
  if (!bundlePath || !bundlePath->ends_with(".app")) {
    return;
  }
  const auto location =
      classifyApplicationBundleLocation(*bundlePath, platform_.files->homeDirectory());
  if (location == ApplicationBundleLocation::applicationsFolder ||
      userDefaults_.isTrue(kOfferedKey)) {
    return;
  }
  const bool replaces = platform_.files->exists(std::string(kInstalledBundlePath));
  const bool move = platform_.alerts->confirmMove(
      {.message = localizer_.localized(kInstallerMoveMessageText),
       .informativeText = localizer_.localized(replaces ? kInstallerReplaceInformativeText
                                                        : kInstallerMoveInformativeText),
       .moveTitle = localizer_.localized(kInstallerMoveButtonText),
       .keepTitle = localizer_.localized(kInstallerKeepButtonText)});
  // Asked once: a declined offer, or a move that failed and was explained, is not repeated at
  // every launch.
  userDefaults_.set(kOfferedKey, true);
  if (!move) {
    logger_.log(LogLevel::info, kLogCategory, "The user keeps the application where it is.");
    return;
  }
  moveToApplications(*bundlePath, location);
}

void ApplicationInstaller::moveToApplications(const std::string& bundlePath,
                                              ApplicationBundleLocation location) {
  auto& files = *platform_.files;
  const std::string destination(kInstalledBundlePath);
  if (files.exists(destination)) {
    // Replacing a running application's bundle would pull its resources from under it.
    if (platform_.relauncher->isRunning(destination)) {
      tell(kInstallerFailedMessageText, kInstallerRunningCopyText, {});
      return;
    }
    if (auto error = files.moveItemToTrash(destination)) {
      tell(kInstallerFailedMessageText, kInstallerReplaceFailedText, *error);
      return;
    }
  }
  if (auto error = files.copyItem(bundlePath, destination)) {
    // Whatever a copy that stopped half way left behind is ours and unusable.
    if (files.exists(destination)) {
      (void)files.removeItem(destination);
    }
    tell(kInstallerFailedMessageText, kInstallerCopyFailedText, *error);
    return;
  }
  if (auto error = platform_.signatureVerifier->verify(destination)) {
    if (auto removal = files.removeItem(destination)) {
      logger_.log(LogLevel::error, kLogCategory, "The unverified copy stays: " + *removal);
    }
    tell(kInstallerFailedMessageText, kInstallerVerificationFailedText, *error);
    return;
  }
  platform_.relauncher->openNewInstance(
      destination, lifetime_.weak([this, bundlePath, location](std::optional<std::string> error) {
        if (error) {
          tell(kInstallerLaunchFailedMessageText, kInstallerLaunchFailedText, *error);
          return;
        }
        finishRelaunch(bundlePath, location);
      }));
}

void ApplicationInstaller::finishRelaunch(const std::string& originalPath,
                                          ApplicationBundleLocation location) {
  // Only now that the new copy runs is the old one no longer needed, and only in a folder of the
  // user's own: a disk image is read-only, and a translocated copy is not where the user put it.
  if (location == ApplicationBundleLocation::elsewhere) {
    if (auto error = platform_.files->moveItemToTrash(originalPath)) {
      logger_.log(LogLevel::error, kLogCategory, "The original copy stays: " + *error);
    }
  }
  platform_.relauncher->quit();
}

void ApplicationInstaller::tell(const LocalizedText& message, const LocalizedText& detail,
                                std::string_view reason) {
  logger_.log(LogLevel::error, kLogCategory,
              std::string(detail.key) + (reason.empty() ? "" : ": ") + std::string(reason));
  platform_.alerts->inform(
      {.message = localizer_.localized(message),
       .informativeText = formatLocalized(localizer_.localized(detail), {reason}),
       .dismissTitle = localizer_.localized(kInstallerDismissText)});
}

} // namespace quenby
