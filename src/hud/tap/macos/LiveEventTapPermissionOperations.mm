// The keyboard tap's five permission operations: Accessibility trust, listen-event (Input
// Monitoring) access, their prompts, and opening a privacy pane of System Settings.
//
// Threading: main thread only (the prompts and the workspace are AppKit's).
//
// Lifetime: stateless; the operations are valid for as long as the process runs.
//
// Guarantee: the checks never prompt. A request may show the system's prompt, which appears
// later; its answer is ignored, since the grant itself arrives later still and is read by the
// next check. A text that is not a URL opens nothing.

#include "hud/tap/macos/LiveEventTapPermissionOperations.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#import <CoreGraphics/CoreGraphics.h>

namespace quenby {

SystemEventTapPermission::Operations makeLiveEventTapPermissionOperations() {
  return {.accessibilityTrusted = [] { return AXIsProcessTrusted() != 0; },
          .inputMonitoringGranted = [] { return CGPreflightListenEventAccess(); },
          .requestAccessibility =
              [] {
                @autoreleasepool {
                  NSDictionary* options = @{(__bridge NSString*)kAXTrustedCheckOptionPrompt : @YES};
                  AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
                }
              },
          .requestInputMonitoring = [] { CGRequestListenEventAccess(); },
          .openSettingsURL =
              [](const std::string& text) {
                @autoreleasepool {
                  NSString* string = foundationString(text);
                  NSURL* url = string == nil ? nil : [NSURL URLWithString:string];
                  if (url != nil) {
                    [NSWorkspace.sharedWorkspace openURL:url];
                  }
                }
              }};
}

} // namespace quenby
