// Process entry: the shared application, its delegate and the application menu, then the run
// loop. Main thread. NSApplication holds its delegate weakly, so the delegate is kept here, alive
// until the process exits (-run does not return; termination exits the process).

#include "app/macos/ApplicationMenuTexts.hpp"
#import "app/macos/QuenbyAppDelegate.h"
#include "base/macos/BundleLocalizer.hpp"
#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <string>

namespace {

NSString* menuText(std::string_view text) {
  NSString* converted = quenby::foundationString(text);
  return converted != nil ? converted : @"";
}

// The application menu (the one titled with the process name): Settings (Command-Comma, as in
// every Mac app), then Quit. An accessory application shows it only while one of its windows is
// active.
NSMenu* makeMainMenu(QuenbyAppDelegate* delegate) {
  const quenby::BundleLocalizer localizer;
  NSMenuItem* settingsItem =
      [[NSMenuItem alloc] initWithTitle:menuText(localizer.localized(quenby::kMenuSettingsText))
                                 action:@selector(showSettings:)
                          keyEquivalent:@","];
  settingsItem.target = delegate;
  settingsItem.keyEquivalentModifierMask = NSEventModifierFlagCommand;

  NSMenuItem* quitItem = [[NSMenuItem alloc]
      initWithTitle:menuText(localizer.localized(quenby::kApplicationMenuQuitText))
             action:@selector(terminate:)
      keyEquivalent:@"q"];

  NSMenu* applicationMenu = [[NSMenu alloc] initWithTitle:@""];
  [applicationMenu addItem:settingsItem];
  [applicationMenu addItem:[NSMenuItem separatorItem]];
  [applicationMenu addItem:quitItem];

  NSMenuItem* applicationMenuItem = [[NSMenuItem alloc] initWithTitle:@""
                                                               action:nil
                                                        keyEquivalent:@""];
  applicationMenuItem.submenu = applicationMenu;
  NSMenu* mainMenu = [[NSMenu alloc] initWithTitle:@""];
  [mainMenu addItem:applicationMenuItem];
  return mainMenu;
}

} // namespace

int main() {
  @autoreleasepool {
    NSApplication* application = NSApplication.sharedApplication;
    QuenbyAppDelegate* delegate NS_VALID_UNTIL_END_OF_SCOPE = [[QuenbyAppDelegate alloc] init];
    application.delegate = delegate;
    application.mainMenu = makeMainMenu(delegate);
    [application run];
  }
  return 0;
}
