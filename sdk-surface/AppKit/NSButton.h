// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSCell.h>
#import <AppKit/NSControl.h>
#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;

@interface NSButton : NSControl
+ (instancetype)buttonWithTitle:(NSString*)title
                         target:(nullable id)target
                         action:(nullable SEL)action;
// macOS 10.12.
+ (instancetype)buttonWithImage:(NSImage*)image
                         target:(nullable id)target
                         action:(nullable SEL)action;
+ (instancetype)checkboxWithTitle:(NSString*)title
                           target:(nullable id)target
                           action:(nullable SEL)action;
@property(copy) NSString* title;
@property NSControlStateValue state;
@property(getter=isBordered) BOOL bordered;
@property(nullable, strong) NSImage* image;
@property(copy) NSString* keyEquivalent;
@property NSImageScaling imageScaling;
// macOS 10.14.
@property(nullable, copy) NSColor* contentTintColor;
@end

NS_ASSUME_NONNULL_END
