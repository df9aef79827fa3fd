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

NSMenuItem* item(const quenby::BundleLocalizer& localizer, const quenby::LocalizedText& title,
                 SEL action, NSString* keyEquivalent) {
  return [[NSMenuItem alloc] initWithTitle:menuText(localizer.localized(title))
                                    action:action
                             keyEquivalent:keyEquivalent];
}

// The Edit menu's items go to the first responder, so the text fields of the windows (the
// picker's search field above all) cut, copy, paste and undo with the usual keys.
NSMenuItem* makeEditMenuItem(const quenby::BundleLocalizer& localizer) {
  NSMenu* editMenu =
      [[NSMenu alloc] initWithTitle:menuText(localizer.localized(quenby::kEditMenuText))];
  [editMenu addItem:item(localizer, quenby::kEditMenuUndoText, @selector(undo:), @"z")];
  NSMenuItem* redoItem = item(localizer, quenby::kEditMenuRedoText, @selector(redo:), @"z");
  redoItem.keyEquivalentModifierMask = NSEventModifierFlagCommand | NSEventModifierFlagShift;
  [editMenu addItem:redoItem];
  [editMenu addItem:[NSMenuItem separatorItem]];
  [editMenu addItem:item(localizer, quenby::kEditMenuCutText, @selector(cut:), @"x")];
  [editMenu addItem:item(localizer, quenby::kEditMenuCopyText, @selector(copy:), @"c")];
  [editMenu addItem:item(localizer, quenby::kEditMenuPasteText, @selector(paste:), @"v")];
  [editMenu addItem:item(localizer, quenby::kEditMenuSelectAllText, @selector(selectAll:), @"a")];
  NSMenuItem* editMenuItem = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
  editMenuItem.submenu = editMenu;
  return editMenuItem;
}

// The application menu (the one titled with the process name): Settings (Command-Comma, as in
// every Mac app), Close Window, then Quit; and the Edit menu. An accessory application shows them
// only while one of its windows is active, but their keys work whenever one is key.
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
  [applicationMenu
      addItem:item(localizer, quenby::kApplicationMenuCloseText, @selector(performClose:), @"w")];
  [applicationMenu addItem:quitItem];

  NSMenuItem* applicationMenuItem = [[NSMenuItem alloc] initWithTitle:@""
                                                               action:nil
                                                        keyEquivalent:@""];
  applicationMenuItem.submenu = applicationMenu;
  NSMenu* mainMenu = [[NSMenu alloc] initWithTitle:@""];
  [mainMenu addItem:applicationMenuItem];
  [mainMenu addItem:makeEditMenuItem(localizer)];
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
