// The enable explanation as an AppKit alert.
//
// Threading: main thread only; runs the alert's modal loop, so it returns only once the user has
// answered.
//
// Lifetime: the alert lives for the call and is gone when it returns.
//
// Guarantee: the HUD is turned on only after the first button; the second button, Escape, and
// anything else that ends the alert count as cancel. An accessory application is rarely active,
// so it asks to be activated first or the alert could open behind the front application.

#include "app/macos/AlertHUDEnableExplainer.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {
namespace {

NSString* alertText(const std::string& text) {
  NSString* converted = foundationString(text);
  return converted != nil ? converted : @"";
}

} // namespace

bool AlertHUDEnableExplainer::confirmEnable(const HUDEnableExplanation& explanation) {
  NSAlert* alert = [[NSAlert alloc] init];
  alert.messageText = alertText(explanation.message);
  alert.informativeText = alertText(explanation.informativeText);
  [alert addButtonWithTitle:alertText(explanation.continueTitle)];
  NSButton* cancel = [alert addButtonWithTitle:alertText(explanation.cancelTitle)];
  cancel.keyEquivalent = @"\033";
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
  return [alert runModal] == NSAlertFirstButtonReturn;
}

} // namespace quenby
