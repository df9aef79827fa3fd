// Why a digit picked on the HUD leads nowhere, in an informational alert.
//
// Threading: main thread only. The alert runs its own modal loop; it is started from the main
// run loop's next pass in the default mode rather than from where it was asked for (a task on
// the main dispatch queue), because a modal loop inside a main-queue task would hold back every
// later main-queue task, the switch queue's among them, until the user answered.
//
// Lifetime: the block owns a copy of the message; the alert lives until it is answered.
//
// Guarantee: the alert is in front. An accessory application is not active, so it asks to be
// activated first; from macOS 14 that is only a request, and a modal alert is ordered front
// either way.

#include "hud/panel/macos/AlertHUDDigitInfoPresenter.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#import <CoreFoundation/CoreFoundation.h>

namespace quenby {

void AlertHUDDigitInfoPresenter::show(int, const std::string& message) {
  NSString* text = foundationString(message);
  if (text == nil) {
    return;
  }
  CFRunLoopRef mainLoop = CFRunLoopGetMain();
  CFRunLoopPerformBlock(mainLoop, kCFRunLoopDefaultMode, ^{
    if (@available(macOS 14, *)) {
      [NSApp activate];
    } else {
      [NSApp activateIgnoringOtherApps:YES];
    }
    NSAlert* alert = [[NSAlert alloc] init];
    alert.alertStyle = NSAlertStyleInformational;
    alert.messageText = text;
    [alert runModal];
  });
  CFRunLoopWakeUp(mainLoop);
}

} // namespace quenby
