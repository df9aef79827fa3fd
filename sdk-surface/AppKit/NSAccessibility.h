// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSGeometry.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAccessibilityRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityButtonRole;

// The informal accessibility properties every view and element answers (macOS 10.10).
@protocol NSAccessibility <NSObject>
@optional
@property(nullable, copy) NSString* accessibilityLabel;
@property(nullable, copy) NSAccessibilityRole accessibilityRole;
@property(nullable, weak) id accessibilityParent;
@property(nullable, copy) NSArray* accessibilityChildren;
- (BOOL)accessibilityPerformPress;
@end

// macOS 10.10: one accessible part of a view that draws several.
@interface NSAccessibilityElement : NSObject <NSAccessibility>
// In the accessibility parent's coordinates.
@property NSRect accessibilityFrameInParentSpace;
@end

NS_ASSUME_NONNULL_END
