// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSTabViewItem.h>
#import <AppKit/NSViewController.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSTabViewControllerTabStyle) {
  NSTabViewControllerTabStyleSegmentedControlOnTop = 0,
  NSTabViewControllerTabStyleSegmentedControlOnBottom = 1,
  NSTabViewControllerTabStyleToolbar = 2,
  NSTabViewControllerTabStyleUnspecified = -1,
};

// macOS 10.10.
@interface NSTabViewController : NSViewController
@property NSTabViewControllerTabStyle tabStyle;
// When YES (the default) the controller's title follows the selected child's.
@property BOOL canPropagateSelectedChildViewControllerTitle;
- (void)addTabViewItem:(NSTabViewItem*)tabViewItem;
@end

NS_ASSUME_NONNULL_END
