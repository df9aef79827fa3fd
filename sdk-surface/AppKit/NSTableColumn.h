// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSUserInterfaceItemIdentification.h>
#import <CoreGraphics/CGBase.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSTableColumn : NSObject
- (instancetype)initWithIdentifier:(NSUserInterfaceItemIdentifier)identifier;
@property(copy) NSUserInterfaceItemIdentifier identifier;
@property(copy) NSString* title;
@property CGFloat width;
@end

NS_ASSUME_NONNULL_END
