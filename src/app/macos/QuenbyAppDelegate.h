// Objective-C++: include only from .mm files.
#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The application delegate. It only converts AppKit's callbacks into calls on the portable
/// launch controller, which owns the coordinator. NSApplication holds its delegate weakly: the
/// creator keeps it alive for the whole process.
@interface QuenbyAppDelegate : NSObject <NSApplicationDelegate>

/// The action of the application menu's Settings item. It reaches the coordinator only between
/// the end of launching and termination.
- (void)showSettings:(nullable id)sender;

@end

NS_ASSUME_NONNULL_END
