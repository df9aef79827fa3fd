// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSApplication.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSButton, NSWindow;

// What runModal answers for the buttons, in the order they were added.
static const NSModalResponse NSAlertFirstButtonReturn = 1000;
static const NSModalResponse NSAlertSecondButtonReturn = 1001;

typedef NS_ENUM(NSUInteger, NSAlertStyle) {
  NSAlertStyleWarning = 0,
  NSAlertStyleInformational = 1,
  NSAlertStyleCritical = 2,
};

@interface NSAlert : NSObject
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
@property NSAlertStyle alertStyle;
// Buttons are laid out right to left in the order added; the first is the default.
- (NSButton*)addButtonWithTitle:(NSString*)title;
// Runs the alert's own modal loop and returns once the user answered.
- (NSModalResponse)runModal;
// Shows the alert as a sheet of `sheetWindow` and returns at once; the handler gets the answer.
- (void)beginSheetModalForWindow:(NSWindow*)sheetWindow
               completionHandler:(void (^_Nullable)(NSModalResponse returnCode))handler;
@end

NS_ASSUME_NONNULL_END
