// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, nullable, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
// The frame less the menu bar and the Dock.
@property(readonly) NSRect visibleFrame;
@end

NS_ASSUME_NONNULL_END
