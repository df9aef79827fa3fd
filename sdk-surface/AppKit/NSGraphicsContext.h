// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSBitmapImageRep;

NS_ENUM(NSUInteger, NSImageInterpolation){
    NSImageInterpolationDefault = 0, NSImageInterpolationNone = 1, NSImageInterpolationLow = 2,
    NSImageInterpolationMedium = 4,  NSImageInterpolationHigh = 3,
};

@interface NSGraphicsContext : NSObject
// Only single-plane bitmaps can be drawn into.
+ (nullable NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmapRep;
// Per thread.
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@property NSImageInterpolation imageInterpolation;
@end

NS_ASSUME_NONNULL_END
