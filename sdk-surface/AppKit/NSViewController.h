// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSBundle, NSCoder, NSView;

// NSNib.h in the SDK.
typedef NSString* NSNibName;

@interface NSViewController : NSResponder
- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(strong) NSView* view;
// Overridden to build the view in code; called when the view is first needed.
- (void)loadView;
@end

NS_ASSUME_NONNULL_END
