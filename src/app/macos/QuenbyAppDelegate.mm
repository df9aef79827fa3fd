// AppKit's launch, reopen and termination callbacks, forwarded to the portable launch controller,
// which decides everything (one coordinator per process, the status item only outside a test host,
// what reopening shows).
// Main thread only. The controller, and with it the coordinator and the whole runtime graph,
// lives as long as this delegate; main.mm keeps the delegate for the life of the process.

#import "app/macos/QuenbyAppDelegate.h"

#include "app/AppCoordinatorFactory.hpp"
#include "app/AppLaunchController.hpp"
#include "app/macos/LiveAppRuntime.hpp"
#include "app/macos/MenuBarStatusItemPresenter.hpp"
#include "base/Environment.hpp"
#import "base/macos/FoundationPropertyList.h"

#include <memory>
#include <utility>

namespace {

// Read once, at launch, and handed to whoever needs it.
quenby::Environment processEnvironment() {
  quenby::Environment environment;
  @autoreleasepool {
    NSDictionary<NSString*, NSString*>* variables = NSProcessInfo.processInfo.environment;
    for (NSString* name in variables) {
      NSString* value = [variables objectForKey:name];
      auto key = quenby::utf8String(name);
      auto text = value != nil ? quenby::utf8String(value) : std::nullopt;
      if (key && text) {
        environment.insert_or_assign(std::move(*key), std::move(*text));
      }
    }
  }
  return environment;
}

} // namespace

@implementation QuenbyAppDelegate {
  std::unique_ptr<quenby::AppLaunchController> _launchController;
}

- (instancetype)init {
  self = [super init];
  if (self == nil) {
    return nil;
  }
  quenby::Environment environment = processEnvironment();
  const quenby::AppLaunchContext launchContext =
      quenby::AppLaunchContext::fromEnvironment(environment);
  _launchController = std::make_unique<quenby::AppLaunchController>(
      launchContext,
      [environment = std::move(environment)] {
        return quenby::makeAppCoordinator(quenby::makeLivePlatformServices(), environment);
      },
      [](quenby::MenuBarExtraStore& store) {
        return std::make_unique<quenby::MenuBarStatusItemPresenter>(store);
      });
  return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  _launchController->applicationDidFinishLaunching();
}

- (void)applicationWillTerminate:(NSNotification*)notification {
  _launchController->applicationWillTerminate();
}

// Nothing of ours is restored from window state, so decoding it securely costs nothing, and AppKit
// warns at launch about every delegate that does not opt in.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
  return YES;
}

// Finder, the Dock or Spotlight opening the running application again. NO when the controller took
// it (Settings shown); YES lets AppKit do its usual reopen, harmless for an app without documents.
- (BOOL)applicationShouldHandleReopen:(NSApplication*)application hasVisibleWindows:(BOOL)flag {
  return _launchController->handleReopen() ? YES : NO;
}

- (void)showSettings:(nullable id)sender {
  _launchController->showSettings();
}

@end
