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
//
// The class is looked up by name and reached through the few messages declared below, so this
// file needs no ServiceManagement header and the link no symbol of it: the SDK the app is
// cross-built against off a Mac has neither. The framework is still linked, so the class is
// loaded; the status values are SMAppServiceStatus's documented raw values.

#include "ui/login/macos/SystemLaunchAtLoginService.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>

@protocol QNBMainAppService <NSObject>
@property(readonly) NSInteger status;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

@protocol QNBAppServiceClass <NSObject>
+ (id<QNBMainAppService>)mainAppService;
+ (void)openSystemSettingsLoginItems;
@end

namespace quenby {
namespace {

enum : NSInteger {
  kStatusNotRegistered = 0,
  kStatusEnabled = 1,
  kStatusRequiresApproval = 2,
  kStatusNotFound = 3,
};

Class<QNBAppServiceClass> _Nullable appServiceClass() {
  return (Class<QNBAppServiceClass>)NSClassFromString(@"SMAppService");
}

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
  switch ([appServiceClass() mainAppService].status) {
  case kStatusEnabled:
    return LaunchAtLoginStatus::enabled;
  case kStatusRequiresApproval:
    return LaunchAtLoginStatus::requiresApproval;
  case kStatusNotFound:
    return LaunchAtLoginStatus::notFound;
  case kStatusNotRegistered:
  default:
    // A status added after this was written: as good as off, the switch can turn it on again.
    return LaunchAtLoginStatus::notRegistered;
  }
}

std::optional<std::string> SystemLaunchAtLoginService::registerApplication() {
  NSError* error = nil;
  const BOOL registered = [[appServiceClass() mainAppService] registerAndReturnError:&error];
  return failure(registered, error);
}

std::optional<std::string> SystemLaunchAtLoginService::unregisterApplication() {
  NSError* error = nil;
  const BOOL unregistered = [[appServiceClass() mainAppService] unregisterAndReturnError:&error];
  return failure(unregistered, error);
}

void SystemLaunchAtLoginService::openLoginItemsSettings() {
  [appServiceClass() openSystemSettingsLoginItems];
}

} // namespace quenby
