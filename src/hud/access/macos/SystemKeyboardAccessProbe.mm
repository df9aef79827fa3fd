// Reads who holds secure keyboard entry and how many key-downs the system has seen.
//
// Threading: main thread (the Carbon call is documented for it; the monitor asks from there).
//
// Lifetime: stateless; every call copies what it needs and releases it before returning.
//
// Guarantee: the key-down counter is the HID system state's, so it counts every key-down the
// hardware produced, whether or not any tap saw it. The holder's process id comes from the
// login session's dictionary; when the system does not publish it, the holder is unknown
// rather than guessed.

#include "hud/access/macos/SystemKeyboardAccessProbe.hpp"

#import <AppKit/AppKit.h>
#import <Carbon/Carbon.h>
#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

namespace quenby {

std::int32_t SystemKeyboardAccessProbe::secureInputProcess() const {
  if (!IsSecureEventInputEnabled()) {
    return kNoSecureInput;
  }
  NSDictionary* session = CFBridgingRelease(CGSessionCopyCurrentDictionary());
  id process = [session objectForKey:@"kCGSSessionSecureInputPID"];
  if (![process isKindOfClass:[NSNumber class]]) {
    return kUnknownHolder;
  }
  const long long identifier = [(NSNumber*)process longLongValue];
  return identifier > 0 ? static_cast<std::int32_t>(identifier) : kUnknownHolder;
}

std::optional<std::string> SystemKeyboardAccessProbe::applicationName(std::int32_t process) const {
  NSRunningApplication* application =
      [NSRunningApplication runningApplicationWithProcessIdentifier:process];
  const char* name = application.localizedName.UTF8String;
  if (name == nullptr) {
    return std::nullopt;
  }
  return std::string(name);
}

std::uint64_t SystemKeyboardAccessProbe::systemKeyDownCount() const {
  return CGEventSourceCounterForEventType(kCGEventSourceStateHIDSystemState, kCGEventKeyDown);
}

} // namespace quenby
