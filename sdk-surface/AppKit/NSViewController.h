// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSNib.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSBundle, NSCoder, NSView;

@interface NSViewController : NSResponder
- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
// Loaded on first access through -loadView, which a controller without a nib overrides.
@property(strong) NSView* view;
- (void)loadView;
// macOS 10.10.
- (void)viewWillAppear;
- (void)viewDidDisappear;
@end

NS_ASSUME_NONNULL_END
