// The Settings window in AppKit: one titled window whose toolbar switches between the General
// and the Usage page.
//
// Threading: main thread only.
//
// Lifetime: the window, its delegate and both page controllers are made on the first `show` and
// held by this object until it is destroyed; the window is not released when the user closes
// it. Destroying this object detaches the delegate before closing the window, so no callback
// reaches the view models afterwards.
//
// Guarantee: there is at most one Settings window. `show` brings it in front and asks to
// activate the application (an accessory application is otherwise never active, and its window
// would open behind the one in front); the window is ordered front even when macOS declines the
// activation. Closing it ends a waiting shortcut test. Its frame is remembered across launches.

#include "ui/settings/macos/SystemSettingsWindow.hpp"

#import "base/macos/FoundationPropertyList.h"
#include "ui/settings/GeneralSettingsViewModel.hpp"
#import "ui/settings/macos/GeneralSettingsPageController.h"
#import "ui/settings/usage/macos/UsageSettingsPageController.h"

#import <AppKit/AppKit.h>

@interface QNBSettingsWindowDelegate : NSObject <NSWindowDelegate>
- (instancetype)initWithViewModel:(quenby::GeneralSettingsViewModel&)viewModel;
@end

@implementation QNBSettingsWindowDelegate {
  quenby::GeneralSettingsViewModel* _viewModel;
}

- (instancetype)initWithViewModel:(quenby::GeneralSettingsViewModel&)viewModel {
  self = [super init];
  if (self != nil) {
    _viewModel = &viewModel;
  }
  return self;
}

- (void)windowWillClose:(NSNotification*)notification {
  _viewModel->windowWillClose();
}

@end

namespace quenby {

namespace {

NSString* windowText(const std::string& text) {
  NSString* converted = foundationString(text);
  return converted != nil ? converted : @"";
}

NSTabViewItem* tabItem(NSViewController* controller, const std::string& label,
                       NSString* symbolName) {
  NSTabViewItem* item = [NSTabViewItem tabViewItemWithViewController:controller];
  item.label = windowText(label);
  item.image = [NSImage imageWithSystemSymbolName:symbolName accessibilityDescription:nil];
  return item;
}

} // namespace

struct SystemSettingsWindow::Objects {
  NSWindow* window;
  QNBSettingsWindowDelegate* delegate;
};

SystemSettingsWindow::SystemSettingsWindow(SettingsWindowPages pages) : pages_(pages) {}

SystemSettingsWindow::~SystemSettingsWindow() {
  if (objects_) {
    objects_->window.delegate = nil;
    [objects_->window close];
  }
}

void SystemSettingsWindow::show() {
  if (!objects_) {
    const GeneralSettingsContent& content = pages_.general.content();
    NSTabViewController* tabs = [[NSTabViewController alloc] init];
    tabs.tabStyle = NSTabViewControllerTabStyleToolbar;
    // The window keeps its own title whichever page is selected.
    tabs.canPropagateSelectedChildViewControllerTitle = NO;
    [tabs addTabViewItem:tabItem([[QNBGeneralSettingsPageController alloc]
                                     initWithViewModel:pages_.general],
                                 content.generalTabTitle, @"gearshape")];
    [tabs addTabViewItem:tabItem([[QNBUsageSettingsPageController alloc]
                                     initWithViewModel:pages_.usage],
                                 content.usageTabTitle, @"chart.bar")];

    NSWindow* window =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 560, 480)
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskMiniaturizable
                                      backing:NSBackingStoreBuffered
                                        defer:YES];
    window.releasedWhenClosed = NO;
    window.contentViewController = tabs;
    window.title = windowText(content.windowTitle);
    auto* delegate = [[QNBSettingsWindowDelegate alloc] initWithViewModel:pages_.general];
    window.delegate = delegate;
    [window center];
    // Restores the frame the user left it at, if any; later moves are saved.
    [window setFrameAutosaveName:@"com.brimfold.Quenby.settings"];
    objects_ = std::make_unique<Objects>(Objects{window, delegate});
  }
  pages_.general.windowDidShow();
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
  [objects_->window makeKeyAndOrderFront:nil];
  [objects_->window orderFrontRegardless];
}

void SystemSettingsWindow::close() {
  if (objects_) {
    [objects_->window close];
  }
}

} // namespace quenby
