// The main application's login item, through SMAppService (macOS 13, the oldest system the
// application runs on, so no availability check).
//
// Threading: main thread only; each call is synchronous (registering talks to the system's
// background task service and may take a moment).
//
// Lifetime: no state; the service object is the system's and is fetched on every call.
//
// Guarantee: the status is the system's own, never a cached copy, so a change made in System
// Settings shows at the next read; a failed call returns the error's localised description, and
// a registration awaiting approval is reported as success, leaving the status to say so.

#include "ui/login/macos/SystemLaunchAtLoginService.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace quenby {
namespace {

std::optional<std::string> failure(BOOL succeeded, NSError* _Nullable error) {
  if (succeeded) {
    return std::nullopt;
  }
  NSString* description = error != nil ? error.localizedDescription : nil;
  auto text = description != nil ? utf8String(description) : std::nullopt;
  return text ? *text : std::string("The login item could not be changed.");
}

} // namespace

LaunchAtLoginStatus SystemLaunchAtLoginService::status() const {
  switch (SMAppService.mainAppService.status) {
  case SMAppServiceStatusEnabled:
    return LaunchAtLoginStatus::enabled;
  case SMAppServiceStatusRequiresApproval:
    return LaunchAtLoginStatus::requiresApproval;
  case SMAppServiceStatusNotFound:
    return LaunchAtLoginStatus::notFound;
  case SMAppServiceStatusNotRegistered:
    return LaunchAtLoginStatus::notRegistered;
  }
  // A status added after this was written: as good as off, the switch can turn it on again.
  return LaunchAtLoginStatus::notRegistered;
}

std::optional<std::string> SystemLaunchAtLoginService::registerApplication() {
  NSError* error = nil;
  const BOOL registered = [SMAppService.mainAppService registerAndReturnError:&error];
  return failure(registered, error);
}

std::optional<std::string> SystemLaunchAtLoginService::unregisterApplication() {
  NSError* error = nil;
  const BOOL unregistered = [SMAppService.mainAppService unregisterAndReturnError:&error];
  return failure(unregistered, error);
}

void SystemLaunchAtLoginService::openLoginItemsSettings() {
  [SMAppService openSystemSettingsLoginItems];
}

} // namespace quenby
