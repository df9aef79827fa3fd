// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAppearanceName;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameAqua;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameDarkAqua; // macOS 10.14

@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
@property(readonly, copy) NSAppearanceName name;
// macOS 10.14: the first of `appearances` this appearance matches best, nil when none.
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:
    (NSArray<NSAppearanceName>*)appearances;
@end

// Windows and views: `appearance` nil follows the enclosing one, up to the system's.
@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance;
@end

NS_ASSUME_NONNULL_END
