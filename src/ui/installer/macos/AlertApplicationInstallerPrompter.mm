// The offer to move the application, and what went wrong with a move, as AppKit alerts.
//
// Threading: main thread only; each call runs the alert's modal loop and returns once the user
// has answered.
//
// Lifetime: each alert lives for its call and is gone when it returns.
//
// Guarantee: the move happens only after the first button; the second, Escape and anything else
// that ends the alert keep the application where it is. An accessory application is rarely
// active, so it asks to be activated first or the alert could open behind the front application.

#include "ui/installer/macos/AlertApplicationInstallerPrompter.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {
namespace {

NSString* alertText(const std::string& text) {
  NSString* converted = foundationString(text);
  return converted != nil ? converted : @"";
}

void comeForward() {
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
}

} // namespace

bool AlertApplicationInstallerPrompter::confirmMove(const ApplicationMoveQuestion& question) {
  NSAlert* alert = [[NSAlert alloc] init];
  alert.messageText = alertText(question.message);
  alert.informativeText = alertText(question.informativeText);
  [alert addButtonWithTitle:alertText(question.moveTitle)];
  NSButton* keep = [alert addButtonWithTitle:alertText(question.keepTitle)];
  keep.keyEquivalent = @"\033";
  comeForward();
  return [alert runModal] == NSAlertFirstButtonReturn;
}

void AlertApplicationInstallerPrompter::inform(const ApplicationInstallerNotice& notice) {
  NSAlert* alert = [[NSAlert alloc] init];
  alert.alertStyle = NSAlertStyleWarning;
  alert.messageText = alertText(notice.message);
  alert.informativeText = alertText(notice.informativeText);
  [alert addButtonWithTitle:alertText(notice.dismissTitle)];
  comeForward();
  [alert runModal];
}

} // namespace quenby
